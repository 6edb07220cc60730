#include "moment_range_option.h"

#include <string>
#include <string_view>

#include <zelplatform/datetime/date_time.h>
#include <zelplatform/exc/exc.h>

namespace
{

struct Form
{
    std::string_view form;
    const char* format;
    long seconds; ///< that what is written so lasts
};

constexpr Form Forms[] = {{"YYYY-MM-DD", "%Y-%m-%d", 86400},
                          {"YYYY-MM-DD HH:MM", "%Y-%m-%d %H:%M", 60},
                          {"YYYY-MM-DD HH:MM:SS", "%Y-%m-%d %H:%M:%S", 1}};

MomentRange parseMoment(const char* option, const std::string& text)
try
{
    for (const auto& form : Forms)
    {
        if (text.size() != form.form.size())
            continue;
        const long first = datetime::CDateTime::fromString(text, form.format, true).toUnixTime();
        return {first, first + form.seconds - 1};
    }
    throw exc::CRuntimeExc("The length is wrong.");
}
catch (const std::exception&)
{
    throw UsageError(option, "[" + text +
                                 "] is no moment from 1400 to 9999 written as YYYY-MM-DD, "
                                 "YYYY-MM-DD HH:MM or YYYY-MM-DD HH:MM:SS");
}

} // namespace

void addMomentRangeOption(CommandOptions& command, const char* name, std::optional<MomentRange>& target,
                          const char* description)
{
    command
        .add(
            name, [name, &target](const std::string& text) { target = parseMoment(name, text); }, description)
        .typeName("\"YYYY-MM-DD[ HH:MM[:SS]]\"");
}
