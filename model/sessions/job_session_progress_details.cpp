#include <zelmodel/sessions/job_session_progress_details.h>

#include <tuple>

#include <zelplatform/exc/exc.h>
#include <zelplatform/util/util.h>
#include <zelplatform/xmlpp/xml_document.h>

#include "detail/optional_attribute.h"

namespace zelplatform::model
{
namespace
{

constexpr const char* ReadFailed = "Failed to deserialize session progress details.";

unsigned long bytesOf(const CSize& size) noexcept
{
    return size;
}

void readSizeIfPresent(const xmlpp::CXmlNode& node, const char* name, CSize& size)
{
    unsigned long bytes = 0;
    detail::readIfPresent(node, name, bytes);
    size = CSize(bytes);
}

std::int32_t readLoad(const xmlpp::CXmlNode& node, const char* name)
{
    return util::safe_cast<std::int32_t>(node.GetInt64Attribute(name));
}

SJobSessionProgressDetails readProgress(const xmlpp::CXmlNode& node)
{
    using Names = SJobSessionProgressDetails;
    SJobSessionProgressDetails details;
    readSizeIfPresent(node, Names::m_xml_TotalSize, details.totalSize);
    readSizeIfPresent(node, Names::m_xml_TotalUsedSize, details.totalUsedSize);
    details.processedDataSize = CSize(node.GetUint64Attribute(Names::m_xml_ProcessedDataSize));
    details.readDataSize = CSize(node.GetUint64Attribute(Names::m_xml_ReadDataSize));
    details.transferredDataSize = CSize(node.GetUint64Attribute(Names::m_xml_TransferredDataSize));
    details.processingSpeed = CSize(node.GetUint64Attribute(Names::m_xml_ProcessingSpeed));
    details.sourceReadLoad = readLoad(node, Names::m_xml_SourceReadLoad);
    details.sourceProcessingLoad = readLoad(node, Names::m_xml_SourceProcessingLoad);
    details.networkLoad = readLoad(node, Names::m_xml_NetworkLoad);
    details.targetWriteLoad = readLoad(node, Names::m_xml_TargetWriteLoad);
    detail::readIfPresent(node, Names::m_xml_NetworkThrottlingEnabled, details.networkThrottlingEnabled);
    detail::readIfPresent(node, Names::m_xml_RepositoryThrottlingEnabled, details.repositoryThrottlingEnabled);
    return details;
}

auto fieldsOf(const SJobSessionProgressDetails& details) noexcept
{
    const auto& [totalSize, totalUsedSize, processed, read, transferred, speed, sourceRead, sourceProcessing, network,
                 targetWrite, networkThrottling, repositoryThrottling] = details;
    return std::make_tuple(bytesOf(totalSize), bytesOf(totalUsedSize), bytesOf(processed), bytesOf(read),
                           bytesOf(transferred), bytesOf(speed), sourceRead, sourceProcessing, network, targetWrite,
                           networkThrottling, repositoryThrottling);
}

std::string makeEmptyXml()
try
{
    return SJobSessionProgressDetails().ToXml();
}
catch (std::exception& cause)
{
    exc::RegenTraceExc("Failed to create empty xml.", cause);
}

} // namespace

bool SJobSessionProgressDetails::IsEmpty() const noexcept
{
    return bytesOf(processedDataSize) == 0 && bytesOf(readDataSize) == 0 && bytesOf(transferredDataSize) == 0 &&
           bytesOf(processingSpeed) == 0;
}

std::string SJobSessionProgressDetails::ToXml() const
{
    xmlpp::CXmlDocument document;
    auto node = document.AddRootNode(m_xml_ProgressDetails);
    node.SetUint64Attribute(m_xml_TotalSize, totalSize);
    node.SetUint64Attribute(m_xml_TotalUsedSize, totalUsedSize);
    node.SetUint64Attribute(m_xml_ProcessedDataSize, processedDataSize);
    node.SetUint64Attribute(m_xml_ReadDataSize, readDataSize);
    node.SetUint64Attribute(m_xml_TransferredDataSize, transferredDataSize);
    node.SetUint64Attribute(m_xml_ProcessingSpeed, processingSpeed);
    node.SetInt64Attribute(m_xml_SourceReadLoad, sourceReadLoad);
    node.SetInt64Attribute(m_xml_SourceProcessingLoad, sourceProcessingLoad);
    node.SetInt64Attribute(m_xml_NetworkLoad, networkLoad);
    node.SetInt64Attribute(m_xml_TargetWriteLoad, targetWriteLoad);
    node.SetBoolAttribute(m_xml_NetworkThrottlingEnabled, networkThrottlingEnabled);
    node.SetBoolAttribute(m_xml_RepositoryThrottlingEnabled, repositoryThrottlingEnabled);
    return document.Serialize();
}

SJobSessionProgressDetails SJobSessionProgressDetails::FromXml(const std::string& text)
try
{
    const auto document = xmlpp::CXmlDocument::Unserialize(text);
    return readProgress(document.ToNode().GetFirstChildNode(m_xml_ProgressDetails));
}
catch (std::exception& cause)
{
    exc::RegenTraceExc(ReadFailed, cause);
}

SJobSessionProgressDetails SJobSessionProgressDetails::FromXmlNode(const xmlpp::CXmlNode& root)
try
{
    return readProgress(root);
}
catch (std::exception& cause)
{
    exc::RegenTraceExc(ReadFailed, cause);
}

std::string SJobSessionProgressDetails::CreateEmptyXml()
{
    static const std::string text = makeEmptyXml();
    return text;
}

bool operator==(const SJobSessionProgressDetails& a, const SJobSessionProgressDetails& b) noexcept
{
    return fieldsOf(a) == fieldsOf(b);
}

} // namespace zelplatform::model
