#include "record.h"

#include <utility>

#include <zelplatform/exc/exc.h>
#include <zelplatform/xmlpp/xml_document.h>

namespace edit
{
namespace
{

namespace model = zelplatform::model;
using describe::EDocumentKind;
using model::SBackupJobOptions;
using model::structs::BackupWindow;
using model::structs::CScheduleOptions;
using model::structs::DayHourMatrix;

std::string textOf(const JobDraft& draft)
{
    auto job = draft.options;
    job.schedule = draft.schedule.build();
    return job.toString();
}

std::string textOf(const ScheduleDraft& draft)
{
    return draft.build().ToXmlString();
}

std::string textOf(const WindowDraft& draft)
{
    const xmlpp::CXmlDocument document;
    auto top = document.ToNode();
    draft.build().toXml(top);
    return document.Serialize();
}

std::string textOf(const GfsDraft& draft)
{
    return draft.policy.toXmlString(draft.isShortNames);
}

describe::Node readBack(const std::string& text)
try
{
    return describe::Document(text).describe();
}
catch (const std::exception& cause)
{
    exc::RegenTraceExc("The document would not be accepted.", cause);
}

[[noreturn]] void refuseKind(EDocumentKind kind)
{
    if (kind == EDocumentKind::ServerJobOptions)
        throw exc::CRuntimeExc("The document is %1, which cannot be changed by this command. Its twin in the "
                               "agent's form can be.",
                               nameOf(kind));
    throw exc::CRuntimeExc("The document is %1, which cannot be changed by this command. It changes %2.", nameOf(kind),
                           nameOf(EDocumentKind::AgentJobOptions) + ", " + nameOf(EDocumentKind::ScheduleOptions) +
                               ", " + nameOf(EDocumentKind::ScheduleWindow) + " and " +
                               nameOf(EDocumentKind::GfsPolicy));
}

} // namespace

JobDraft::JobDraft(SBackupJobOptions job) : options(std::move(job)), schedule(options.schedule) {}

Record newRecord(EDocumentKind kind)
{
    switch (kind)
    {
    case EDocumentKind::AgentJobOptions: return JobDraft(SBackupJobOptions(model::KbBlockSize::KbBlockSize1024));
    case EDocumentKind::ScheduleOptions: return ScheduleDraft(CScheduleOptions());
    case EDocumentKind::ScheduleWindow: return WindowDraft(BackupWindow(DayHourMatrix(model::structs::Disabled), 0));
    case EDocumentKind::GfsPolicy: return GfsDraft();
    default: refuseKind(kind);
    }
}

Record readRecord(const describe::Document& document)
{
    const auto kind = document.kind();
    switch (kind)
    {
    case EDocumentKind::AgentJobOptions: return JobDraft(document.readJobOptions());
    case EDocumentKind::ScheduleOptions: return ScheduleDraft(document.readSchedule());
    case EDocumentKind::ScheduleWindow: return WindowDraft(*document.readWindow());
    case EDocumentKind::GfsPolicy:
    {
        bool isShortNames = true;
        const auto policy = document.readGfsPolicy(isShortNames);
        return GfsDraft{policy, isShortNames};
    }
    default: refuseKind(kind);
    }
}

WrittenDocument writeRecord(const Record& record)
{
    auto text = std::visit([](const auto& draft) { return textOf(draft); }, record);
    auto tree = readBack(text);
    return {std::move(text), std::move(tree)};
}

} // namespace edit
