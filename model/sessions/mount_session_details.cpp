#include <zelmodel/sessions/mount_session_details.h>

#include <zelplatform/exc/exc.h>
#include <zelplatform/xmlpp/xml_document.h>

#include "detail/session_names.h"

namespace zelplatform::model
{
namespace
{

namespace names = detail::session_names;

constexpr const char* RecordName = "SMountSessionDetails";
constexpr const char* ReadFailed = "%1: Failed to deserialize from XML.";

SMountSessionDetails readDetails(const xmlpp::CXmlNode& root)
{
    SMountSessionDetails details;
    details.mountPoint = root.GetAttribute(names::MountPoint);
    details.restorePointId = root.GetGuidAttribute(names::OibId);
    return details;
}

} // namespace

std::string SMountSessionDetails::ToXmlStr() const
try
{
    xmlpp::CXmlDocument document;
    auto root = document.AddRootNode(names::MountSessionDetails);
    root.SetAttribute(names::MountPoint, mountPoint);
    root.SetGuidAttribute(names::OibId, restorePointId);
    return document.Serialize();
}
catch (std::exception& cause)
{
    exc::RegenTraceExc("%1: Failed to serialize to XML.", RecordName, cause);
}

SMountSessionDetails SMountSessionDetails::FromXmlStr(const CUtf8String& text)
try
{
    return readDetails(xmlpp::CXmlDocument::Unserialize(text.str()).GetRootNode());
}
catch (std::exception& cause)
{
    exc::RegenTraceExc(ReadFailed, RecordName, cause);
}

SMountSessionDetails SMountSessionDetails::FromXmlNode(const xmlpp::CXmlNode& root)
try
{
    return readDetails(root);
}
catch (std::exception& cause)
{
    exc::RegenTraceExc(ReadFailed, RecordName, cause);
}

} // namespace zelplatform::model
