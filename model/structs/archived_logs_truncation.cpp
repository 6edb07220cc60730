#include <zelmodel/structs/archived_logs_truncation.h>

#include <zelplatform/exc/exc.h>
#include <zelplatform/util/util.h>
#include <zelplatform/xmlpp/xml_undo.h>

#include "detail/application_names.h"
#include "detail/enum_rows.h"
#include "detail/optional_attribute.h"

namespace zelplatform::model::structs
{
namespace
{

namespace names = detail::application_names;

constexpr unsigned long Greatest = 999;

constexpr auto Names = detail::enumRows<EArchivedLogsTruncationMode::type>({
    {EArchivedLogsTruncationMode::Disabled, "Disabled"},
    {EArchivedLogsTruncationMode::ByAge, "ByAge"},
    {EArchivedLogsTruncationMode::BySize, "BySize"},
});

} // namespace

std::string EArchivedLogsTruncationMode::ToString(type value)
try
{
    if (const auto text = detail::findText(Names, value))
        return std::string(*text);
    throw exc::CRuntimeExc("Unknown EArchivedLogsTruncationMode::type: %1", util::toStr(value));
}
catch (std::exception& cause)
{
    exc::RegenTraceExc("Failed to convert EArchivedLogsTruncationMode::type to string", cause);
}

EArchivedLogsTruncationMode::type EArchivedLogsTruncationMode::FromString(const std::string& text)
try
{
    if (const auto value = detail::findValue(Names, text))
        return *value;
    throw exc::CRuntimeExc("Unknown string: %1", text);
}
catch (std::exception& cause)
{
    exc::RegenTraceExc("Failed to convert string to EArchivedLogsTruncationMode::type", cause);
}

void SOracleArchivedLogsTruncationConfig::Validate() const
{
    if (mode == EArchivedLogsTruncationMode::ByAge && lifetimeHours == 0)
        throw exc::CRuntimeExc("Logs 'age' value must be a positive integer.");
    if (lifetimeHours > Greatest)
        throw exc::CRuntimeExc("Maximum allowed 'logs age' value for truncation settings is '999H'.");
    if (mode == EArchivedLogsTruncationMode::BySize && sizeGB == 0)
        throw exc::CRuntimeExc("'Logs maximum size' value for truncation settings must be greater than zero.");
    if (sizeGB > Greatest)
        throw exc::CRuntimeExc("Maximum allowed 'logs size' value for truncation settings is 999G.");
}

void SOracleArchivedLogsTruncationConfig::ToXml(xmlpp::CXmlNode& node) const
{
    static constexpr const char* attributes[] = {names::Mode, names::SizeGB, names::LifetimeHours};
    const xmlpp::CXmlUndo undo(node, attributes);
    node.SetAttribute(names::Mode, EArchivedLogsTruncationMode::ToString(mode));
    node.SetUint64Attribute(names::SizeGB, sizeGB);
    node.SetUint64Attribute(names::LifetimeHours, lifetimeHours);
}

void SOracleArchivedLogsTruncationConfig::FromXml(const xmlpp::CXmlNode& node)
{
    auto read = *this;
    read.mode = EArchivedLogsTruncationMode::FromString(std::string(node.GetAttribute(names::Mode)));
    detail::readIfPresent(node, names::SizeGB, read.sizeGB);
    detail::readIfPresent(node, names::LifetimeHours, read.lifetimeHours);
    *this = read;
}

} // namespace zelplatform::model::structs
