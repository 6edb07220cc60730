#pragma once

#include <map>
#include <memory>
#include <optional>
#include <string>

#include <boost/variant.hpp>

#include <zelmodel/export.h>
#include <zelmodel/structs/storage/amazon_s3_params.h>
#include <zelplatform/cloudbackuplib/cloudbackuplib.h>
#include <zelplatform/crypto/crypto.h>
#include <zelplatform/guid/guid.h>
#include <zelplatform/xmlpp/xml_node.h>

namespace zelplatform::model::structs
{

/// The keys that a container's backups are encrypted with. Filled by the library's clients; in no document.
struct ZELMODEL_API SCloudContainerEncryption
{
    /// The key set in use, the key in use, and all key sets under their identifiers; pointers may be empty.
    std::shared_ptr<crypto::CKeySet> keySet;
    std::shared_ptr<crypto::CKey> key;
    std::map<guid::guid_t, std::shared_ptr<crypto::CKeySet>> keySets;
};

/// Compares keys and key sets by what they hold; two empty pointers are equal.
ZELMODEL_API bool operator==(const SCloudContainerEncryption& a, const SCloudContainerEncryption& b);
inline bool operator!=(const SCloudContainerEncryption& a, const SCloudContainerEncryption& b)
{
    return !(a == b);
}

/// A repository in a cloud container (a bucket) that the agent reaches directly. Its string form, document "root" with
/// dotted attribute names, carries only a part of the record, and the secret access key in clear: treat the text as
/// secret.
struct ZELMODEL_API SExternalRepoCloudContainer
{
    /// How the container's storage is reached.
    using S3Params = boost::variant<SAmazonS3SpecificParams>;

    /// The repository's identifier and its region.
    guid::guid_t id;
    std::string regionId;

    /// Written and never read back, on purpose.
    std::string containerName;

    /// The keys, when the backups are encrypted.
    std::optional<SCloudContainerEncryption> encryption;

    /// The name that people see.
    std::string repositoryName;

    /// Only the GUID survives reading; what accompanies it is dropped.
    cloudbackuplib::CCloudRepoClientId clientId;

    /// The words for the client. Of what follows, the string form carries the lock and three texts of the parameters.
    std::string clientDescription;
    std::string backupPath;
    std::string ownerName;
    std::string tag;

    /// Whether objects of the container can be locked.
    bool isObjectLockEnabled = false;

    /// How the container is reached, and its extents under their identifiers.
    S3Params s3Params;
    std::map<guid::guid_t, S3Params> extentS3Params;

    /// The string form, with an XML declaration. Throws "Failed to SExternalRepoCloudContainer::Serialize. ...".
    std::string Serialize() const;

    /// Reads the string form; what it does not carry is empty, and the credentials' update time is now. Throws "Failed
    /// to SExternalRepoCloudContainer::Unserialize. ...".
    static SExternalRepoCloudContainer Unserialize(const std::string& text);

    /// Reads the element of the string form, in the same way and with the same sentence. Its name is not looked at.
    static SExternalRepoCloudContainer FromXmlNode(const xmlpp::CXmlNode& root);
};

/// Compares every field, whether it travels or not.
ZELMODEL_API bool operator==(const SExternalRepoCloudContainer& a, const SExternalRepoCloudContainer& b);
inline bool operator!=(const SExternalRepoCloudContainer& a, const SExternalRepoCloudContainer& b)
{
    return !(a == b);
}

} // namespace zelplatform::model::structs
