#include <zelmodel/sessions.h>
#include <zelplatform/util/util.h>

#include "assigning.h"
#include "samples.h"

namespace zelmodel_test
{
namespace
{

using namespace zelplatform::model;

JobSessionDetails details()
{
    JobSessionDetails made;
    made.repositoryName = longText("repository");
    made.currentAttemptNumber = 3;
    return made;
}

SMountSessionDetails mount()
{
    return {longText("/mnt"), guid::guid_t()};
}

STaskLogRecord record()
{
    STaskLogRecord made;
    made.status = longText("status");
    made.title = longText("title");
    made.description = longText("description");
    made.object = longText("object");
    made.cookie = longText("cookie");
    return made;
}

STaskLogRecord otherRecord()
{
    auto made = record();
    made.status = longText("other") + longText();
    made.ordinalId = 7;
    made.cookie = longText("other") + longText();
    return made;
}

std::string tellRecord(const STaskLogRecord& made)
{
    return util::toStr(made.ordinalId) + made.status + made.title + made.description + made.object + made.cookie;
}

Operations detailsOperations()
{
    const Tell<JobSessionDetails> tell = [](const JobSessionDetails& made) { return made.toXmlStr(); };
    const auto other = [] {
        auto made = details();
        made.repositoryName = longText("other") + longText();
        made.initialRetriesNumber = 9;
        return made;
    };
    return asking<JobSessionDetails>("JobSessionDetails", details, {{"toXmlStr", tell}}) +
           assigningFields<JobSessionDetails>("JobSessionDetails", details, other, tell);
}

Operations mountOperations()
{
    const Tell<SMountSessionDetails> tell = [](const SMountSessionDetails& made) { return made.ToXmlStr(); };
    const auto other = [] { return SMountSessionDetails{longText("other") + longText(), guid::guid_t()}; };
    return asking<SMountSessionDetails>("SMountSessionDetails", mount, {{"ToXmlStr", tell}}) +
           assigningFields<SMountSessionDetails>("SMountSessionDetails", mount, other, tell);
}

Operations recordOperationsOfTasks()
{
    return asking<STaskLogRecord>(
               "STaskLogRecord", record,
               {{"ToMivo", [](const STaskLogRecord& made) { return made.ToMivo()->GetString("cookie"); }},
                {"FromMivo",
                 [](const STaskLogRecord& made) { return tellRecord(STaskLogRecord::FromMivo(made.ToMivo())); }}}) +
           assigningFields<STaskLogRecord>("STaskLogRecord", record, otherRecord, tellRecord);
}

std::vector<Question<Nothing>> questions()
{
    return {
        {"SJobSessionProgressDetails.ToXml", [](const Nothing&) { return SJobSessionProgressDetails().ToXml(); }},
        {"SJobSessionProgressDetails.CreateEmptyXml",
         [](const Nothing&) { return SJobSessionProgressDetails::CreateEmptyXml(); }},
        {"SBackupJobState.ToXmlString", [](const Nothing&) { return SBackupJobState{7}.ToXmlString(); }},
        {"ISessionLogWriter.CreateMessageTypes",
         [](const Nothing&) { return ISessionLogWriter::CreateMessageTypes().at(ISessionLogWriter::Processing); }},
        {"ISessionLogWriter.s_msgTypes",
         [](const Nothing&) { return ISessionLogWriter::s_msgTypes().at(ISessionLogWriter::Error); }},
        {"CJobFilterObject",
         [](const Nothing&) {
             const CJobFilterObject filter(EJobFilterObject::MountPoint);
             filter.CheckUnknown();
             return filter.GetUserFriendlyStr();
         }},
        {"EApplicationJobFilterType.ToUserFriendlyStr",
         [](const Nothing&) {
             return EApplicationJobFilterType::ToUserFriendlyStr(EApplicationJobFilterType::PostgresDb);
         }},
    };
}

} // namespace

Operations sessionOperations()
{
    return detailsOperations() + mountOperations() + recordOperationsOfTasks() + asking("sessions", questions());
}

} // namespace zelmodel_test
