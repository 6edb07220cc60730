#include <zelmodel/size/size.h>

#include <algorithm>
#include <cmath>

#include <zelplatform/exc/exc.h>
#include <zelplatform/util/util.h>

namespace zelplatform
{
namespace
{

constexpr const char* TypeName = "CSize";
constexpr double UnitFactor = 1024.0;
constexpr double OneUnitDown = 1.0 / UnitFactor;
constexpr unsigned SignificantDigits = 15;
constexpr std::size_t DecimalsShown = 2;

} // namespace

CSize CSize::FromStr(const std::string& text)
{
    const auto numberEnd = text.find_first_not_of("0123456789.");
    if (numberEnd == std::string::npos)
        return CSize(util::fromStr<unsigned long>(text));

    const auto number = util::fromStr<double>(util::str_trim(text.substr(0, numberEnd)));
    const auto unit = EDataSizeUnit::FromStr(util::str_trim(text.substr(numberEnd)));
    const auto bytes = unit > EDataSizeUnit::B ? number * std::pow(UnitFactor, static_cast<int>(unit)) : number;
    return CSize(util::safe_cast<unsigned long>(bytes));
}

double CSize::ToNBytes(EDataSizeUnit::type& unit) const
{
    auto number = static_cast<double>(m_bytes);
    int steps = EDataSizeUnit::B;
    // coverage: cannot be reached: 64 bits end at 16 EB
    while (number >= UnitFactor && steps < EDataSizeUnit::EB)
    {
        number *= OneUnitDown;
        ++steps;
    }
    unit = static_cast<EDataSizeUnit::type>(steps);
    return number;
}

std::string CSize::ToNBytesStr() const
try
{
    auto unit = EDataSizeUnit::B;
    const auto number = ToNBytes(unit);
    return util::str_format("%1 %2", util::toStr(number, 1), EDataSizeUnit::toStr(unit));
}
catch (std::exception& cause)
{
    exc::RegenTraceExc("%1: Failed to convert to NBytes string.", TypeName, cause);
}

std::string CSize::ToStr(unsigned maxLength, bool showZero) const
try
{
    if (!showZero && m_bytes == 0)
        return std::string();

    auto unit = EDataSizeUnit::B;
    auto number = util::str_from_double(ToNBytes(unit), SignificantDigits);
    const auto unitText = EDataSizeUnit::toShortStr(unit);

    const auto separator = number.find_first_of(".,");
    if (separator != std::string::npos)
        number.resize(std::min(number.size(), separator + 1 + DecimalsShown));
    const auto room = maxLength - std::min<std::size_t>(maxLength, unitText.size());
    if (number.size() > room)
        number.resize(room);
    // coverage: cannot be reached: the platform writes numbers with a point in every locale
    if (!number.empty() && (number.back() == '.' || number.back() == ','))
        number.pop_back();
    return number + unitText;
}
catch (std::exception& cause)
{
    exc::RegenTraceExc("%1: Failed to convert to user-friendly string.", TypeName, cause);
}

} // namespace zelplatform
