#include <zelplatform/util/numbers.h>

#include <algorithm>
#include <limits>

#include <zelplatform/exc/exc.h>
#include <zelplatform/util/text.h>
#include <zelplatform/util/type_name.h>

namespace util
{
namespace
{

static_assert(sizeof(long) == 8, "64-bit numbers are written as long");

template <class T>
std::string decimal(T value)
{
    char digits[std::numeric_limits<T>::digits10 + 3];
    return std::string(digits, std::to_chars(std::begin(digits), std::end(digits), value).ptr);
}

// The longest double in fixed notation has 309 digits before the point and a sign.
std::string decimal(double value, std::chars_format form, int precision)
{
    std::string text(std::numeric_limits<double>::max_exponent10 + 8 + static_cast<std::size_t>(precision), '\0');
    const auto end = std::to_chars(text.data(), text.data() + text.size(), value, form, precision).ptr;
    text.resize(static_cast<std::size_t>(end - text.data()));
    return text;
}

} // namespace

std::string detail::decimalText(long value)
{
    return decimal(value);
}

std::string detail::decimalText(unsigned long value)
{
    return decimal(value);
}

bool detail::boolFromText(std::string_view text)
{
    if (text == "1" || str_is_equal_nocase(text, "true"))
        return true;
    if (text == "0" || str_is_equal_nocase(text, "false"))
        return false;
    failConversion(text, typeid(bool));
}

std::string detail::conversionFailure(std::string_view text, const std::type_info& type)
{
    return str_format("Unable to convert string [%1] to [%2].", std::string(text), readableName(type));
}

void detail::failConversion(std::string_view text, const std::type_info& type)
{
    throw exc::CRuntimeExc(conversionFailure(text, type));
}

std::string toStr(double value, int digits)
{
    return decimal(value, std::chars_format::fixed, std::max(digits, 0));
}

std::string str_from_double(double value, unsigned significant)
{
    constexpr unsigned MostDigits = 17;
    return decimal(value, std::chars_format::general, static_cast<int>(std::min(significant, MostDigits)));
}

} // namespace util
