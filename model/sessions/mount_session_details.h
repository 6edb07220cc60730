#pragma once

#include <string>

#include <zelmodel/export.h>
#include <zelplatform/guid/guid.h>
#include <zelplatform/util/unicode.h>
#include <zelplatform/xmlpp/xml_node.h>

namespace zelplatform::model
{

/// Where a restore point is mounted, document "MountSessionDetails".
struct ZELMODEL_API SMountSessionDetails
{
    /// The path.
    std::string mountPoint;

    /// The restore point that is mounted; all zero when none is.
    guid::guid_t restorePointId;

    /// True when there is no restore point, whatever the path says.
    bool IsEmpty() const noexcept { return restorePointId.IsEmpty(); }

    /// Throws "SMountSessionDetails: Failed to serialize to XML. ...".
    std::string ToXmlStr() const;

    /// The root's name is not looked at. Throws "SMountSessionDetails: Failed to deserialize from XML. ...".
    static SMountSessionDetails FromXmlStr(const CUtf8String& text);

    /// Reads the element of such a document, in the same way.
    static SMountSessionDetails FromXmlNode(const xmlpp::CXmlNode& root);

    friend bool operator==(const SMountSessionDetails& a, const SMountSessionDetails& b)
    {
        return a.mountPoint == b.mountPoint && a.restorePointId == b.restorePointId;
    }
    friend bool operator!=(const SMountSessionDetails& a, const SMountSessionDetails& b) { return !(a == b); }
};

} // namespace zelplatform::model
