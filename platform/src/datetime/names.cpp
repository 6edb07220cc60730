#include <zelplatform/datetime/names.h>

#include <zelplatform/exc/exc.h>
#include <zelplatform/util/util.h>

namespace datetime
{
namespace
{

std::vector<std::string> firstThreeLetters(const std::vector<std::string>& names)
{
    std::vector<std::string> result;
    result.reserve(names.size());
    for (const auto& name : names)
        result.push_back(name.substr(0, 3));
    return result;
}

int indexOfName(const std::string& text, const std::vector<std::string>& longNames,
                const std::vector<std::string>& shortNames, const char* message)
{
    const auto wanted = util::tolower(text);
    for (std::size_t i = 0; i < longNames.size(); ++i)
    {
        if (wanted == util::tolower(longNames[i]) || wanted == util::tolower(shortNames[i]))
            return static_cast<int>(i);
    }
    throw exc::CRuntimeExc(message, text);
}

std::string nameOf(int value, const std::vector<std::string>& names, const char* message)
{
    if (value < 0 || value >= static_cast<int>(names.size()))
        throw exc::CRuntimeExc(message, util::toStr(value));
    return names[static_cast<std::size_t>(value)];
}

constexpr const char* UnknownDay = "Unknown day of week: [%1].";
constexpr const char* UnknownMonth = "Unknown month: [%1].";

} // namespace

const std::vector<std::string>& EDayOfWeek::GetLongStrSet()
{
    static const std::vector<std::string> names{"Sunday",   "Monday", "Tuesday", "Wednesday",
                                                "Thursday", "Friday", "Saturday"};
    return names;
}

const std::vector<std::string>& EDayOfWeek::GetShortStrSet()
{
    static const std::vector<std::string> names = firstThreeLetters(GetLongStrSet());
    return names;
}

EDayOfWeek::type EDayOfWeek::FromStr(const std::string& text)
{
    return static_cast<type>(indexOfName(text, GetLongStrSet(), GetShortStrSet(), UnknownDay));
}

std::string EDayOfWeek::ToStr(type value)
{
    return nameOf(value, GetLongStrSet(), UnknownDay);
}

const std::vector<std::string>& EMonth::GetLongStrSet()
{
    static const std::vector<std::string> names{"January", "February", "March",     "April",   "May",      "June",
                                                "July",    "August",   "September", "October", "November", "December"};
    return names;
}

const std::vector<std::string>& EMonth::GetShortStrSet()
{
    static const std::vector<std::string> names = firstThreeLetters(GetLongStrSet());
    return names;
}

EMonth::type EMonth::FromStr(const std::string& text)
{
    return static_cast<type>(indexOfName(text, GetLongStrSet(), GetShortStrSet(), UnknownMonth));
}

std::string EMonth::ToStr(type value)
{
    return nameOf(value, GetLongStrSet(), UnknownMonth);
}

} // namespace datetime
