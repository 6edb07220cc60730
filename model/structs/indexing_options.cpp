#include <zelmodel/structs/indexing_options.h>

#include <zelplatform/exc/exc.h>
#include <zelplatform/util/util.h>
#include <zelplatform/xmlpp/xml_undo.h>

#include "detail/enum_rows.h"
#include "detail/job_names.h"
#include "detail/optional_attribute.h"

namespace zelplatform::model::structs
{
namespace
{

namespace names = detail::job_names;

constexpr auto Names = detail::enumRows<EIndexingType::type>({
    {EIndexingType::IsOff, "IsOff"},
    {EIndexingType::IndexAll, "IndexAll"},
    {EIndexingType::IndexOnly, "IndexOnly"},
    {EIndexingType::IndexExcept, "IndexExcept"},
});

constexpr auto LogTexts = detail::enumRows<EIndexingType::type>({
    {EIndexingType::IsOff, "File system indexing is disabled"},
    {EIndexingType::IndexAll, "Index all files and directories selected for backup"},
    {EIndexingType::IndexOnly, "Index only selected files and directories the following folders:"},
    {EIndexingType::IndexExcept, "Index all files and directories but selected the following folders:"},
});

bool hasFolders(EIndexingType::type type) noexcept
{
    return type == EIndexingType::IndexOnly || type == EIndexingType::IndexExcept;
}

// What readers from before the "Indexing" element look for.
const char* legacyAttribute(EIndexingType::type type) noexcept
{
    switch (type)
    {
    case EIndexingType::IndexOnly: return names::IndexOnly;
    case EIndexingType::IndexExcept: return names::IndexExcept;
    default: return names::IndexAll;
    }
}

SIndexingOptions readLegacyAttributes(const xmlpp::CXmlNode& owner)
{
    if (const auto folders = owner.FindAttribute(names::IndexExcept))
        return {EIndexingType::IndexExcept, std::string(*folders)};
    if (const auto folders = owner.FindAttribute(names::IndexOnly))
        return {EIndexingType::IndexOnly, std::string(*folders)};
    bool isAll = false;
    detail::readIfPresent(owner, names::IndexAll, isAll);
    return {isAll ? EIndexingType::IndexAll : EIndexingType::IsOff, {}};
}

} // namespace

std::string EIndexingType::ToStr(type value)
{
    if (const auto text = detail::findText(Names, value))
        return std::string(*text);
    throw exc::CRuntimeExc("Unable to convert EIndexingType::type [%1] to string.", util::toStr(value));
}

EIndexingType::type EIndexingType::FromStr(const std::string& text)
{
    if (const auto value = detail::findValue(Names, text))
        return *value;
    throw exc::CRuntimeExc("Unable to convert string [%1] to EIndexingType::type.", text);
}

std::string SIndexingOptions::ToLogStr() const
{
    const auto text = detail::findText(LogTexts, type);
    if (!text)
        throw exc::CRuntimeExc("Unknown type of indexing [%1].", util::toStr(type));
    return std::string(*text) + (hasFolders(type) ? folders : std::string());
}

void SIndexingOptions::ToXml(xmlpp::CXmlNode& owner) const
try
{
    if (type == EIndexingType::IsOff)
        return;
    const auto typeName = EIndexingType::ToStr(type);
    const char* const attributes[] = {legacyAttribute(type)};
    const xmlpp::CXmlUndo undo(owner, attributes);
    owner.SetAttribute(attributes[0], hasFolders(type) ? folders : util::toStr(true));
    auto node = owner.AddNode(names::Indexing);
    node.SetUint64Attribute(names::Version, s_version);
    node.SetAttribute(names::Type, typeName);
    node.SetAttribute(names::Folders, folders);
}
catch (std::exception& cause)
{
    exc::RegenTraceExc("IndexingOptions: Failed to serialize to Xml.", cause);
}

SIndexingOptions SIndexingOptions::FromXml(const xmlpp::CXmlNode& owner)
try
{
    const auto node = owner.FindChildNode(names::Indexing);
    if (!node)
        return readLegacyAttributes(owner);
    unsigned long version = s_version;
    detail::readIfPresent(*node, names::Version, version);
    if (version > s_version)
        throw exc::CRuntimeExc("Unknown version: [%1].", util::toStr(version));
    const auto indexingType = EIndexingType::FromStr(std::string(node->GetAttribute(names::Type)));
    return {indexingType, std::string(node->GetAttribute(names::Folders))};
}
catch (std::exception& cause)
{
    exc::RegenTraceExc("IndexingOptions: Failed to deserialize from Xml.", cause);
}

} // namespace zelplatform::model::structs
