#include "words.h"

#include <array>
#include <cstddef>
#include <utility>

#include <zelmodel/size/size.h>
#include <zelplatform/util/util.h>

namespace describe
{
namespace
{

constexpr unsigned long MsInSecond = 1000;
constexpr std::array<std::pair<unsigned long, const char*>, 4> TimeUnits{
    {{86400, "day"}, {3600, "hour"}, {60, "minute"}, {1, "second"}}};

} // namespace

std::string countOf(unsigned long count, const std::string& thing)
{
    return util::toStr(count) + ' ' + thing + (count == 1 ? "" : "s");
}

std::string countOfSigned(long count, const std::string& thing)
{
    return count < 0 ? util::toStr(count) + ' ' + thing + 's' : countOf(static_cast<unsigned long>(count), thing);
}

std::string sizeOf(unsigned long bytes)
{
    return zelplatform::CSize(bytes).ToNBytesStr();
}

std::string identifierOf(const guid::guid_t& id)
{
    return id.IsEmpty() ? "none" : util::toStr(id);
}

std::string onOrOff(bool on)
{
    return on ? "on" : "off";
}

std::string flagText(bool flag)
{
    return util::toStr(flag);
}

std::string duration(unsigned long milliseconds)
{
    if (milliseconds == 0 || milliseconds % MsInSecond != 0)
        return util::toStr(milliseconds) + " ms";
    unsigned long rest = milliseconds / MsInSecond;
    std::string text;
    for (const auto& [seconds, unit] : TimeUnits)
    {
        if (rest >= seconds)
            text += (text.empty() ? "" : " ") + countOf(rest / seconds, unit);
        rest %= seconds;
    }
    return text;
}

std::string isoDate(const datetime::CDateTime& date)
{
    return date.toStdString("%Y-%m-%d");
}

std::string clockTime(const datetime::CDateTime& moment)
{
    return moment.toStdString("%H:%M");
}

std::string momentUtc(const datetime::CDateTime& moment)
{
    return moment.toStdString("%Y-%m-%d %H:%M:%S") + " UTC";
}

std::string weekDay(const datetime::CDateTime& date)
{
    return datetime::EDayOfWeek::ToStr(date.getDayOfWeek());
}

std::string textOr(const std::string& text, const std::string& otherwise)
{
    return text.empty() ? otherwise : text;
}

std::string listOf(const std::vector<std::string>& items)
{
    std::string text;
    for (std::size_t i = 0; i < items.size(); ++i)
    {
        if (i > 0)
            text += i + 1 == items.size() ? " and " : ", ";
        text += items[i];
    }
    return text;
}

} // namespace describe
