#include "date_option.h"

#include <string>

#include <zelplatform/exc/exc.h>

namespace
{

constexpr const char* DateFormat = "%Y-%m-%d";
constexpr std::size_t DateLength = 10;

zelplatform::model::CDate parseDate(const char* option, const std::string& text)
try
{
    if (text.size() != DateLength)
        throw exc::CRuntimeExc("The length is wrong.");
    return zelplatform::model::CDate(datetime::CDateTime::fromString(text, DateFormat, false));
}
catch (const std::exception&)
{
    throw CLI::ValidationError(option, "[" + text + "] is no date from 1400 to 9999 written as YYYY-MM-DD");
}

} // namespace

void addDateOption(CLI::App& command, const char* name, std::optional<zelplatform::model::CDate>& target,
                   const char* description)
{
    command
        .add_option_function<std::string>(
            name, [name, &target](const std::string& text) { target = parseDate(name, text); }, description)
        ->type_name("YYYY-MM-DD");
}
