#include "visitors.h"

#include <utility>

#include <boost/variant/get.hpp>

#include "document_names.h"
#include "element_fields.h"
#include "words.h"

namespace describe
{
namespace
{

using zelplatform::model::structs::SAmazonS3Credentials;
using zelplatform::model::structs::SAmazonS3Endpoint;
using zelplatform::model::structs::SAmazonS3Proxy;
using zelplatform::model::structs::SAmazonS3SpecificParams;
using zelplatform::model::structs::SExternalRepoCloudContainer;

constexpr const char* ServiceAddress = "Service address";
constexpr const char* AccessKey = "Access key";
constexpr const char* SecretAccessKey = "Secret access key";

Node visitProxy(const std::optional<SAmazonS3Proxy>& proxy, const Place& place)
{
    auto node = makeField("proxy", "Proxy", "", proxy ? "" : "none", place.origin());
    if (!proxy)
        return node;
    ElementFields fields(node, place);
    fields.addAddress("endpoint", "Address", proxy->endpoint, storage_names::ProxyEndpoint);
    fields.addText("login", "User", proxy->login, storage_names::ProxyLogin);
    fields.addSecret("password", "Password", proxy->password, storage_names::ProxyPassword);
    return node;
}

Node visitEndpoint(const SAmazonS3Endpoint& endpoint, const Place& place)
{
    auto node = makeField("endpoint", "Endpoint", "", "", place.origin());
    ElementFields fields(node, place);
    fields.addAddress("apiEndpoint", ServiceAddress, endpoint.apiEndpoint, storage_names::ApiEndpoint);
    fields.addText("arnString", "Resource name", endpoint.arnString, storage_names::ArnString);
    const bool isOfCertificate = !place.has(storage_names::Fingerprint) && place.has(storage_names::ServerCertificate);
    fields.add("fingerprint", "Certificate", endpoint.fingerprint,
               textOr(endpoint.fingerprint, "none") + (isOfCertificate ? ", taken from the certificate itself" : ""),
               isOfCertificate ? storage_names::ServerCertificate : storage_names::Fingerprint);
    node.children.push_back(visitProxy(endpoint.proxy, place.child(storage_names::Proxy)));
    return node;
}

// Without an update time readers take the present, which is no part of the document.
void addLastUpdate(const SAmazonS3Credentials& credentials, const Place& place, ElementFields& fields)
{
    constexpr const char* name = "lastUpdateTimeUtc";
    constexpr const char* label = "Refreshed";
    if (place.has(storage_names::LastUpdateTimeUtc))
        fields.addMoment(name, label, credentials.lastUpdateTimeUtc, storage_names::LastUpdateTimeUtc);
    else
        fields.add(name, label, "", "not known: readers take the time of reading", storage_names::LastUpdateTimeUtc);
}

Node visitCredentials(const SAmazonS3Credentials& credentials, const Place& place)
{
    auto node = makeField("credentials", "Credentials", "", "", place.origin());
    ElementFields fields(node, place);
    fields.addText("accessKeyId", AccessKey, credentials.accessKeyId, storage_names::AccessKeyId);
    fields.addSecret("secretAccessKey", SecretAccessKey, credentials.secretAccessKey, storage_names::SecretAccessKey);
    fields.addSecret("sessionToken", "Session token", credentials.sessionToken, storage_names::SessionToken);
    fields.addText("roleName", "Role", credentials.roleName, storage_names::RoleName);
    fields.addAddress("metadataHost", "Metadata host", credentials.metadataHost, storage_names::MetadataHost);
    addLastUpdate(credentials, place, fields);
    return node;
}

Node visitContainerS3(const SAmazonS3SpecificParams& params, const Place& place)
{
    auto node = makeField("s3Params", "S3", "", "", place.origin());
    ElementFields fields(node, place);
    fields.addAddress("apiEndpoint", ServiceAddress, params.endpoint.apiEndpoint, repository_names::S3ApiEndpoint);
    fields.addText("accessKeyId", AccessKey, params.credentials.accessKeyId, repository_names::S3AccessKeyId);
    fields.addSecret("secretAccessKey", SecretAccessKey, params.credentials.secretAccessKey,
                     repository_names::S3SecretAccessKey);
    return node;
}

} // namespace

Node visitS3Params(const SAmazonS3SpecificParams& params, const Place& place)
{
    auto node = makeField("s3Params", "S3 parameters", "", "", place.origin());
    node.children.push_back(visitEndpoint(params.endpoint, place.child(storage_names::Endpoint)));
    node.children.push_back(visitCredentials(params.credentials, place.child(storage_names::Credentials)));
    return node;
}

Node visitCloudContainer(const SExternalRepoCloudContainer& container, const Place& place)
{
    auto node = makeField("cloudContainer", "Cloud container", "", "", place.origin());
    ElementFields fields(node, place);
    fields.addText("regionId", "Region", container.regionId, repository_names::RegionId);
    // Told from the document: readers leave the name out of the record.
    const auto name = place.textOf(repository_names::ContainerName);
    fields.add("containerName", "Container", container.containerName,
               name.empty() ? "none" : name + ", in the document only: readers leave it out",
               repository_names::ContainerName);
    node.children.back().isComparedByWords = true;
    fields.addText("repositoryName", "Repository", container.repositoryName, repository_names::RepoName);
    fields.addIdentifier("clientId", "Client", container.clientId.GetGuid(), repository_names::ClientId);
    fields.addText("clientDescription", "Description of the client", container.clientDescription,
                   repository_names::ClientDescription);
    fields.addFlag("isObjectLockEnabled", "Object lock", container.isObjectLockEnabled, "on", "off",
                   repository_names::IsObjectLockEnabled);
    node.children.push_back(visitContainerS3(boost::get<SAmazonS3SpecificParams>(container.s3Params), place));
    return node;
}

} // namespace describe
