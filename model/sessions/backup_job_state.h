#pragma once

#include <string>

#include <zelmodel/export.h>
#include <zelplatform/xmlpp/xml_node.h>

namespace zelplatform::model
{

/// What a backup job keeps between its runs, document "BackupJobState".
struct ZELMODEL_API SBackupJobState
{
    /// A number of the object storage; its meaning is not this library's.
    long objectStorageOperationMode = 0;

    /// Always in version 2. Throws "Failed to serialize SBackupJobState. ...".
    std::string ToXmlString() const;

    /// Reads versions 1 and 2, which name the mode differently; the root's name is not looked at. Throws "Failed to
    /// deserialize SBackupJobState. ...".
    static SBackupJobState FromXmlStr(const std::string& text);

    /// Reads the element of such a document, in the same way.
    static SBackupJobState FromXmlNode(const xmlpp::CXmlNode& root);

    friend bool operator==(const SBackupJobState& a, const SBackupJobState& b)
    {
        return a.objectStorageOperationMode == b.objectStorageOperationMode;
    }
    friend bool operator!=(const SBackupJobState& a, const SBackupJobState& b) { return !(a == b); }
};

} // namespace zelplatform::model
