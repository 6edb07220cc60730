#include <string>

#include <gtest/gtest.h>

#include <support/expect_failure.h>
#include <support/made_certificates.h>
#include <zelmodel/repositories.h>
#include <zelplatform/xmlpp/xmlpp.h>

namespace
{

using namespace zelplatform::model::structs;
using zelmodel_test::failureText;
using zelmodel_test::replaced;

const std::string begin = "-----BEGIN CERTIFICATE-----";
const std::string end = "-----END CERTIFICATE-----";

struct Made
{
    std::string pem;
    std::string fingerprint;
};

Made freshCertificate(const std::string& name, const zelmodel_test::KeyPtr& key = zelmodel_test::makeEd25519Key())
{
    const auto certificate = zelmodel_test::makeCertificate(key.get(), name);
    return {zelmodel_test::pemOf(certificate.get()), zelmodel_test::sha256(zelmodel_test::derOf(certificate.get()))};
}

/// Reads an endpoint with such attributes after "ApiEndpoint" and "ArnString".
SAmazonS3Endpoint readEndpoint(const std::string& attributes)
{
    const auto document =
        xmlpp::CXmlDocument::Unserialize("<a><Endpoint ApiEndpoint=\"\" ArnString=\"\" " + attributes + "/></a>");
    return SAmazonS3Endpoint::FromXmlNode(document.GetRootNode());
}

/// The attribute with every line break as a reference.
std::string certificateAttribute(const std::string& pem)
{
    return "ServerCertificate=\"" + replaced(pem, "\n", "&#10;") + "\"";
}

class AmazonS3Certificate : public testing::Test
{
protected:
    static const Made& certificate()
    {
        static const Made made = freshCertificate("s3.example.com");
        return made;
    }
    static const std::string& pem() { return certificate().pem; }
    static const std::string& fingerprint() { return certificate().fingerprint; }

    static std::string refusal(const std::string& attributes)
    {
        return failureText([&] { readEndpoint(attributes); });
    }

