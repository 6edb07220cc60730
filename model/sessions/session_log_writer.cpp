#include <zelmodel/sessions/session_log_writer.h>

#include <zelplatform/exc/exc.h>

#include "detail/enum_rows.h"

namespace zelplatform::model
{
namespace
{

constexpr auto Words = detail::enumRows<ISessionLogWriter::ESeverity>({
    {ISessionLogWriter::Processing, "processing"},
    {ISessionLogWriter::Info, "info"},
    {ISessionLogWriter::Warn, "warn"},
    {ISessionLogWriter::Error, "error"},
});

} // namespace

ISessionLogWriter::~ISessionLogWriter() = default;

std::string ISessionLogWriter::SeverityToString(ESeverity severity)
{
    if (const auto text = detail::findText(Words, severity))
        return std::string(*text);
    throw exc::CRuntimeExc("Invalid severity value.");
}

ISessionLogWriter::ESeverity ISessionLogWriter::SeverityFromString(std::string_view text)
{
    if (const auto value = detail::findValue(Words, text))
        return *value;
    throw exc::CRuntimeExc("Invalid severity value string [%1].", std::string(text));
}

std::map<ISessionLogWriter::ESeverity, std::string> ISessionLogWriter::CreateMessageTypes()
{
    std::map<ESeverity, std::string> types;
    for (const auto& row : Words)
        types.emplace(row.value, row.text);
    return types;
}

const std::map<ISessionLogWriter::ESeverity, std::string>& ISessionLogWriter::s_msgTypes()
{
    static const auto types = CreateMessageTypes();
    return types;
}

} // namespace zelplatform::model
