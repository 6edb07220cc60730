#include <zelmodel/repositories.h>
#include <zelplatform/util/util.h>

#include "reader.h"
#include "samples.h"
#include "xml_forms.h"

namespace readers
{
namespace
{

using namespace zelplatform::model::structs;

// The reader wants the element below another one, the writer puts it at the top.
std::string enclosed(const CRepositoryLimitationsSpec& limitations)
{
    return "<Answer>" + limitations.ToString() + "</Answer>";
}

std::string rewriteImmutability(const std::string& text)
{
    const auto settings = SObjectStorageImmutabilitySettings::FromXml(rootOf(text));
    return writtenInto("Repository", [&](xmlpp::CXmlNode& root) { settings.ToXml(root); });
}

std::string tellDirectImmutability(const std::string& text)
{
    const auto direct = SDirectBackupImmutabilitySettings::FromXml(rootOf(text));
    const auto& settings = direct.immutabilitySettings;
    return util::toStr(settings.isEnabled) + ' ' + util::toStr(settings.intervalDays) + ' ' +
           util::toStr(static_cast<int>(settings.mode)) + ' ' +
           util::toStr(direct.numberDaysForCapacityTierMoveOrArchiveTier) + ' ' +
           util::toStr(direct.hasImmutableCapacityOrArchiveTierExtent);
}

template <class TPart>
std::string rewritePart(const std::string& text)
{
    const auto part = TPart::FromXmlNode(rootOf(text));
    return writtenInto("AmazonS3SpecificParams", [&](xmlpp::CXmlNode& root) { part.ToXmlNode(root); });
}

std::string rewriteProxy(const std::string& text)
{
    const auto node = rootOf(text);
    return SAmazonS3Proxy::IsInXmlNode(node) ? rewritePart<SAmazonS3Proxy>(text) : "<AmazonS3SpecificParams/>";
}

// The proxy's own parent.
const char* const ProxyOwner = R"(<Endpoint><Proxy endpoint="http://proxy:3128" login="l" password="p"/></Endpoint>)";

} // namespace

Readers repositoryReaders()
{
    const auto limitations = goldenFiles({"JobSettings/enclosed"});
    const auto storage = goldenFolder("AmazonS3SpecificParams");
    const auto containers = goldenFolder("root");
    return {
        {"CRepositoryLimitationsSpec.FromString",
         [](const std::string& text) { return enclosed(CRepositoryLimitationsSpec::FromString(text)); }, limitations},
        {"CRepositoryLimitationsSpec.FromXmlNode",
         [](const std::string& text) { return enclosed(CRepositoryLimitationsSpec::FromXmlNode(rootOf(text))); },
         limitations},
        {"SObjectStorageImmutabilitySettings.FromXml", rewriteImmutability, goldenFolder("ImmutabilitySettings")},
        {"SDirectBackupImmutabilitySettings.FromXml", tellDirectImmutability,
         goldenFolder("DirectBackupImmutabilitySettings"), EWritten::Words},
        {"SAmazonS3SpecificParams.FromXmlStr",
         [](const std::string& text) { return SAmazonS3SpecificParams::FromXmlStr(text).ToXmlStr(); }, storage},
        {"SAmazonS3SpecificParams.FromXmlNode",
         [](const std::string& text) { return SAmazonS3SpecificParams::FromXmlNode(topOf(text)).ToXmlStr(); }, storage},
        {"SAmazonS3Endpoint.FromXmlNode", rewritePart<SAmazonS3Endpoint>, storage},
        {"SAmazonS3Credentials.FromXmlNode", rewritePart<SAmazonS3Credentials>, storage},
        {"SAmazonS3Proxy.FromXmlNode", rewriteProxy, {ProxyOwner}},
        {"SExternalRepoCloudContainer.Unserialize",
         [](const std::string& text) { return SExternalRepoCloudContainer::Unserialize(text).Serialize(); },
         containers},
        {"SExternalRepoCloudContainer.FromXmlNode",
         [](const std::string& text) { return SExternalRepoCloudContainer::FromXmlNode(rootOf(text)).Serialize(); },
         containers},
    };
}

} // namespace readers
