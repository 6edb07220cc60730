#pragma once

#include <cstdint>
#include <string>

#include <zelmodel/export.h>
#include <zelplatform/xmlpp/xml_node.h>

namespace zelplatform::model::structs
{

// The window kinds of this namespace have an enumerator of the same name; nothing is hidden that is meant here.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wshadow"

/// By what archived redo logs are truncated.
struct ZELMODEL_API EArchivedLogsTruncationMode
{
    enum type : std::int32_t
    {
        Disabled = 0,
        ByAge = 1,
        BySize = 2
    };

    /// Throws "Failed to convert EArchivedLogsTruncationMode::type to string ...".
    static std::string ToString(type value);

    /// Compares exactly; throws "Failed to convert string to EArchivedLogsTruncationMode::type ...".
    static type FromString(const std::string& text);
};

#pragma GCC diagnostic pop

/// When archived redo logs of an Oracle database are truncated. Reading does not check; callers Validate.
struct ZELMODEL_API SOracleArchivedLogsTruncationConfig
{
    /// What the logs are measured by.
    EArchivedLogsTruncationMode::type mode = EArchivedLogsTruncationMode::Disabled;

    /// In gigabytes, at most 999.
    unsigned long sizeGB = 0;

    /// In hours, at most 999.
    unsigned long lifetimeHours = 0;

    /// The upper bounds hold in every mode, zero is refused for the active one alone: on purpose. Throws what is wrong.
    void Validate() const;

    /// Sets the three attributes of a "LogsTruncateConfig" element.
    void ToXml(xmlpp::CXmlNode& node) const;

    /// Reads a "LogsTruncateConfig" element into this object: "mode" must be there, the others keep their value when
    /// they are not. Nothing changes when the read fails.
    void FromXml(const xmlpp::CXmlNode& node);

    friend bool operator==(const SOracleArchivedLogsTruncationConfig& a, const SOracleArchivedLogsTruncationConfig& b)
    {
        return a.mode == b.mode && a.sizeGB == b.sizeGB && a.lifetimeHours == b.lifetimeHours;
    }
    friend bool operator!=(const SOracleArchivedLogsTruncationConfig& a, const SOracleArchivedLogsTruncationConfig& b)
    {
        return !(a == b);
    }
};

} // namespace zelplatform::model::structs
