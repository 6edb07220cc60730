#include "document.h"

#include <zelplatform/exc/exc.h>
#include <zelplatform/util/util.h>

#include "document_names.h"
#include "visitors.h"

namespace describe
{
namespace
{

namespace model = zelplatform::model;
namespace gfs = zelplatform::model::structs::gfs;
namespace structs = zelplatform::model::structs;
namespace transform = zelplatform::model::transform;

/// A document on its way to a visitor.
class Source
{
public:
    explicit Source(const xmlpp::CXmlDocument& xml) : m_xml(xml) {}

    xmlpp::CXmlNode top() const { return m_xml.ToNode(); }
    xmlpp::CXmlNode root() const { return m_xml.GetRootNode(); }

    Place topPlace() const { return Place(m_xml, top()); }
    Place rootPlace() const { return Place(m_xml, root()); }
    Place placeOf(const xmlpp::CXmlNode& node) const { return Place(m_xml, node); }

    /// The parent of an element that is the root or stands below it.
    xmlpp::CXmlNode parentOf(const char* element) const { return root().GetName() == element ? top() : root(); }

private:
    const xmlpp::CXmlDocument& m_xml;
};

bool isOneOf(EDocumentKind kind, EDocumentKind a, EDocumentKind b)
{
    return kind == a || kind == b;
}

// The refusal of a whole record comes after its last part was read, and would be told of that part's line.
void pointAtRuleOfWholeRecord(const xmlpp::CXmlNode& top)
{
    using model::SBackupJobOptions;
    const xmlpp::CLookupPause pause;
    try
    {
        SBackupJobOptions job(model::KbBlockSize::KbBlockSize1024);
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

model::SBackupJobOptions readJobOptionsAt(const xmlpp::CXmlNode& top)
{
    try
    {
        return model::SBackupJobOptions::fromXml(top);
    }
    catch (const std::exception&)
    {
        pointAtRuleOfWholeRecord(top);
        throw;
    }
}

Node describeJobOptions(const Source& source, bool isServerForm)
{
    const auto* root = isServerForm ? job_names::JobOptionsRoot : job_names::JobOptions;
    const auto top = source.top();
    return visitJobOptions(readJobOptionsAt(top), source.topPlace().child(root), isServerForm);
}

bool usesShortNames(const xmlpp::CXmlNode& policy)
{
    const xmlpp::CLookupPause pause;
    return !policy.HasNode(gfs::SGfsWeeklyPolicyInfoTraits::LongElement) &&
           !policy.HasNode(gfs::SMonthlyGfsPolicyInfoTraits::LongElement) &&
           !policy.HasNode(gfs::SYearlyGfsPolicyInfoTraits::LongElement);
}

Node describeLimitations(const Source& source)
{
    const auto parent = source.parentOf(repository_names::JobSettings);
    return visitRepositoryLimitations(structs::CRepositoryLimitationsSpec::FromXmlNode(parent),
                                      source.placeOf(parent).child(repository_names::JobSettings));
}

Node describeImmutability(const Source& source)
{
    const auto parent = source.parentOf(storage_names::ImmutabilitySettings);
    return visitImmutability(structs::SObjectStorageImmutabilitySettings::FromXml(parent),
                             source.placeOf(parent).child(storage_names::ImmutabilitySettings));
}

Node describeDirectImmutability(const Source& source)
{
    using structs::SDirectBackupImmutabilitySettings;
    const auto parent = source.parentOf(storage_names::DirectBackupImmutabilitySettings);
    return visitDirectImmutability(SDirectBackupImmutabilitySettings::FromXml(parent),
                                   source.placeOf(SDirectBackupImmutabilitySettings::GetXmlNode(parent)));
}

// The library only writes it.
structs::SSqlVariant readSqlVariant(const xmlpp::CXmlNode& root)
{
    structs::SSqlVariant variant;
    variant.type = util::fromStr<int>(root.GetAttribute(record_names::Type));
    variant.value = root.GetAttribute(record_names::Value);
    return variant;
}

} // namespace

Document::Document(const std::string& text) : m_xml(xmlpp::CXmlDocument::Unserialize(text)) {}

EDocumentKind Document::kind() const
{
    const xmlpp::CLookupPause pause;
    return kindOf(m_xml);
}

Node Document::describe() const
{
    const xmlpp::CLookupRecord record;
    auto tree = describeFields();
    const auto ignored = listIgnored(record.GetLookups());
    if (!ignored.empty())
        tree.children.push_back(describeIgnored(ignored));
    return tree;
}

std::vector<IgnoredPart> Document::listIgnored(const std::vector<xmlpp::SLookup>& lookups) const
{
    return findIgnored(enclosedElement().value_or(m_xml.ToNode()), lookups);
}

// The settings that other documents enclose: what stands around them is not for their reader.
std::optional<xmlpp::CXmlNode> Document::enclosedElement() const
{
    const xmlpp::CLookupPause pause;
    const Source source(m_xml);
    const auto enclosed = [&](const char* element) { return source.parentOf(element).FindChildNode(element); };
    switch (kind())
    {
    case EDocumentKind::RepositoryLimitations: return enclosed(repository_names::JobSettings);
    case EDocumentKind::Immutability: return enclosed(storage_names::ImmutabilitySettings);
    case EDocumentKind::DirectImmutability: return enclosed(storage_names::DirectBackupImmutabilitySettings);
    default: return std::nullopt;
    }
}

Node Document::describeFields() const
{
    const auto found = kind();
    const Source source(m_xml);
    const auto root = source.root();
    const auto place = source.rootPlace();
    switch (found)
    {
    case EDocumentKind::AgentJobOptions: return describeJobOptions(source, false);
    case EDocumentKind::ServerJobOptions: return describeJobOptions(source, true);
    case EDocumentKind::ScheduleOptions: return visitSchedule(readSchedule(), place);
    case EDocumentKind::LoneSchedule: return visitSchedule(readSchedule(), source.topPlace());
    case EDocumentKind::ScheduleWindow: return visitWindow(*readWindow(), place);
    case EDocumentKind::GfsPolicy:
    {
        bool isShortNames = true;
        const auto policy = readGfsPolicy(isShortNames);
        return visitGfsPolicy(policy, place, isShortNames);
    }
    case EDocumentKind::OracleConfig:
        return visitOracleConfig(structs::SApplicationProcessingOracleConfig::FromXmlNode(root), place);
    case EDocumentKind::PostgresConfig:
        return visitPostgresConfig(structs::SApplicationProcessingPostgresConfig::FromXmlNode(root), place);
    case EDocumentKind::RepositoryLimitations: return describeLimitations(source);
    case EDocumentKind::Immutability: return describeImmutability(source);
    case EDocumentKind::DirectImmutability: return describeDirectImmutability(source);
    case EDocumentKind::S3Params:
        return visitS3Params(structs::SAmazonS3SpecificParams::FromXmlNode(source.top()), place);
    case EDocumentKind::CloudContainer:
        return visitCloudContainer(structs::SExternalRepoCloudContainer::FromXmlNode(root), place);
    case EDocumentKind::SqlVariant: return visitSqlVariant(readSqlVariant(root), place);
    case EDocumentKind::SessionDetails: return visitSessionDetails(model::JobSessionDetails::fromXmlNode(root), place);
    case EDocumentKind::SessionProgress:
        return visitSessionProgress(model::SJobSessionProgressDetails::FromXmlNode(root), place);
    case EDocumentKind::TaskLogRecord: return visitTaskLogRecord(model::STaskLogRecord::FromXml(root), place);
    case EDocumentKind::MountSession: return visitMountSession(model::SMountSessionDetails::FromXmlNode(root), place);
    case EDocumentKind::JobState: return visitJobState(model::SBackupJobState::FromXmlNode(root), place);
    case EDocumentKind::DeletePointTransform:
        return visitDeletePointTransform(*transform::CTransformSpec::FromXmlNode(root), place);
    case EDocumentKind::SyntheticFullTransform:
        return visitSyntheticFullTransform(*transform::CCreateSyntheticFullSpec::FromXmlNode(root), place);
    case EDocumentKind::GfsSyntheticFullTransform: break;
    }
    return visitGfsSyntheticFullTransform(*transform::CCreateGfsSyntheticFullSpec::FromXmlNode(root), place);
}

model::SBackupJobOptions Document::readJobOptions() const
{
    const auto found = kind();
    if (!isOneOf(found, EDocumentKind::AgentJobOptions, EDocumentKind::ServerJobOptions))
        throw exc::CRuntimeExc("The document is %1, not job options.", nameOf(found));
    return readJobOptionsAt(m_xml.ToNode());
}

gfs::SGfsPolicyInfo Document::readGfsPolicy(bool& isShortNames) const
{
    const auto found = kind();
    if (found != EDocumentKind::GfsPolicy)
        throw exc::CRuntimeExc("The document is %1, not a GFS policy.", nameOf(found));
    isShortNames = usesShortNames(m_xml.GetRootNode());
    return gfs::SGfsPolicyInfo::fromXml(m_xml.ToNode(), isShortNames);
}

structs::CScheduleOptions Document::readSchedule() const
{
    const auto found = kind();
    if (isOneOf(found, EDocumentKind::AgentJobOptions, EDocumentKind::ServerJobOptions))
        return readJobOptions().schedule;
    if (found == EDocumentKind::ScheduleOptions)
        return structs::CScheduleOptions::FromXml(m_xml.GetRootNode());
    if (found == EDocumentKind::LoneSchedule)
        return structs::CScheduleOptions::FromXml(m_xml.ToNode());
    throw exc::CRuntimeExc("The document is %1, which has no schedule.", nameOf(found));
}

std::shared_ptr<structs::BackupWindow> Document::readWindow() const
{
    const auto found = kind();
    if (found != EDocumentKind::ScheduleWindow)
        throw exc::CRuntimeExc("The document is %1, not a backup window.", nameOf(found));
    return structs::BackupWindow::fromXml(m_xml.ToNode());
}

} // namespace describe
