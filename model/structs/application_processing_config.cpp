#include <zelmodel/structs/application_processing_config.h>

#include <zelplatform/xmlpp/xml_document.h>

#include "detail/application_names.h"

namespace zelplatform::model::structs
{
namespace
{

namespace names = detail::application_names;

void writeUser(xmlpp::CXmlNode& node, const char* name, const CUniString& user)
{
    node.SetAttribute(name, CUtf8String::FromWide(user).str());
}

CUniString readUser(const xmlpp::CXmlNode& node, const char* name)
{
    return CUniString::FromUtf8(CUtf8String(std::string(node.GetAttribute(name))));
}

} // namespace

std::string SApplicationProcessingOracleConfig::ToXmlString() const
{
    xmlpp::CXmlDocument document;
    auto root = document.AddRootNode(names::OracleConfig);
    writeUser(root, names::Username, username);
    auto child = root.AddNode(names::LogsTruncateConfig);
    truncation.ToXml(child);
    return document.Serialize();
}

SApplicationProcessingOracleConfig SApplicationProcessingOracleConfig::FromXmlString(const std::string& text)
{
    return FromXmlNode(xmlpp::CXmlDocument::Unserialize(text).GetRootNode());
}

SApplicationProcessingOracleConfig SApplicationProcessingOracleConfig::FromXmlNode(const xmlpp::CXmlNode& root)
{
    SApplicationProcessingOracleConfig config;
    config.username = readUser(root, names::Username);
    if (const auto child = root.FindChildNode(names::LogsTruncateConfig))
        config.truncation.FromXml(*child);
    return config;
}

std::string SApplicationProcessingPostgresConfig::ToXmlString() const
{
    xmlpp::CXmlDocument document;
    auto root = document.AddRootNode(names::PostgresConfig);
    writeUser(root, names::OsUser, osUser);
    root.SetAttribute(names::AuthType, EPostgreSqlAuthType::ToStr(authType));
    return document.Serialize();
}

SApplicationProcessingPostgresConfig SApplicationProcessingPostgresConfig::FromXmlString(const std::string& text)
{
    return FromXmlNode(xmlpp::CXmlDocument::Unserialize(text).GetRootNode());
}

SApplicationProcessingPostgresConfig SApplicationProcessingPostgresConfig::FromXmlNode(const xmlpp::CXmlNode& root)
{
    SApplicationProcessingPostgresConfig config;
    config.osUser = readUser(root, names::OsUser);
    config.authType = EPostgreSqlAuthType::FromStr(std::string(root.GetAttribute(names::AuthType)));
    return config;
}

} // namespace zelplatform::model::structs
