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
    throw CLI::ValidationError(option,
                               "[" + text + "] is no " + form.what + " from 1400 to 9999 written as " + form.example);
}

template <class T>
CLI::Option* addOption(CLI::App& command, const Form& form, const char* name, std::optional<T>& target,
                       const char* description)
{
    return command
        .add_option_function<std::string>(
            name, [&form, name, &target](const std::string& text) { target = T(parse(form, name, text)); }, description)
        ->type_name(form.example);
}

} // namespace

CLI::Option* addDateOption(CLI::App& command, const char* name, std::optional<CDate>& target, const char* description)
{
    return addOption(command, DateForm, name, target, description);
}

CLI::Option* addMonthOption(CLI::App& command, const char* name, std::optional<CDate>& target, const char* description)
{
    return addOption(command, MonthForm, name, target, description);
}

CLI::Option* addYearOption(CLI::App& command, const char* name, std::optional<CDate>& target, const char* description)
{
    return addOption(command, YearForm, name, target, description);
}

CLI::Option* addMomentOption(CLI::App& command, const char* name, std::optional<CDateTime>& target,
                             const char* description)
{
    return addOption(command, MomentForm, name, target, description);
}
