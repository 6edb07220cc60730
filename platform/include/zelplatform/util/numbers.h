#pragma once

#include <charconv>
#include <cmath>
#include <string>
#include <string_view>
#include <system_error>
#include <type_traits>
#include <typeinfo>

#include <zelplatform/export.h>

namespace guid
{
class guid_t;
}

/// Numbers to text and back. Text is decimal and does not depend on the locale.
namespace util
{

namespace detail
{

ZELPLATFORM_API std::string decimalText(long value);
ZELPLATFORM_API std::string decimalText(unsigned long value);
ZELPLATFORM_API bool boolFromText(std::string_view text);
ZELPLATFORM_API std::string conversionFailure(std::string_view text, const std::type_info& type);
[[noreturn]] ZELPLATFORM_API void failConversion(std::string_view text, const std::type_info& type);

} // namespace detail

/// Decimal digits for every integer, 8-bit ones included, and for enumerations; "true" or "false" for a bool.
template <class T, std::enable_if_t<std::is_integral_v<T> || std::is_enum_v<T>, int> = 0>
std::string toStr(T value)
{
    if constexpr (std::is_same_v<T, bool>)
        return value ? "true" : "false";
    else if constexpr (std::is_enum_v<T>)
        return toStr(static_cast<std::underlying_type_t<T>>(value));
    else if constexpr (std::is_signed_v<T>)
        return detail::decimalText(static_cast<long>(value));
    else
        return detail::decimalText(static_cast<unsigned long>(value));
}

/// A text is itself, so that templates can convert everything.
inline std::string toStr(const std::string& text)
{
    return text;
}

/// A text is itself.
inline std::string toStr(std::string_view text)
{
    return std::string(text);
}

/// A text is itself; the pointer must not be empty.
inline std::string toStr(const char* text)
{
    return text;
}

/// The GUID in lower case with hyphens.
ZELPLATFORM_API std::string toStr(const guid::guid_t& id);

/// Fixed notation with that many digits after the point, rounded as printf rounds: 1023.96 with one digit is "1024.0".
ZELPLATFORM_API std::string toStr(double value, int digits);

/// The same as `toStr`.
template <class T>
std::string str(const T& value)
{
    return toStr(value);
}

/// At most that many significant digits, without zeros at the end of the fraction: 1.5 is "1.5", 1.0 is "1".
ZELPLATFORM_API std::string str_from_double(double value, unsigned significant);

/// The number that the whole text is: decimal digits, '-' for signed types only, within the range of the type; no
/// blanks, no '+'. A double is in fixed notation and finite. For any other text it is false, and the value is anything.
template <class T>
bool tryFromStr(std::string_view text, T& value)
{
    static_assert(std::is_arithmetic_v<T> && !std::is_same_v<T, bool> && sizeof(T) <= 8, "numbers only");
    std::from_chars_result result{};
    bool isFinite = true;
    if constexpr (std::is_floating_point_v<T>)
    {
        result = std::from_chars(text.data(), text.data() + text.size(), value, std::chars_format::fixed);
        isFinite = std::isfinite(value);
    }
    else
    {
        result = std::from_chars(text.data(), text.data() + text.size(), value);
    }
    return result.ec == std::errc() && result.ptr == text.data() + text.size() && isFinite;
}

/// What `fromStr` says of a text that is no value of the type.
template <class T>
std::string fromStrFailure(std::string_view text)
{
    return detail::conversionFailure(text, typeid(T));
}

/// The number as `tryFromStr` takes it. A bool is "true" or "false" in any case, "1" or "0". Anything else throws.
template <class T>
T fromStr(std::string_view text)
{
    if constexpr (std::is_same_v<T, bool>)
    {
        return detail::boolFromText(text);
    }
    else
    {
        T value{};
        if (!tryFromStr(text, value))
            detail::failConversion(text, typeid(T));
        return value;
    }
}

/// fromStr<int>: a whole decimal number of 32 bits, else it throws.
inline int str_to_int(std::string_view text)
{
    return fromStr<int>(text);
}

/// fromStr<unsigned>: without sign, else it throws.
inline unsigned str_to_uint(std::string_view text)
{
    return fromStr<unsigned>(text);
}

/// fromStr<bool>, else it throws.
inline bool str_to_bool(std::string_view text)
{
    return fromStr<bool>(text);
}

} // namespace util
