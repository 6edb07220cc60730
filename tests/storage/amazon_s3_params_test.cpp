#include <string>
#include <utility>

#include <gtest/gtest.h>

#include <support/golden.h>
#include <zelmodel/repositories.h>
#include <zelplatform/datetime/datetime.h>
#include <zelplatform/xmlpp/xmlpp.h>

#include "sample_s3.h"

namespace
{

using namespace zelplatform::model::structs;
using datetime::CDateTime;
using zelmodel_test::fullS3Params;
using zelmodel_test::golden;

CDateTime at(const char* text)
{
    return CDateTime::fromString(text, CDateTime::QorDateFormat);
}

SAmazonS3SpecificParams plainParams()
{
    SAmazonS3SpecificParams params;
    params.endpoint.apiEndpoint = "https://s3.example.com";
    params.credentials.accessKeyId = "AKIDEXAMPLE";
    params.credentials.secretAccessKey = "secret/Key+1";
    params.credentials.lastUpdateTimeUtc = at("12/31/1999 23:59:59");
    return params;
}

template <class TRecord>
std::string writtenBelow(const TRecord& record)
{
    xmlpp::CXmlDocument document;
    xmlpp::CXmlNode parent = document.AddRootNode("a");
    record.ToXmlNode(parent);
    return document.Serialize();
}

TEST(AmazonS3Params, DefaultIsEmpty)
{
    const SAmazonS3SpecificParams params;
    for (const std::string* text :
         {&params.endpoint.apiEndpoint, &params.endpoint.arnString, &params.endpoint.fingerprint,
          &params.credentials.accessKeyId, &params.credentials.secretAccessKey, &params.credentials.sessionToken,
          &params.credentials.roleName, &params.credentials.metadataHost})
    {
        EXPECT_EQ("", *text);
    }
    EXPECT_FALSE(params.endpoint.proxy);
    EXPECT_EQ(0, params.credentials.lastUpdateTimeUtc.toUnixTime());
}

/// The record that a field belongs to.
enum class EPart
{
    Endpoint,
    Proxy, ///< of the endpoint
    Credentials,
};

TEST(AmazonS3Params, EqualityComparesEveryField)
{
    const std::pair<EPart, void (*)(SAmazonS3SpecificParams&)> changes[] = {
        {EPart::Endpoint, [](auto& params) { params.endpoint.apiEndpoint += "x"; }},
        {EPart::Endpoint, [](auto& params) { params.endpoint.arnString += "x"; }},
        {EPart::Endpoint, [](auto& params) { params.endpoint.fingerprint += "x"; }},
        {EPart::Endpoint, [](auto& params) { params.endpoint.proxy.reset(); }},
        {EPart::Proxy, [](auto& params) { params.endpoint.proxy->endpoint += "x"; }},
        {EPart::Proxy, [](auto& params) { params.endpoint.proxy->login += "x"; }},
        {EPart::Proxy, [](auto& params) { params.endpoint.proxy->password += "x"; }},
        {EPart::Credentials, [](auto& params) { params.credentials.accessKeyId += "x"; }},
        {EPart::Credentials, [](auto& params) { params.credentials.secretAccessKey += "x"; }},
        {EPart::Credentials, [](auto& params) { params.credentials.sessionToken += "x"; }},
        {EPart::Credentials, [](auto& params) { params.credentials.roleName += "x"; }},
        {EPart::Credentials, [](auto& params) { params.credentials.metadataHost += "x"; }},
        {EPart::Credentials, [](auto& params) { params.credentials.lastUpdateTimeUtc = CDateTime(1, true); }},
    };
    const auto full = fullS3Params();
    EXPECT_TRUE(fullS3Params() == full);
    EXPECT_FALSE(fullS3Params() != full);
    for (const auto& [part, change] : changes)
    {
        auto params = full;
        change(params);
        EXPECT_FALSE(params == full);
        EXPECT_TRUE(params != full);
        EXPECT_EQ(part != EPart::Credentials, params.endpoint != full.endpoint);
        EXPECT_EQ(part == EPart::Credentials, params.credentials != full.credentials);
        if (params.endpoint.proxy)
        {
            EXPECT_EQ(part == EPart::Proxy, *params.endpoint.proxy != *full.endpoint.proxy);
        }
    }
}

TEST(AmazonS3Params, ClearEmptiesTheEndpoint)
{
    auto endpoint = fullS3Params().endpoint;
    endpoint.Clear();
    EXPECT_TRUE(endpoint == SAmazonS3Endpoint());
}

// On purpose: clearing the keys does not change when they were last refreshed.
TEST(AmazonS3Params, ClearKeepsTheUpdateTime)
{
    auto credentials = fullS3Params().credentials;
    credentials.Clear();
    SAmazonS3Credentials expected;
    expected.lastUpdateTimeUtc = at("03/06/2024 12:34:56");
    EXPECT_TRUE(credentials == expected);

    auto params = fullS3Params();
    params.Clear();
    EXPECT_TRUE(params.endpoint == SAmazonS3Endpoint());
    EXPECT_TRUE(params.credentials == expected);
}

TEST(AmazonS3Params, LogTextHoldsAddressAndAccessKeyAlone)
{
    EXPECT_EQ("endpoint: {api: https://s3.example.com:9000}, credentials: {accessKey: AKIDEXAMPLE}",
              fullS3Params().ToLogStr());
    EXPECT_EQ("endpoint: {api: }, credentials: {accessKey: }", SAmazonS3SpecificParams().ToLogStr());

    SAmazonS3SpecificParams tricky;
    tricky.endpoint.apiEndpoint = "%2 %1 {}";
    tricky.credentials.accessKeyId = "%1";
    EXPECT_EQ("endpoint: {api: %2 %1 {}}, credentials: {accessKey: %1}", tricky.ToLogStr());
}

TEST(AmazonS3Params, WritesADocument)
{
    EXPECT_EQ(golden("AmazonS3SpecificParams/full.xml"), fullS3Params().ToXmlStr());
    EXPECT_EQ(golden("AmazonS3SpecificParams/plain.xml"), plainParams().ToXmlStr());
    EXPECT_EQ(golden("AmazonS3SpecificParams/empty.xml"), SAmazonS3SpecificParams().ToXmlStr());
}

TEST(AmazonS3Params, EveryRecordAddsOneChild)
{
    EXPECT_EQ("<a>" + golden("AmazonS3SpecificParams/full.xml") + "</a>", writtenBelow(fullS3Params()));
    EXPECT_EQ("<a><Proxy endpoint=\"http://proxy.example.com:3128\" login=\"svc\" password=\"proxy-pass\"/></a>",
              writtenBelow(*fullS3Params().endpoint.proxy));
    EXPECT_EQ("<a><Endpoint ApiEndpoint=\"https://s3.example.com\" ArnString=\"\"/></a>",
              writtenBelow(plainParams().endpoint));
    EXPECT_EQ("<a><Credentials AccessKeyId=\"\" SecretAccessKey=\"\" SessionToken=\"\" RoleName=\"\" "
              "MetadataHost=\"\" LastUpdateTimeUtc=\"01/01/1970 00:00:00\"/></a>",
              writtenBelow(SAmazonS3Credentials()));
}

TEST(AmazonS3Params, ReadsBackWhatItWrites)
{
    EXPECT_TRUE(SAmazonS3SpecificParams::FromXmlStr(golden("AmazonS3SpecificParams/full.xml")) == fullS3Params());
    EXPECT_TRUE(SAmazonS3SpecificParams::FromXmlStr(golden("AmazonS3SpecificParams/plain.xml")) == plainParams());
    EXPECT_TRUE(SAmazonS3SpecificParams::FromXmlStr(golden("AmazonS3SpecificParams/empty.xml")) ==
                SAmazonS3SpecificParams());
}

TEST(AmazonS3Params, TextsSurviveWhateverTheyHold)
{
    SAmazonS3SpecificParams params;
    params.credentials.accessKeyId = "a<b>&";
    params.credentials.secretAccessKey = "\"double\" 'single'";
    params.credentials.sessionToken = "line\r\n\tend";
    params.credentials.roleName = "%1 %2";
    params.credentials.metadataHost = " padded ";
    params.credentials.lastUpdateTimeUtc = at("02/29/2024 00:00:00");
    params.endpoint.apiEndpoint = "https://s3.example.com/?a=1&b=2";
    params.endpoint.proxy.emplace();
    EXPECT_EQ(golden("AmazonS3SpecificParams/escaped.xml"), params.ToXmlStr());
    EXPECT_TRUE(SAmazonS3SpecificParams::FromXmlStr(params.ToXmlStr()) == params);

    params.credentials.secretAccessKey = "\xFF\x80 no UTF-8";
    EXPECT_TRUE(SAmazonS3SpecificParams::FromXmlStr(params.ToXmlStr()) == params);
}

TEST(AmazonS3Params, ReadsOtherWritersForms)
{
    const auto params = SAmazonS3SpecificParams::FromXmlStr(golden("AmazonS3SpecificParams/indented.xml"));
    EXPECT_EQ("https://s3.example.com", params.endpoint.apiEndpoint);
    EXPECT_EQ("arn:store:us-1:volume", params.endpoint.arnString);
    EXPECT_EQ("", params.endpoint.fingerprint);
    const SAmazonS3Proxy proxy = {"e", "l", "p"};
    ASSERT_TRUE(params.endpoint.proxy);
    EXPECT_TRUE(*params.endpoint.proxy == proxy);
    EXPECT_EQ("k", params.credentials.accessKeyId);
    EXPECT_EQ("s", params.credentials.secretAccessKey);
    EXPECT_EQ("t", params.credentials.sessionToken);
    EXPECT_EQ("r", params.credentials.roleName);
    EXPECT_EQ("h", params.credentials.metadataHost);
    EXPECT_TRUE(params.credentials.lastUpdateTimeUtc == at("03/06/2024 01:02:03"));
}

TEST(AmazonS3Params, EmptyTextsAreValues)
{
    const auto params = SAmazonS3SpecificParams::FromXmlStr(golden("AmazonS3SpecificParams/empty.xml"));
    EXPECT_EQ("", params.credentials.sessionToken);
    EXPECT_EQ("", params.endpoint.apiEndpoint);
    const auto document = xmlpp::CXmlDocument::Unserialize("<a><Proxy endpoint=\"\" login=\"\" password=\"\"/></a>");
    EXPECT_TRUE(SAmazonS3Proxy::FromXmlNode(document.GetRootNode()) == SAmazonS3Proxy());
}

TEST(AmazonS3Params, ProxyIsADirectChild)
{
    const auto isIn = [](const char* text) {
        return SAmazonS3Proxy::IsInXmlNode(xmlpp::CXmlDocument::Unserialize(text).GetRootNode());
    };
    EXPECT_TRUE(isIn("<Endpoint><x/><Proxy/></Endpoint>"));
    for (const char* text : {"<Endpoint/>", "<Endpoint Proxy=\"1\"/>", "<Endpoint><proxy/></Endpoint>",
                             "<Endpoint><x><Proxy/></x></Endpoint>", "<Proxy/>"})
    {
        EXPECT_FALSE(isIn(text)) << text;
    }
}

TEST(AmazonS3Params, DocumentIsReadFromItsTopLevelElement)
{
    const std::string text = golden("AmazonS3SpecificParams/full.xml");
    EXPECT_TRUE(SAmazonS3SpecificParams::FromXmlStr("<x/>" + text) == fullS3Params());
    const auto document = xmlpp::CXmlDocument::Unserialize("<a>" + text + "</a>");
    EXPECT_TRUE(SAmazonS3SpecificParams::FromXmlNode(document.GetRootNode()) == fullS3Params());
}

class AmazonS3UpdateTime : public testing::Test
{
protected:
    AmazonS3UpdateTime()
    {
        datetime::set_clock_for_tests([] { return 1709728496L; }, [] { return -18000L; });
    }
    ~AmazonS3UpdateTime() override { datetime::set_clock_for_tests({}, {}); }

