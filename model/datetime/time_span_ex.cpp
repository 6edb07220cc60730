#include <zelmodel/datetime/time_span_ex.h>

#include <array>
#include <clocale>
#include <ctime>

#include <zelplatform/exc/exc.h>
#include <zelplatform/util/util.h>

#include "detail/checked_math.h"

namespace zelplatform::model
{
namespace
{

constexpr long SecondsOfHour = 3600;
constexpr long SecondsOfDay = 86400;
constexpr std::size_t TextSize = 256;

// Names of days and months are English whatever locale the process has set.
locale_t plainLocale()
{
    static const locale_t locale = newlocale(LC_ALL_MASK, "C", nullptr);
    return locale;
}

} // namespace

CTimeSpanEx CTimeSpanEx::fromHours(long hours)
{
    return CTimeSpanEx(detail::checkedMultiply(hours, SecondsOfHour));
}

CTimeSpanEx CTimeSpanEx::fromDays(long days)
{
    return CTimeSpanEx(detail::checkedMultiply(days, SecondsOfDay));
}

std::string CTimeSpanEx::toStdString(const std::string& format) const
{
    std::tm fields{};
    if (!util::gmtime_safe(m_seconds, fields))
        throw exc::CRuntimeExc("Failed to convert UNIX time to struct tm.");
    std::array<char, TextSize> text{};
    const auto length = strftime_l(text.data(), text.size(), format.c_str(), &fields, plainLocale());
    if (length == 0)
        throw exc::CRuntimeExc("Failed convert time span to string using format [%1].", format);
    return std::string(text.data(), length);
}

} // namespace zelplatform::model
