#include <zelmodel/sessions.h>
#include <zelplatform/util/util.h>

#include "reader.h"
#include "samples.h"
#include "xml_forms.h"

namespace readers
{
namespace
{

using namespace zelplatform::model;

constexpr const char* BagKeys[] = {"status", "title", "description", "object", "cookie"};

// Everything that the arguments hold; a time without a zone is told in its own.
std::string tell(const STaskLogRecord& record)
{
    const auto arguments = record.ToMivo();
    std::string told;
    for (const auto* key : BagKeys)
        told += arguments->GetString(key) + '\n';
    for (const auto* key : {"ordinalId", "usn"})
        told += util::toStr(arguments->GetUInt64(key)) + '\n';
    for (const auto* key : {"updateTimeUtc", "startTimeUtc"})
        told += util::toStr(arguments->GetDateTime(key).toUnixTime()) + '\n';
    return told;
}

// The texts of the bag, a line each, and a number and a time that they give.
std::string rewriteBag(const std::string& text)
{
    const auto bag = std::make_shared<mivo::CMivoCommandArgs>();
    const auto lines = util::str_split(text, "\n");
    for (std::size_t i = 0; i < lines.size() && i < std::size(BagKeys); ++i)
        bag->SetString(BagKeys[i], lines[i]);
    bag->SetUInt64("ordinalId", text.size());
    bag->SetUInt64("usn", lines.size());
    bag->SetDateTime("updateTimeUtc", datetime::CDateTime(static_cast<long>(text.size()), true));
    bag->SetDateTime("startTimeUtc", datetime::CDateTime(true));
    return tell(STaskLogRecord::FromMivo(bag));
}

std::string tellLine(const std::string& line)
{
    CDateTimeEx time;
    guid::guid_t id;
    auto severity = ISessionLogWriter::Info;
    std::string message;
    if (!CSessionLogLineParser::Parse(line, time, id, severity, message))
        return "no record";
    return time.getUtcTime().toStdString("%Y-%m-%d %H:%M:%S") + " UTC " + id.ToAStr() + ' ' +
           ISessionLogWriter::SeverityToString(severity) + ' ' + message;
}

std::string rewriteTime(const std::string& text)
{
    return CSessionLogLineParser::LogTimeStrToTime(text).getUtcTime().toStdString("%Y-%m-%d %H:%M:%S");
}

} // namespace

Readers sessionReaders()
{
    const auto details = goldenFolder("Details") + goldenFiles({"legacy/session_details_without_point"});
    const auto progress = goldenFolder("ProgressDetails") + goldenFiles({"legacy/progress_required_only"});
    const auto mounts = goldenFolder("MountSessionDetails");
    const auto states = goldenFolder("BackupJobState") + goldenFiles({"legacy/backup_job_state_version_1"});
    const std::string line = "2024-03-07 13:05:09 UTC 6b1f2c3d-0a1b-4c2d-8e3f-0123456789ab warn A block was read twice";
    return {
        {"JobSessionDetails.fromXmlStr",
         [](const std::string& text) { return JobSessionDetails::fromXmlStr(text).toXmlStr(); }, details},
        {"JobSessionDetails.fromXmlNode",
         [](const std::string& text) { return JobSessionDetails::fromXmlNode(rootOf(text)).toXmlStr(); }, details},
        {"SJobSessionProgressDetails.FromXml",
         [](const std::string& text) { return SJobSessionProgressDetails::FromXml(text).ToXml(); }, progress},
        {"SJobSessionProgressDetails.FromXmlNode",
         [](const std::string& text) { return SJobSessionProgressDetails::FromXmlNode(rootOf(text)).ToXml(); },
         progress},
        {"SMountSessionDetails.FromXmlStr",
         [](const std::string& text) { return SMountSessionDetails::FromXmlStr(CUtf8String(text)).ToXmlStr(); },
         mounts},
        {"SMountSessionDetails.FromXmlNode",
         [](const std::string& text) { return SMountSessionDetails::FromXmlNode(rootOf(text)).ToXmlStr(); }, mounts},
        {"SBackupJobState.FromXmlStr",
         [](const std::string& text) { return SBackupJobState::FromXmlStr(text).ToXmlString(); }, states},
        {"SBackupJobState.FromXmlNode",
         [](const std::string& text) { return SBackupJobState::FromXmlNode(rootOf(text)).ToXmlString(); }, states},
        {"STaskLogRecord.FromXml", [](const std::string& text) { return tell(STaskLogRecord::FromXml(rootOf(text))); },
         goldenFolder("Record"), EWritten::Words},
        {"STaskLogRecord.FromMivo", rewriteBag, {"ESucceeded\nTitle\nDescription\n/srv\nc-17"}, EWritten::Words},
        {"CSessionLogLineParser.Parse", tellLine, {line}},
        {"CSessionLogLineParser.LogTimeStrToTime", rewriteTime, {"2024-03-07 13:05:09", "1970-01-01 00:00:00 UTC"}},
    };
}

} // namespace readers
