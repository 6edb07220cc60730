#include <zelmodel/sessions/job_session_details.h>

#include <zelmodel/zelmodel_log.h>
#include <zelplatform/exc/exc.h>
#include <zelplatform/util/util.h>
#include <zelplatform/xmlpp/xml_document.h>

namespace zelplatform::model
{
namespace
{

constexpr const char* ReadFailed = "Failed to deserialize session details.";

JobSessionDetails readDetails(const xmlpp::CXmlNode& node)
{
    using Names = JobSessionDetails;
    JobSessionDetails details;
    details.repositoryName = node.GetAttribute(Names::m_xml_RepoName);
    details.backupType = OibAlgorithm::fromStr(std::string(node.GetAttribute(Names::m_xml_BackupType)));
    details.repositoryFreeSpace = node.GetInt64Attribute(Names::m_xml_RepoFreeSpace);
    details.repositoryTotalSpace = node.GetInt64Attribute(Names::m_xml_RepoTotalSpace);
    details.isJobAwaitingForRetry = util::str_to_bool(node.GetAttribute(Names::m_xml_IsJobAwaitingForRetry));
    details.initialRetriesNumber = node.GetUint64Attribute(Names::m_xml_InitialRetriesNumber);
    details.currentAttemptNumber = node.GetUint64Attribute(Names::m_xml_CurrentAttemptNumber);
    if (node.HasAttribute(Names::m_xml_OibId))
        details.restorePointId = node.GetGuidAttribute(Names::m_xml_OibId);
    return details;
}

} // namespace

std::string JobSessionDetails::toXmlStr() const
{
    xmlpp::CXmlDocument document;
    auto node = document.AddRootNode(m_xml_Details);
    node.SetAttribute(m_xml_RepoName, repositoryName);
    node.SetAttribute(m_xml_BackupType, OibAlgorithm::toStr(backupType));
    node.SetAttribute(m_xml_OibId, util::toStr(restorePointId));
    node.SetAttribute(m_xml_RepoFreeSpace, util::toStr(repositoryFreeSpace));
    node.SetAttribute(m_xml_RepoTotalSpace, util::toStr(repositoryTotalSpace));
    node.SetAttribute(m_xml_IsJobAwaitingForRetry, util::toStr(isJobAwaitingForRetry));
    node.SetAttribute(m_xml_InitialRetriesNumber, util::toStr(initialRetriesNumber));
    node.SetAttribute(m_xml_CurrentAttemptNumber, util::toStr(currentAttemptNumber));
    return document.Serialize();
}

JobSessionDetails JobSessionDetails::fromXmlStr(const std::string& text)
try
{
    const auto document = xmlpp::CXmlDocument::Unserialize(text);
    return readDetails(document.ToNode().GetFirstChildNode(m_xml_Details));
}
catch (std::exception& cause)
{
    zelmodel_log.err("Failed to deserialize session details string: [%1].", text, cause);
    exc::RegenTraceExc(ReadFailed, cause);
}

JobSessionDetails JobSessionDetails::fromXmlNode(const xmlpp::CXmlNode& root)
try
{
    return readDetails(root);
}
catch (std::exception& cause)
{
    exc::RegenTraceExc(ReadFailed, cause);
}

} // namespace zelplatform::model
