#include <zelmodel/structs/storage/amazon_s3_params.h>

#include <zelplatform/crypto/crypto.h>
#include <zelplatform/exc/exc.h>
#include <zelplatform/util/util.h>
#include <zelplatform/xmlpp/xml_document.h>
#include <zelplatform/xmlpp/xml_undo.h>

#include "detail/optional_attribute.h"
#include "detail/storage_names.h"

namespace zelplatform::model::structs
{
namespace
{

namespace names = detail::storage_names;

} // namespace

void SAmazonS3Proxy::ToXmlNode(xmlpp::CXmlNode& parent) const
{
    const xmlpp::CXmlUndo undo(parent);
    auto node = parent.AddNode(names::Proxy);
    node.SetAttribute(names::ProxyEndpoint, endpoint);
    node.SetAttribute(names::ProxyLogin, login);
    node.SetAttribute(names::ProxyPassword, password);
}

bool SAmazonS3Proxy::IsInXmlNode(const xmlpp::CXmlNode& parent)
{
    return parent.HasNode(names::Proxy);
}

SAmazonS3Proxy SAmazonS3Proxy::FromXmlNode(const xmlpp::CXmlNode& parent)
try
{
    const auto node = parent.GetFirstChildNode(names::Proxy);
    SAmazonS3Proxy proxy;
    proxy.endpoint = node.GetAttribute(names::ProxyEndpoint);
    proxy.login = node.GetAttribute(names::ProxyLogin);
    proxy.password = node.GetAttribute(names::ProxyPassword);
    return proxy;
}
catch (std::exception& cause)
{
    exc::RegenTraceExc("Failed to parse SAmazonS3Proxy from xml.", cause);
}

void SAmazonS3Endpoint::Clear()
{
    apiEndpoint.clear();
    arnString.clear();
    fingerprint.clear();
    proxy.reset();
}

void SAmazonS3Endpoint::ToXmlNode(xmlpp::CXmlNode& parent) const
try
{
    const xmlpp::CXmlUndo undo(parent);
    auto node = parent.AddNode(names::Endpoint);
    node.SetAttribute(names::ApiEndpoint, apiEndpoint);
    node.SetAttribute(names::ArnString, arnString);
    if (!fingerprint.empty())
        node.SetAttribute(names::Fingerprint, fingerprint);
    if (proxy)
        proxy->ToXmlNode(node);
}
catch (std::exception& cause)
{
    exc::RegenTraceExc("Failed to convert SAmazonS3Endpoint to xml.", cause);
}

// The certificate is read even when a fingerprint follows: a false one is refused. "XML" is spelled so here alone.
SAmazonS3Endpoint SAmazonS3Endpoint::FromXmlNode(const xmlpp::CXmlNode& parent)
try
{
    const auto node = parent.GetFirstChildNode(names::Endpoint);
    SAmazonS3Endpoint endpoint;
    endpoint.apiEndpoint = node.GetAttribute(names::ApiEndpoint);
    endpoint.arnString = node.GetAttribute(names::ArnString);
    if (const auto certificate = node.FindAttribute(names::ServerCertificate))
        endpoint.fingerprint = crypto::openssl::CX509::FromPem(std::string(*certificate))->GetSHA256Fingerprint();
    detail::readIfPresent(node, names::Fingerprint, endpoint.fingerprint);
    if (SAmazonS3Proxy::IsInXmlNode(node))
        endpoint.proxy = SAmazonS3Proxy::FromXmlNode(node);
    return endpoint;
}
catch (std::exception& cause)
{
    exc::RegenTraceExc("Failed to parse SAmazonS3Endpoint from XML.", cause);
}

void SAmazonS3Credentials::Clear()
{
    accessKeyId.clear();
    secretAccessKey.clear();
    sessionToken.clear();
    roleName.clear();
    metadataHost.clear();
}

void SAmazonS3Credentials::ToXmlNode(xmlpp::CXmlNode& parent) const
{
    const xmlpp::CXmlUndo undo(parent);
    auto node = parent.AddNode(names::Credentials);
    node.SetAttribute(names::AccessKeyId, accessKeyId);
    node.SetAttribute(names::SecretAccessKey, secretAccessKey);
    node.SetAttribute(names::SessionToken, sessionToken);
    node.SetAttribute(names::RoleName, roleName);
    node.SetAttribute(names::MetadataHost, metadataHost);
    node.SetDateTimeAttribute(names::LastUpdateTimeUtc, lastUpdateTimeUtc, xmlpp::CXmlNode::DefaultDateTimeFormat);
}

SAmazonS3Credentials SAmazonS3Credentials::FromXmlNode(const xmlpp::CXmlNode& parent)
try
{
    const auto node = parent.GetFirstChildNode(names::Credentials);
    SAmazonS3Credentials credentials;
    credentials.lastUpdateTimeUtc = datetime::CDateTime::currentUtcTime();
    credentials.accessKeyId = node.GetAttribute(names::AccessKeyId);
    credentials.secretAccessKey = node.GetAttribute(names::SecretAccessKey);
    credentials.sessionToken = node.GetAttribute(names::SessionToken);
    credentials.roleName = node.GetAttribute(names::RoleName);
    credentials.metadataHost = node.GetAttribute(names::MetadataHost);
    if (node.HasAttribute(names::LastUpdateTimeUtc))
        credentials.lastUpdateTimeUtc =
            node.GetDateTimeAttribute(names::LastUpdateTimeUtc, xmlpp::CXmlNode::DefaultDateTimeFormat, true);
    return credentials;
}
catch (std::exception& cause)
{
    exc::RegenTraceExc("Failed to parse SAmazonS3Credentials from xml.", cause);
}

void SAmazonS3SpecificParams::Clear()
{
    endpoint.Clear();
    credentials.Clear();
}

void SAmazonS3SpecificParams::ToXmlNode(xmlpp::CXmlNode& parent) const
{
    const xmlpp::CXmlUndo undo(parent);
    auto node = parent.AddNode(names::AmazonS3SpecificParams);
    credentials.ToXmlNode(node);
    endpoint.ToXmlNode(node);
}

SAmazonS3SpecificParams SAmazonS3SpecificParams::FromXmlNode(const xmlpp::CXmlNode& parent)
try
{
    const auto node = parent.GetFirstChildNode(names::AmazonS3SpecificParams);
    SAmazonS3SpecificParams params;
    params.credentials = SAmazonS3Credentials::FromXmlNode(node);
    params.endpoint = SAmazonS3Endpoint::FromXmlNode(node);
    return params;
}
catch (std::exception& cause)
{
    exc::RegenTraceExc("Failed to parse SAmazonS3SpecificParams from xml.", cause);
}

std::string SAmazonS3SpecificParams::ToXmlStr() const
{
    const xmlpp::CXmlDocument document;
    auto top = document.ToNode();
    ToXmlNode(top);
    return document.Serialize(false);
}

SAmazonS3SpecificParams SAmazonS3SpecificParams::FromXmlStr(const std::string& text)
try
{
    return FromXmlNode(xmlpp::CXmlDocument::Unserialize(text).ToNode());
}
catch (std::exception& cause)
{
    exc::RegenTraceExc("Failed to parse SAmazonS3SpecificParams from xml string.", cause);
}

std::string SAmazonS3SpecificParams::ToLogStr() const
{
    return util::str_format("endpoint: {api: %1}, credentials: {accessKey: %2}", endpoint.apiEndpoint,
                            credentials.accessKeyId);
}

} // namespace zelplatform::model::structs
