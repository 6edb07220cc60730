#pragma once

#include <cstdint>
#include <string>

#include <zelmodel/export.h>
#include <zelplatform/xmlpp/xml_node.h>

namespace zelplatform::model::structs
{

/// Which files of a backup are indexed.
struct ZELMODEL_API EIndexingType
{
    enum type : std::int32_t
    {
        IsOff = 0,
        IndexAll = 1,
        IndexOnly = 2,
        IndexExcept = 3
    };

    /// Throws "Unable to convert EIndexingType::type [%1] to string.".
    static std::string ToStr(type value);

    /// Compares exactly; throws "Unable to convert string [%1] to EIndexingType::type.".
    static type FromStr(const std::string& text);
};

/// File indexing settings of a job. They are written into the owner's element, in the current form and in an attribute
/// that older readers know; indexing that is off writes nothing.
struct ZELMODEL_API SIndexingOptions
{
    /// The version that ToXml writes and the highest that FromXml reads.
    static constexpr unsigned long s_version = 2;

    /// Which files are indexed.
    EIndexingType::type type = EIndexingType::IsOff;

    /// The folders of IndexOnly and IndexExcept as one text; its inner form is the caller's.
    std::string folders;

    /// Throws "IndexingOptions: Failed to serialize to Xml. ..." for an unknown type.
    void ToXml(xmlpp::CXmlNode& owner) const;

    /// Reads the child "Indexing" or, without it, the older attributes "IndexExcept", "IndexOnly" and "IndexAll" in
    /// this order. Throws "IndexingOptions: Failed to deserialize from Xml. ...".
    static SIndexingOptions FromXml(const xmlpp::CXmlNode& owner);

    /// One sentence for logs; folders follow the colon directly. Throws "Unknown type of indexing [%1].".
    std::string ToLogStr() const;

    friend bool operator==(const SIndexingOptions& a, const SIndexingOptions& b)
    {
        return a.type == b.type && a.folders == b.folders;
    }
    friend bool operator!=(const SIndexingOptions& a, const SIndexingOptions& b) { return !(a == b); }
};

} // namespace zelplatform::model::structs