    static SAmazonS3Credentials read(const std::string& time)
    {
        const auto document = xmlpp::CXmlDocument::Unserialize(
            "<a><Credentials AccessKeyId=\"\" SecretAccessKey=\"\" SessionToken=\"\" RoleName=\"\" MetadataHost=\"\"" +
            time + "/></a>");
        return SAmazonS3Credentials::FromXmlNode(document.GetRootNode());
    }
};

TEST_F(AmazonS3UpdateTime, IsTheMomentOfReadingWhenAbsent)
{
    const auto time = read("").lastUpdateTimeUtc;
    EXPECT_EQ("03/06/2024 12:34:56", time.toStdString("%m/%d/%Y %H:%M:%S"));
    EXPECT_TRUE(time.isUtcTime());
}

TEST_F(AmazonS3UpdateTime, IsTheDocumentsWhenPresent)
{
    for (const char* text : {"02/29/2000 23:59:59", "01/01/1970 00:00:00", "12/31/1969 23:59:59", "01/01/1400 00:00:00",
                             "12/31/9999 23:59:59"})
    {
        const auto time = read(" LastUpdateTimeUtc=\"" + std::string(text) + "\"").lastUpdateTimeUtc;
        EXPECT_EQ(text, time.toStdString("%m/%d/%Y %H:%M:%S"));
        EXPECT_TRUE(time.isUtcTime());
    }
}

} // namespace
