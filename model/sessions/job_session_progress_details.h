#pragma once

#include <cstdint>
#include <string>

#include <zelmodel/export.h>
#include <zelmodel/size/size.h>
#include <zelplatform/xmlpp/xml_node.h>

namespace zelplatform::model
{

/// How far a session has come and where it waits, document "ProgressDetails". Sizes are in bytes, the speed in bytes
/// per second, loads in percent.
struct ZELMODEL_API SJobSessionProgressDetails
{
    /// The name of the element and those of its attributes.
    static constexpr const char* m_xml_ProgressDetails = "ProgressDetails";
    static constexpr const char* m_xml_TotalSize = "total_size";
    static constexpr const char* m_xml_TotalUsedSize = "total_used_size";
    static constexpr const char* m_xml_ProcessedDataSize = "processed_data_size_bytes";
    static constexpr const char* m_xml_ReadDataSize = "read_data_size_bytes";
    static constexpr const char* m_xml_TransferredDataSize = "transferred_data_size_bytes";
    static constexpr const char* m_xml_ProcessingSpeed = "processing_speed";
    static constexpr const char* m_xml_SourceReadLoad = "source_read_load";
    static constexpr const char* m_xml_SourceProcessingLoad = "source_processing_load";
    static constexpr const char* m_xml_NetworkLoad = "network_load";
    static constexpr const char* m_xml_TargetWriteLoad = "target_write_load";
    static constexpr const char* m_xml_NetworkThrottlingEnabled = "network_throttling_enabled";
    static constexpr const char* m_xml_RepositoryThrottlingEnabled = "repository_throttling_enabled";

    /// Bytes of the source: all, and those in use.
    CSize totalSize{0};
    CSize totalUsedSize{0};

    /// Bytes so far: looked at, read from the source, sent to the target.
    CSize processedDataSize{0};
    CSize readDataSize{0};
    CSize transferredDataSize{0};

    /// Bytes per second.
    CSize processingSpeed{0};

    /// How busy each stage is, in percent; any number of 32 bits is carried.
    std::int32_t sourceReadLoad = 0;
    std::int32_t sourceProcessingLoad = 0;
    std::int32_t networkLoad = 0;
    std::int32_t targetWriteLoad = 0;

    /// Whether the network or the repository is throttled.
    bool networkThrottlingEnabled = false;
    bool repositoryThrottlingEnabled = false;

    /// True when the processed, read and transferred sizes and the speed are 0, whatever the rest says.
    bool IsEmpty() const noexcept;

    /// The document as text.
    std::string ToXml() const;

    /// The two totals and the two flags may be missing. Throws "Failed to deserialize session progress details. ...".
    static SJobSessionProgressDetails FromXml(const std::string& text);

    /// Reads the element of such a document, whose name is not looked at, in the same way.
    static SJobSessionProgressDetails FromXmlNode(const xmlpp::CXmlNode& root);

    /// The text of an object without progress, made once.
    static std::string CreateEmptyXml();
};

/// Compares field by field.
ZELMODEL_API bool operator==(const SJobSessionProgressDetails& a, const SJobSessionProgressDetails& b) noexcept;
inline bool operator!=(const SJobSessionProgressDetails& a, const SJobSessionProgressDetails& b) noexcept
{
    return !(a == b);
}

} // namespace zelplatform::model
