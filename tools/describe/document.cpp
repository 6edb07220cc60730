#include "document.h"

#include <array>
#include <optional>
#include <string_view>

#include <zelmodel/backup_job_options.h>
#include <zelmodel/structs/gfs/gfs_policy_info.h>
#include <zelplatform/exc/exc.h>

#include "document_names.h"
#include "visitors.h"

namespace describe
{
namespace
{

using zelplatform::model::SBackupJobOptions;
using zelplatform::model::structs::BackupWindow;
using zelplatform::model::structs::CScheduleOptions;
using zelplatform::model::structs::gfs::SGfsPolicyInfo;
using zelplatform::model::structs::gfs::SGfsWeeklyPolicyInfoTraits;
using zelplatform::model::structs::gfs::SMonthlyGfsPolicyInfoTraits;
using zelplatform::model::structs::gfs::SYearlyGfsPolicyInfoTraits;

struct KindRow
{
    const char* root;
    EDocumentKind kind;
    const char* name;
};

constexpr std::array<KindRow, 8> Kinds{{
    {job_names::JobOptionsRoot, EDocumentKind::ServerJobOptions, "job options in the managing server's form"},
    {job_names::JobOptions, EDocumentKind::AgentJobOptions, "job options in the agent's form"},
    {schedule_names::ScheduleOptions, EDocumentKind::ScheduleOptions, "schedule options"},
    {schedule_names::Schedule, EDocumentKind::LoneSchedule, "a schedule without a root of its own"},
    {schedule_names::ActiveFullOptions, EDocumentKind::LoneSchedule, "a schedule without a root of its own"},
    {schedule_names::SyntheticFullOptions, EDocumentKind::LoneSchedule, "a schedule without a root of its own"},
    {BackupWindow::BackupWindowTag, EDocumentKind::ScheduleWindow, "a backup window"},
    {job_names::GfsPolicy, EDocumentKind::GfsPolicy, "a GFS policy"},
}};

std::string listKnownRoots()
{
    std::string text;
    for (const auto& row : Kinds)
        text += (text.empty() ? "" : ", ") + std::string(row.root);
    return text;
}

bool isOneOf(EDocumentKind kind, EDocumentKind a, EDocumentKind b)
{
    return kind == a || kind == b;
}

bool usesShortNames(const xmlpp::CXmlNode& policy)
{
    return !policy.HasNode(SGfsWeeklyPolicyInfoTraits::LongElement) &&
           !policy.HasNode(SMonthlyGfsPolicyInfoTraits::LongElement) &&
           !policy.HasNode(SYearlyGfsPolicyInfoTraits::LongElement);
}

// The refusal of a whole record comes after its last part was read, and would be told of that part's line.
void pointAtRuleOfWholeRecord(const xmlpp::CXmlNode& top)
{
    try
    {
        SBackupJobOptions job(zelplatform::model::KbBlockSize::KbBlockSize1024);
        if (SBackupJobOptions::tryParseQorJobOptions(top, job))
            top.GetFirstChildNode(job_names::JobOptionsRoot).HasNode(job_names::RetainCycles);
        else
        {
            SBackupJobOptions::parseKivJobOptions(top);
            top.GetFirstChildNode(job_names::JobOptions).HasAttribute(job_names::MaxPoints);
        }
    }
    catch (const std::exception&)
    {
        return;
    }
}

SBackupJobOptions readJobOptions(const xmlpp::CXmlNode& top)
{
    try
    {
        return SBackupJobOptions::fromXml(top);
    }
    catch (const std::exception&)
    {
        pointAtRuleOfWholeRecord(top);
        throw;
    }
}

} // namespace

std::string nameOf(EDocumentKind kind)
{
    for (const auto& row : Kinds)
    {
        if (row.kind == kind)
            return row.name;
    }
    return {};
}

Document::Document(const std::string& text) : m_xml(xmlpp::CXmlDocument::Unserialize(text)) {}

EDocumentKind Document::kind() const
{
    const auto top = m_xml.ToNode();
    for (const auto* first : {job_names::JobOptionsRoot, job_names::JobOptions})
    {
        if (top.HasNode(first))
            return first == job_names::JobOptionsRoot ? EDocumentKind::ServerJobOptions
                                                      : EDocumentKind::AgentJobOptions;
    }
    const auto root = m_xml.GetRootNode().GetName();
    top.HasNode(root);
    for (const auto& row : Kinds)
    {
        if (root == row.root)
            return row.kind;
    }
    throw exc::CRuntimeExc("The element [%1] begins no document that is known (known are %2).", root, listKnownRoots());
}

Node Document::describe() const
{
    const auto top = m_xml.ToNode();
    const auto found = kind();
    switch (found)
    {
    case EDocumentKind::AgentJobOptions:
    case EDocumentKind::ServerJobOptions:
    {
        const bool isServerForm = found == EDocumentKind::ServerJobOptions;
        const auto* root = isServerForm ? job_names::JobOptionsRoot : job_names::JobOptions;
        return visitJobOptions(readJobOptions(top), Place(m_xml, top.GetFirstChildNode(root)), isServerForm);
    }
    case EDocumentKind::ScheduleOptions: return visitSchedule(readSchedule(), Place(m_xml, m_xml.GetRootNode()));
    case EDocumentKind::LoneSchedule: return visitSchedule(readSchedule(), Place(m_xml, top));
    case EDocumentKind::ScheduleWindow: return visitWindow(*readWindow(), Place(m_xml, m_xml.GetRootNode()));
    case EDocumentKind::GfsPolicy: break;
    }
    const auto root = m_xml.GetRootNode();
    const bool isShortNames = usesShortNames(root);
    return visitGfsPolicy(SGfsPolicyInfo::fromXml(top, isShortNames), Place(m_xml, root), isShortNames);
}

CScheduleOptions Document::readSchedule() const
{
    const auto found = kind();
    if (isOneOf(found, EDocumentKind::AgentJobOptions, EDocumentKind::ServerJobOptions))
        return readJobOptions(m_xml.ToNode()).schedule;
    if (found == EDocumentKind::ScheduleOptions)
        return CScheduleOptions::FromXml(m_xml.GetRootNode());
    if (found == EDocumentKind::LoneSchedule)
        return CScheduleOptions::FromXml(m_xml.ToNode());
    throw exc::CRuntimeExc("The document is %1, which has no schedule.", nameOf(found));
}

std::shared_ptr<BackupWindow> Document::readWindow() const
{
    const auto found = kind();
    if (found != EDocumentKind::ScheduleWindow)
        throw exc::CRuntimeExc("The document is %1, not a backup window.", nameOf(found));
    return BackupWindow::fromXml(m_xml.ToNode());
}

} // namespace describe
