#include "date_option.h"

#include <string>

#include <zelplatform/exc/exc.h>

namespace
{

using datetime::CDateTime;
using zelplatform::model::CDate;

/// How a date, or a part or more of one, is written: all of its numbers have all of their digits.
struct Form
{
    const char* format;
    const char* example;
    const char* what;
};

constexpr Form DateForm{"%Y-%m-%d", "YYYY-MM-DD", "date"};
constexpr Form MonthForm{"%Y-%m", "YYYY-MM", "month"};
constexpr Form YearForm{"%Y", "YYYY", "year"};
constexpr Form MomentForm{"%Y-%m-%d %H:%M", "YYYY-MM-DD HH:MM", "time"};

CDateTime parse(const Form& form, const char* option, const std::string& text)
try
{
    if (text.size() != std::string(form.example).size())
        throw exc::CRuntimeExc("The length is wrong.");
    return CDateTime::fromString(text, form.format, false);
}
catch (const std::exception&)
{
    throw UsageError(option, "[" + text + "] is no " + form.what + " from 1400 to 9999 written as " + form.example);
}

template <class T>
CommandOption addOption(CommandOptions& command, const Form& form, const char* name, std::optional<T>& target,
                        const char* description)
{
    return command
        .add(
            name, [&form, name, &target](const std::string& text) { target = T(parse(form, name, text)); }, description)
        .typeName(form.example);
}

} // namespace

CommandOption addDateOption(CommandOptions& command, const char* name, std::optional<CDate>& target,
                            const char* description)
{
    return addOption(command, DateForm, name, target, description);
}

CommandOption addMonthOption(CommandOptions& command, const char* name, std::optional<CDate>& target,
                             const char* description)
{
    return addOption(command, MonthForm, name, target, description);
}

CommandOption addYearOption(CommandOptions& command, const char* name, std::optional<CDate>& target,
                            const char* description)
{
    return addOption(command, YearForm, name, target, description);
}

CommandOption addMomentOption(CommandOptions& command, const char* name, std::optional<CDateTime>& target,
                              const char* description)
{
    return addOption(command, MomentForm, name, target, description);
}
