#include <zelmodel/sessions/task_log_record.h>

#include <map>

#include <zelplatform/exc/exc.h>

#include "detail/session_names.h"

namespace zelplatform::model
{
namespace
{

namespace names = detail::session_names;

constexpr const char* RecordName = "STaskLogRecord";
constexpr const char* DateFormat = "%m/%d/%Y %H:%M:%S";

// The managing side's status names. The failure of a checked look-up is what a reader of the chain knows this by.
std::string severityOf(const std::string& status)
{
    static const std::map<std::string, std::string> words{
        {"ENone", "processing"}, {"ESucceeded", "info"}, {"EWarning", "warn"}, {"EFailed", "error"}};
    return words.at(status);
}

} // namespace

std::shared_ptr<mivo::CMivoCommandArgs> STaskLogRecord::ToMivo() const
{
    auto arguments = std::make_shared<mivo::CMivoCommandArgs>();
    arguments->SetString(names::Status, status);
    arguments->SetUInt64(names::OrdinalId, ordinalId);
    arguments->SetUInt64(names::Usn, updateUsn);
    arguments->SetString(names::Title, title);
    arguments->SetString(names::Description, description);
    arguments->SetDateTime(names::UpdateTimeUtc, updateTime);
    arguments->SetString(names::Object, object);
    arguments->SetDateTime(names::StartTimeUtc, startTime);
    arguments->SetString(names::Cookie, cookie);
    return arguments;
}

// The sentence has no full stop, kept on purpose.
STaskLogRecord STaskLogRecord::FromMivo(const std::shared_ptr<mivo::CMivoCommandArgs>& arguments)
try
{
    if (!arguments)
        throw exc::CRuntimeExc("There are no arguments.");
    STaskLogRecord record;
    record.status = arguments->GetString(names::Status);
    record.ordinalId = arguments->GetUInt64(names::OrdinalId);
    record.updateUsn = arguments->GetUInt64(names::Usn);
    record.title = arguments->GetString(names::Title);
    record.description = arguments->GetString(names::Description);
    record.updateTime = arguments->GetDateTime(names::UpdateTimeUtc);
    record.object = arguments->GetString(names::Object);
    record.startTime = arguments->GetDateTime(names::StartTimeUtc);
    record.cookie = arguments->GetString(names::Cookie);
    return record;
}
catch (std::exception& cause)
{
    exc::RegenTraceExc("%1: Failed to unserial from mivo", RecordName, cause);
}

STaskLogRecord STaskLogRecord::FromXml(const xmlpp::CXmlNode& node)
try
{
    STaskLogRecord record;
    record.status = severityOf(std::string(node.GetAttribute(names::Status)));
    record.ordinalId = node.GetUint64Attribute(names::OrdinalId);
    record.updateUsn = node.GetUint64Attribute(names::UpdateUsn);
    record.title = node.GetAttribute(names::Title);
    record.description = node.GetAttribute(names::Description);
    record.updateTime = node.GetDateTimeAttribute(names::UpdateTime, DateFormat, true);
    record.object = node.GetAttribute(names::Object);
    record.startTime = node.GetDateTimeAttribute(names::StartTime, DateFormat, true);
    record.cookie = node.GetAttribute(names::Cookie);
    return record;
}
catch (std::exception& cause)
{
    exc::RegenTraceExc("%1: Failed to unserial from xml.", RecordName, cause);
}

} // namespace zelplatform::model
