#include <memory>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include <zelmodel/repositories.h>
#include <zelplatform/exc/exc.h>
#include <zelplatform/logging/logging.h>

namespace
{

using namespace zelplatform::model::structs;

constexpr const char* Canaries[] = {"canary-secret-key", "canary-token", "canary-password", "canary-pem"};

/// Collects what failures say and what is logged, and looks for secrets in it.
class AmazonS3Secrets : public testing::Test
{
protected:
    AmazonS3Secrets() { logging::set_sink(m_sink); }
    ~AmazonS3Secrets() override { logging::set_sink(nullptr); }

    void TearDown() override
    {
        for (const auto& entry : m_sink->entries())
            m_told += entry.text;
        for (const char* canary : Canaries)
            EXPECT_EQ(std::string::npos, m_told.find(canary)) << m_told;
    }

    template <class F>
    void fail(F&& action)
    {
        try
        {
            action();
            ADD_FAILURE() << "nothing was thrown";
        }
        catch (const exc::CRuntimeExc& failure)
        {
            m_told += failure.what();
            for (const auto& sentence : failure.trace())
                m_told += sentence;
        }
    }

    void refuse(const std::string& text)
    {
        fail([&] { SAmazonS3SpecificParams::FromXmlStr(text); });
    }

    std::shared_ptr<logging::memory_sink> m_sink = std::make_shared<logging::memory_sink>();
    std::string m_told;
};

SAmazonS3SpecificParams secretParams()
{
    SAmazonS3SpecificParams params;
    params.endpoint.apiEndpoint = "https://s3.example.com";
    params.endpoint.fingerprint = "00AA";
    params.endpoint.proxy = SAmazonS3Proxy{"http://proxy", "svc", "canary-password"};
    params.credentials.accessKeyId = "AKIDEXAMPLE";
    params.credentials.secretAccessKey = "canary-secret-key";
    params.credentials.sessionToken = "canary-token";
    return params;
}

TEST_F(AmazonS3Secrets, NoneInTheLogText)
{
    m_told += secretParams().ToLogStr();
    EXPECT_EQ("endpoint: {api: https://s3.example.com}, credentials: {accessKey: AKIDEXAMPLE}", m_told);
}

TEST_F(AmazonS3Secrets, NoneInARefusalWhateverIsMissing)
{
    const std::string text = secretParams().ToXmlStr();
    for (const char* name : {"AccessKeyId", "SecretAccessKey", "SessionToken", "RoleName", "MetadataHost",
                             "ApiEndpoint", "ArnString", "endpoint", "login", "password"})
    {
        std::string changed = text;
        const std::string attribute = std::string(" ") + name + "=";
        const auto position = changed.find(attribute);
        ASSERT_NE(std::string::npos, position) << name;
        changed.replace(position, attribute.size(), " Other=");
        refuse(changed);
    }
}

TEST_F(AmazonS3Secrets, NoneInARefusalOfMalformedText)
{
    const std::string text = secretParams().ToXmlStr();
    for (std::size_t length = 0; length < text.size(); ++length)
        refuse(text.substr(0, length));
    refuse(text + "canary-token");
    refuse("<AmazonS3SpecificParams canary-token=\"1\" canary-token=\"2\"/>");
    refuse("<AmazonS3SpecificParams SecretAccessKey=\"canary-secret-key&#0;\"/>");
    refuse("<AmazonS3SpecificParams SecretAccessKey=canary-secret-key/>");
}

TEST_F(AmazonS3Secrets, NoneInARefusalOfADateOrACertificate)
{
    std::string text = secretParams().ToXmlStr();
    const auto date = text.find("01/01/1970");
    ASSERT_NE(std::string::npos, date);
    text.replace(date, 10, "02/30/1970");
    refuse(text);

    for (const char* pem : {"canary-pem", "-----BEGIN CERTIFICATE-----canary-pem-----END CERTIFICATE-----",
                            "-----BEGIN CERTIFICATE-----&#10;Y2FuYXJ5LXBlbQ==&#10;-----END CERTIFICATE-----",
                            "-----BEGIN CERTIFICATE-----&#10;canary-pem"})
    {
        std::string changed = secretParams().ToXmlStr();
        const auto position = changed.find("Fingerprint=\"00AA\"");
        ASSERT_NE(std::string::npos, position);
        changed.replace(position, 18, "ServerCertificate=\"" + std::string(pem) + "\"");
        refuse(changed);
        EXPECT_EQ(std::string::npos, m_told.find("Y2FuYXJ5LXBlbQ==")) << m_told;
    }
}

TEST_F(AmazonS3Secrets, NoneInARefusalToWrite)
{
    std::string SAmazonS3Credentials::*const fields[] = {&SAmazonS3Credentials::secretAccessKey,
                                                         &SAmazonS3Credentials::sessionToken};
    for (const auto field : fields)
    {
        auto params = secretParams();
        params.credentials.*field += '\x01';
        fail([&] { (void)params.ToXmlStr(); });
    }
    auto params = secretParams();
    params.endpoint.proxy->password += '\0';
    fail([&] { (void)params.ToXmlStr(); });
}

TEST_F(AmazonS3Secrets, ReadingAndWritingLogNothing)
{
    EXPECT_TRUE(SAmazonS3SpecificParams::FromXmlStr(secretParams().ToXmlStr()) == secretParams());
    EXPECT_TRUE(m_sink->entries().empty());
}

} // namespace
