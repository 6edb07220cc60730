#include <zelmodel/structs/repository/external_repo_cloud_container.h>

#include <tuple>

#include <zelplatform/exc/exc.h>
#include <zelplatform/xmlpp/xml_document.h>

#include "detail/key_content.h"
#include "detail/repository_names.h"

namespace zelplatform::model::structs
{
namespace
{

namespace names = detail::repository_names;

constexpr const char* ReadFailed = "Failed to SExternalRepoCloudContainer::Unserialize.";

SExternalRepoCloudContainer readContainer(const xmlpp::CXmlNode& root)
{
    SExternalRepoCloudContainer container;
    container.regionId = root.GetAttribute(names::RegionId);
    container.repositoryName = root.GetAttribute(names::RepoName);
    const auto clientId =
        cloudbackuplib::CCloudRepoClientId::Deserialize(std::string(root.GetAttribute(names::ClientId)));
    container.clientId = cloudbackuplib::CCloudRepoClientId(clientId.GetGuid());
    container.clientDescription = root.GetAttribute(names::ClientDescription);
    container.isObjectLockEnabled = root.GetBoolAttribute(names::IsObjectLockEnabled);
    SAmazonS3SpecificParams s3;
    s3.credentials.lastUpdateTimeUtc = datetime::CDateTime::currentUtcTime();
    s3.credentials.secretAccessKey = root.GetAttribute(names::S3SecretAccessKey);
    s3.credentials.accessKeyId = root.GetAttribute(names::S3AccessKeyId);
    s3.endpoint.apiEndpoint = root.GetAttribute(names::S3ApiEndpoint);
    container.s3Params = s3;
    return container;
}

auto fieldsOf(const SExternalRepoCloudContainer& container) noexcept
{
    const auto& [id, regionId, containerName, encryption, repositoryName, clientId, clientDescription, backupPath,
                 ownerName, tag, isObjectLockEnabled, s3Params, extentS3Params] = container;
    return std::tie(id, regionId, containerName, encryption, repositoryName, clientId, clientDescription, backupPath,
                    ownerName, tag, isObjectLockEnabled, s3Params, extentS3Params);
}

} // namespace

std::string SExternalRepoCloudContainer::Serialize() const
try
{
    const auto& s3 = boost::get<SAmazonS3SpecificParams>(s3Params);
    xmlpp::CXmlDocument document;
    auto root = document.AddRootNode(names::CloudContainerRoot);
    root.SetAttribute(names::RegionId, regionId);
    root.SetAttribute(names::ContainerName, containerName);
    root.SetAttribute(names::RepoName, repositoryName);
    root.SetAttribute(names::ClientId, clientId.Serialize());
    root.SetAttribute(names::ClientDescription, clientDescription);
    root.SetBoolAttribute(names::IsObjectLockEnabled, isObjectLockEnabled);
    root.SetAttribute(names::S3AccessKeyId, s3.credentials.accessKeyId);
    root.SetAttribute(names::S3SecretAccessKey, s3.credentials.secretAccessKey);
    root.SetAttribute(names::S3ApiEndpoint, s3.endpoint.apiEndpoint);
    return document.Serialize(true);
}
catch (std::exception& cause)
{
    exc::RegenTraceExc("Failed to SExternalRepoCloudContainer::Serialize.", cause);
}

SExternalRepoCloudContainer SExternalRepoCloudContainer::Unserialize(const std::string& text)
try
{
    const auto document = xmlpp::CXmlDocument::Unserialize(text);
    return readContainer(document.GetRootNode(names::CloudContainerRoot));
}
catch (std::exception& cause)
{
    exc::RegenTraceExc(ReadFailed, cause);
}

SExternalRepoCloudContainer SExternalRepoCloudContainer::FromXmlNode(const xmlpp::CXmlNode& root)
try
{
    return readContainer(root);
}
catch (std::exception& cause)
{
    exc::RegenTraceExc(ReadFailed, cause);
}

bool operator==(const SCloudContainerEncryption& a, const SCloudContainerEncryption& b)
{
    return detail::isSameKeySet(a.keySet, b.keySet) && detail::isSameKey(a.key, b.key) &&
           detail::areSameKeySets(a.keySets, b.keySets);
}

bool operator==(const SExternalRepoCloudContainer& a, const SExternalRepoCloudContainer& b)
{
    return fieldsOf(a) == fieldsOf(b);
}

} // namespace zelplatform::model::structs
