#include <string>
#include <vector>

#include <gtest/gtest.h>

#include <support/expect_failure.h>
#include <zelmodel/repositories.h>
#include <zelplatform/xmlpp/xmlpp.h>

namespace
{

using namespace zelplatform::model::structs;
using zelmodel_test::failureText;

// The letter case of "XML" differs from sentence to sentence on purpose.
const std::string textRefused = "Failed to parse SAmazonS3SpecificParams from xml string. ";
const std::string paramsRefused = "Failed to parse SAmazonS3SpecificParams from xml. ";
const std::string credentialsRefused = "Failed to parse SAmazonS3Credentials from xml. ";
const std::string endpointRefused = "Failed to parse SAmazonS3Endpoint from XML. ";
const std::string proxyRefused = "Failed to parse SAmazonS3Proxy from xml. ";

const std::string credentials = R"(<Credentials AccessKeyId="" SecretAccessKey="" SessionToken="" RoleName="" )"
                                R"(MetadataHost="" LastUpdateTimeUtc="03/06/2024 12:34:56"/>)";
const std::string endpoint = R"(<Endpoint ApiEndpoint="" ArnString=""/>)";

std::string refusal(const std::string& children)
{
    const std::string text = "<AmazonS3SpecificParams>" + children + "</AmazonS3SpecificParams>";
    return failureText([&] { SAmazonS3SpecificParams::FromXmlStr(text); });
}

/// An element with all of these attributes, empty, but one.
std::string without(const std::string& element, const std::vector<std::string>& names, std::size_t missing)
{
    std::string text = "<" + element;
    for (std::size_t i = 0; i < names.size(); ++i)
    {
        if (i != missing)
            text += " " + names[i] + "=\"\"";
    }
    return text + "/>";
}

TEST(AmazonS3Refusal, EveryCredentialIsRequired)
{
    const std::vector<std::string> names = {"AccessKeyId", "SecretAccessKey", "SessionToken", "RoleName",
                                            "MetadataHost"};
    for (std::size_t missing = 0; missing < names.size(); ++missing)
    {
        EXPECT_EQ(textRefused + paramsRefused + credentialsRefused + "Attribute [" + names[missing] +
                      "] is not found in [Credentials].",
                  refusal(without("Credentials", names, missing) + endpoint));
    }
    EXPECT_EQ(textRefused + paramsRefused + credentialsRefused +
                  "Attribute [AccessKeyId] is not found in [Credentials].",
              refusal("<Credentials/>" + endpoint));
}

TEST(AmazonS3Refusal, BothTextsOfTheEndpointAreRequired)
{
    const std::vector<std::string> names = {"ApiEndpoint", "ArnString"};
    for (std::size_t missing = 0; missing < names.size(); ++missing)
    {
        EXPECT_EQ(textRefused + paramsRefused + endpointRefused + "Attribute [" + names[missing] +
                      "] is not found in [Endpoint].",
                  refusal(credentials + without("Endpoint", names, missing)));
    }
}

TEST(AmazonS3Refusal, AllTextsOfTheProxyAreRequired)
{
    const std::vector<std::string> names = {"endpoint", "login", "password"};
    for (std::size_t missing = 0; missing < names.size(); ++missing)
    {
        EXPECT_EQ(textRefused + paramsRefused + endpointRefused + proxyRefused + "Attribute [" + names[missing] +
                      "] is not found in [Proxy].",
                  refusal(credentials + "<Endpoint ApiEndpoint=\"\" ArnString=\"\">" +
                          without("Proxy", names, missing) + "</Endpoint>"));
    }
    EXPECT_EQ(textRefused + paramsRefused + endpointRefused + proxyRefused +
                  "Attribute [endpoint] is not found in [Proxy].",
              refusal(credentials + "<Endpoint ApiEndpoint=\"\" ArnString=\"\">"
                                    "<Proxy Endpoint=\"\" Login=\"\" Password=\"\"/></Endpoint>"));
}

TEST(AmazonS3Refusal, MissingElementsAreNamed)
{
    EXPECT_EQ(textRefused + paramsRefused + credentialsRefused +
                  "Node [Credentials] is not found in [AmazonS3SpecificParams].",
              refusal(endpoint));
    EXPECT_EQ(textRefused + paramsRefused + endpointRefused +
                  "Node [Endpoint] is not found in [AmazonS3SpecificParams].",
              refusal(credentials));
    const auto document = xmlpp::CXmlDocument::Unserialize("<a/>");
    EXPECT_EQ(proxyRefused + "Node [Proxy] is not found in [a].",
              failureText([&] { SAmazonS3Proxy::FromXmlNode(document.GetRootNode()); }));
}

// Credentials are read before the endpoint, whichever stands first.
TEST(AmazonS3Refusal, CredentialsFailFirst)
{
    EXPECT_EQ(textRefused + paramsRefused + credentialsRefused +
                  "Node [Credentials] is not found in [AmazonS3SpecificParams].",
              refusal("<Endpoint/>"));
}

TEST(AmazonS3Refusal, RootMustHaveItsName)
{
    for (const std::string text : {"<a><AmazonS3SpecificParams/></a>", "<amazonS3SpecificParams/>", "<root/>"})
    {
        EXPECT_EQ(textRefused + paramsRefused + "Node [AmazonS3SpecificParams] is not found in [].",
                  failureText([&] { SAmazonS3SpecificParams::FromXmlStr(text); }));
    }
    const auto document = xmlpp::CXmlDocument::Unserialize("<AmazonS3SpecificParams/>");
    EXPECT_EQ(paramsRefused + "Node [AmazonS3SpecificParams] is not found in [AmazonS3SpecificParams].",
              failureText([&] { SAmazonS3SpecificParams::FromXmlNode(document.GetRootNode()); }));
}

TEST(AmazonS3Refusal, TextMustBeXml)
{
    EXPECT_EQ(textRefused + "Unable to parse XML at line 1: [XML_ERROR_MISMATCHED_ELEMENT].",
              failureText([] { SAmazonS3SpecificParams::FromXmlStr("<AmazonS3SpecificParams></b>"); }));
    for (const std::string& text : {std::string(), std::string("AmazonS3SpecificParams"), std::string("\0", 1)})
    {
        const std::string failure = failureText([&] { SAmazonS3SpecificParams::FromXmlStr(text); });
        EXPECT_EQ(0U, failure.find(textRefused + "Unable to parse XML at line ")) << failure;
    }
}

// What follows such an end tag would be lost without a word.
TEST(AmazonS3Refusal, EndTagOfNothingIsMalformed)
{
    const std::string text = "<AmazonS3SpecificParams>" + credentials + endpoint + "</AmazonS3SpecificParams>";
    EXPECT_NO_THROW(SAmazonS3SpecificParams::FromXmlStr(text));
    for (const char* rest : {"</AmazonS3SpecificParams>", "</x>", "</x><AmazonS3SpecificParams/>"})
    {
        const std::string failure = failureText([&] { SAmazonS3SpecificParams::FromXmlStr(text + rest); });
        EXPECT_EQ(0U, failure.find(textRefused + "Unable to parse XML at line ")) << failure;
    }
}

TEST(AmazonS3Refusal, UpdateTimeMustBeADateThatExists)
{
    for (const char* time :
         {"", "02/30/2024 00:00:00", "02/29/2023 00:00:00", "13/01/2024 00:00:00", "00/01/2024 00:00:00",
          "01/01/0001 00:00:00", "01/01/1399 00:00:00", "03/06/2024", "2024-03-06 00:00:00", "03/06/2024 24:00:00",
          "03/06/2024 00:60:00", "03/06/2024 00:00:60", " 03/06/2024 00:00:00", "03/06/2024 00:00:00 ",
          "03/06/2024  00:00:00", "03/06/24 00:00:00", "03/06/2024 00:00:00Z", "1709728496", "now"})
    {
        const std::string failure =
            refusal(R"(<Credentials AccessKeyId="" SecretAccessKey="" SessionToken="" RoleName="" MetadataHost="" )"
                    "LastUpdateTimeUtc=\"" +
                    std::string(time) + "\"/>" + endpoint);
        const std::string prefix = textRefused + paramsRefused + credentialsRefused;
        EXPECT_EQ(0U, failure.find(prefix)) << failure;
        EXPECT_LT(prefix.size(), failure.size()) << time;
    }
}

TEST(AmazonS3Refusal, WritingWhatXmlCannotCarryIsRefused)
{
    SAmazonS3Endpoint bad;
    xmlpp::CXmlDocument document;
    xmlpp::CXmlNode parent = document.AddRootNode("a");
    std::string SAmazonS3Endpoint::*const fields[] = {&SAmazonS3Endpoint::apiEndpoint, &SAmazonS3Endpoint::arnString,
                                                      &SAmazonS3Endpoint::fingerprint};
    const std::string sentence = "Failed to convert SAmazonS3Endpoint to xml. ";
    for (const auto field : fields)
    {
        bad = {};
        bad.*field = "a\x1Bz";
        const std::string failure = failureText([&] { bad.ToXmlNode(parent); });
        EXPECT_EQ(0U, failure.find(sentence)) << failure;
        EXPECT_LT(sentence.size(), failure.size());
    }
    bad = {};
    bad.proxy.emplace();
    bad.proxy->password = "a\x1Bz";
    const std::string failure = failureText([&] { bad.ToXmlNode(parent); });
    EXPECT_EQ(0U, failure.find(sentence)) << failure;

    SAmazonS3SpecificParams params;
    params.credentials.roleName = std::string("a\0z", 3);
    EXPECT_NE("", failureText([&] { (void)params.ToXmlStr(); }));
}

} // namespace