    static void expectRefused(const std::string& attributes)
    {
        const std::string sentence = "Failed to parse SAmazonS3Endpoint from XML. ";
        const std::string failure = refusal(attributes);
        EXPECT_EQ(0U, failure.find(sentence)) << failure;
        EXPECT_LT(sentence.size(), failure.size()) << attributes.substr(0, 200);
        EXPECT_EQ(std::string::npos, failure.find(pem().substr(begin.size() + 1, 20))) << failure;
    }
};

TEST_F(AmazonS3Certificate, IsKeptAsItsFingerprint)
{
    ASSERT_EQ(64U, fingerprint().size());
    EXPECT_EQ(fingerprint(), readEndpoint(certificateAttribute(pem())).fingerprint);
}

TEST_F(AmazonS3Certificate, KindsOfKeysMakeNoDifference)
{
    for (const auto makeKey : {zelmodel_test::makeRsaKey, zelmodel_test::makeEcKey, zelmodel_test::makeEd25519Key})
    {
        const auto made = freshCertificate("s3.example.com", makeKey());
        EXPECT_EQ(made.fingerprint, readEndpoint(certificateAttribute(made.pem)).fingerprint);
    }
}

// An attribute that was written with raw line breaks reads with blanks, or not at all, depending on the writer.
TEST_F(AmazonS3Certificate, LineBreaksMayHaveChanged)
{
    for (const char* lineBreak : {"\n", "\r\n", "&#10;", "&#xD;&#xA;", " ", "  ", "\t", ""})
    {
        const std::string text = "ServerCertificate=\"" + replaced(pem(), "\n", lineBreak) + "\"";
        EXPECT_EQ(fingerprint(), readEndpoint(text).fingerprint) << text;
    }
}

TEST_F(AmazonS3Certificate, TextAroundItIsPassedOver)
{
    const std::string other = freshCertificate("other.example.com").pem;
    for (const std::string& text :
         {"subject=CN = s3.example.com\n" + pem(), pem() + "that was it", pem() + other, pem() + begin + "\njunk"})
    {
        EXPECT_EQ(fingerprint(), readEndpoint(certificateAttribute(text)).fingerprint);
    }
}

TEST_F(AmazonS3Certificate, ExplicitFingerprintWins)
{
    for (const char* text : {"AA", "not a fingerprint", "00:11:22"})
    {
        const std::string attribute = "Fingerprint=\"" + std::string(text) + "\" ";
        EXPECT_EQ(text, readEndpoint(certificateAttribute(pem()) + " " + attribute).fingerprint);
        EXPECT_EQ(text, readEndpoint(attribute + certificateAttribute(pem())).fingerprint);
        EXPECT_EQ(text, readEndpoint(attribute).fingerprint);
    }
}

TEST_F(AmazonS3Certificate, EmptyFingerprintBesideACertificateWinsToo)
{
    EXPECT_EQ("", readEndpoint(certificateAttribute(pem()) + " Fingerprint=\"\"").fingerprint);
}

TEST_F(AmazonS3Certificate, IsNeverWritten)
{
    const auto endpoint = readEndpoint(certificateAttribute(pem()));
    xmlpp::CXmlDocument document;
    xmlpp::CXmlNode parent = document.AddRootNode("a");
    endpoint.ToXmlNode(parent);
    EXPECT_EQ("<a><Endpoint ApiEndpoint=\"\" ArnString=\"\" Fingerprint=\"" + fingerprint() + "\"/></a>",
              document.Serialize());
    EXPECT_TRUE(SAmazonS3Endpoint::FromXmlNode(document.GetRootNode()) == endpoint);
}

TEST_F(AmazonS3Certificate, WithoutACompletePairItIsRefused)
{
    const std::string body = pem().substr(begin.size(), pem().find(end) - begin.size());
    for (const std::string& text :
         {std::string(), std::string(" "), std::string("certificate"), body, begin, end, begin + end,
          begin + "\n" + end, begin + body, body + end, end + body + begin, begin.substr(1) + body + end,
          replaced(pem(), " CERTIFICATE", " CERTIFICATE REQUEST"), replaced(pem(), " CERTIFICATE", " PRIVATE KEY"),
          replaced(pem(), "CERTIFICATE", "certificate")})
    {
        expectRefused(certificateAttribute(text));
    }
}

TEST_F(AmazonS3Certificate, DamagedBytesAreRefused)
{
    const std::string body = pem().substr(begin.size() + 1, pem().find(end) - begin.size() - 1);
    for (const std::string& damaged : {body.substr(0, body.size() / 2), body.substr(0, 20) + "!" + body.substr(21),
                                       "AAAA\n" + body, body + body, std::string("Y2FuYXJ5\n"), "====\n" + body})
    {
        expectRefused(certificateAttribute(begin + "\n" + damaged + end + "\n"));
    }
}

// The certificate is looked at even where its fingerprint is not needed.
TEST_F(AmazonS3Certificate, BadOneFailsBesideAnExplicitFingerprint)
{
    expectRefused("ServerCertificate=\"junk\" Fingerprint=\"AA\"");
    expectRefused("ServerCertificate=\"\" Fingerprint=\"AA\"");
}

TEST_F(AmazonS3Certificate, TooLongATextIsRefused)
{
    expectRefused(certificateAttribute(std::string(1024 * 1024 + 1, ' ') + pem()));
    expectRefused(certificateAttribute(begin + "\n" + std::string(2 * 1024 * 1024, 'A') + "\n" + end));
}

TEST_F(AmazonS3Certificate, FailureIsWrappedByEveryReaderAround)
{
    const std::string text = "<AmazonS3SpecificParams><Credentials AccessKeyId=\"\" SecretAccessKey=\"\" "
                             "SessionToken=\"\" RoleName=\"\" MetadataHost=\"\"/><Endpoint ApiEndpoint=\"\" "
                             "ArnString=\"\" ServerCertificate=\"junk\"/></AmazonS3SpecificParams>";
    const std::string failure = failureText([&] { SAmazonS3SpecificParams::FromXmlStr(text); });
    EXPECT_EQ("Failed to parse SAmazonS3SpecificParams from xml string. Failed to parse SAmazonS3SpecificParams from "
              "xml. " +
                  refusal("ServerCertificate=\"junk\""),
              failure);
}

} // namespace
