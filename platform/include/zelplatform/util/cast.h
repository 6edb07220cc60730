#pragma once

#include <cmath>
#include <limits>
#include <type_traits>
#include <typeinfo>

#include <zelplatform/export.h>

namespace util
{

namespace detail
{

[[noreturn]] ZELPLATFORM_API void failCast(const std::type_info& from, const std::type_info& to);

template <class T, bool = std::is_enum_v<T>>
struct Number
{
    using type = T;
};

template <class T>
struct Number<T, true>
{
    using type = std::underlying_type_t<T>;
};

template <class T>
constexpr bool isNegative(T value) noexcept
{
    if constexpr (std::is_signed_v<T>)
        return value < 0;
    else
        return false;
}

template <class To, class From>
bool fits(From value) noexcept
{
    if constexpr (std::is_floating_point_v<From>)
    {
        const From bound = std::ldexp(From(1), std::numeric_limits<To>::digits);
        const From whole = std::trunc(value);
        return whole < bound && whole >= (std::is_signed_v<To> ? -bound : From(0));
    }
    else
    {
        const To narrowed = static_cast<To>(value);
        return static_cast<From>(narrowed) == value && isNegative(narrowed) == isNegative(value);
    }
}

} // namespace detail

/// The value in another integer or enumeration type. Throws when it does not fit; an enumeration takes what its
/// underlying type takes. A floating-point value loses its fraction.
template <class To, class From>
To safe_cast(From value)
{
    using ToNumber = typename detail::Number<To>::type;
    using FromNumber = typename detail::Number<From>::type;
    static_assert(std::is_integral_v<ToNumber> && std::is_arithmetic_v<FromNumber>, "integers and enumerations only");
    if (!detail::fits<ToNumber>(static_cast<FromNumber>(value)))
        detail::failCast(typeid(From), typeid(To));
    return static_cast<To>(value);
}

} // namespace util
