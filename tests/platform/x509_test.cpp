#include <zelplatform/crypto/x509.h>

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <optional>
#include <string>

#include <openssl/err.h>
#include <unistd.h>

#include <gtest/gtest.h>

#include <zelplatform/util/base64.h>

#include "support/expect_failure.h"
#include "support/made_certificates.h"

namespace
{

using crypto::openssl::CX509;
using namespace zelmodel_test;

constexpr std::size_t MaxSize = 1048576;

const std::string NoPair = "Unable to read certificate. There is no complete pair of BEGIN and END.";
const std::string NoBase64 = "Unable to read certificate. Unable to decode base64 text.";

std::string fingerprint(const std::string& pem)
{
    return CX509::FromPem(pem)->GetSHA256Fingerprint();
}

std::string base64(const std::string& bytes)
{
    return util::toBase64(bytes.data(), bytes.size());
}

/// What the command prints after "Fingerprint=", without its colons; nothing where there is no such command.
std::optional<std::string> commandFingerprint(const std::string& pem)
{
    if (std::system("command -v openssl > /dev/null") != 0)
        return std::nullopt;
    const auto path = std::filesystem::temp_directory_path() / ("x509_test_" + std::to_string(::getpid()) + ".pem");
    std::ofstream(path) << pem;
    std::FILE* const pipe = ::popen(("openssl x509 -noout -fingerprint -sha256 -in " + path.string()).c_str(), "r");
    require(pipe != nullptr);
    char line[256] = {};
    const bool isRead = std::fgets(line, sizeof(line), pipe) != nullptr;
    const int status = ::pclose(pipe);
    std::filesystem::remove(path);
    require(isRead && status == 0);
    const std::string text = replaced(replaced(line, ":", ""), "\n", "");
    return text.substr(text.find('=') + 1);
}

TEST(X509Test, TellsTheFingerprintOfTheDerForm)
{
    const KeyPtr keys[] = {makeEcKey(), makeRsaKey()};
    for (const auto& key : keys)
    {
        const auto x509 = makeCertificate(key.get(), "storage.example");
        const auto pem = pemOf(x509.get());
        const auto text = fingerprint(pem);
        EXPECT_EQ(text.size(), 64U);
        EXPECT_EQ(text.find_first_not_of("0123456789ABCDEF"), std::string::npos);
        EXPECT_EQ(text, sha256(derOf(x509.get())));
        EXPECT_EQ(text, commandFingerprint(pem).value_or(text));
    }
}

TEST(X509Test, ReadsTheCertificateHoweverItsLinesAreBroken)
{
    const auto key = makeEcKey();
    const auto x509 = makeCertificate(key.get(), "storage.example");
    const auto other = makeCertificate(key.get(), "other.example");
    const auto pem = pemOf(x509.get());
    const auto expected = sha256(derOf(x509.get()));
    ASSERT_NE(expected, sha256(derOf(other.get())));

    const std::string cases[] = {
        pem,
        replaced(pem, "\n", " "),
        replaced(pem, "\n", "\r\n"),
        replaced(pem, "\n", "\t"),
        replaced(pem, "\n", "  \n  "),
        replaced(pem, "\n", ""),
        pem.substr(0, pem.size() - 1),
        "Bag Attributes: none\n" + pem + "rubbish -----BEGIN",
        pem + pemOf(other.get()),
        pem + "-----BEGIN CERTIFICATE-----",
        block("CERTIFICATE REQUEST", "AAAA") + pem,
        block("X509 CRL", "AAAA") + block("PRIVATE KEY", "AAAA") + pem,
        "-----BEGIN NOTHING " + pem,
        std::string(MaxSize - pem.size(), ' ') + pem,
        pem + std::string(MaxSize - pem.size(), '\0'),
    };
    for (const auto& text : cases)
    {
        const auto certificate = CX509::FromPem(text);
        EXPECT_EQ(certificate->GetSHA256Fingerprint(), expected);
        EXPECT_EQ(X509_cmp(certificate->GetNative(), x509.get()), 0);
        EXPECT_EQ(ERR_peek_error(), 0U);
    }
}

TEST(X509Test, RefusesWhatHoldsNoCertificate)
{
    const auto key = makeEcKey();
    const auto x509 = makeCertificate(key.get(), "storage.example");
    const auto pem = pemOf(x509.get());
    const auto body = bodyOf(pem);
    const auto der = derOf(x509.get());
    const std::string begin = "-----BEGIN CERTIFICATE-----";
    const std::string end = "-----END CERTIFICATE-----";

    struct Case
    {
        std::string text;
        std::string message;
    };
    const Case cases[] = {
        {"", NoPair},
        {"rubbish", NoPair},
        {body, NoPair},
        {begin, NoPair},
        {end, NoPair},
        {end + body + begin, NoPair},
        {begin + body, NoPair},
        {body + end, NoPair},
        {begin + body + "-----END CERTIFICATE----", NoPair},
        {"----BEGIN CERTIFICATE-----" + body + end, NoPair},
        {"-----BEGIN CERTIFICATE----" + body + end, NoPair},
        {begin + body + "-----END X509 CRL-----", NoPair},
        {begin + body + begin + body + end, NoPair},
        {begin + body + pem, NoPair},
        {block("certificate", body), NoPair},
        {block("TRUSTED CERTIFICATE", body), NoPair},
        {block("CERTIFICATE REQUEST", body), NoPair},
        {block("PRIVATE KEY", body), NoPair},
        {block("CERTIFICATE", body + "*"), NoBase64},
        {block("CERTIFICATE", body + "A"), NoBase64},
        {block("CERTIFICATE", "====" + body), NoBase64},
        {block("CERTIFICATE", body.substr(0, 101)), NoBase64},
        {block("CERTIFICATE", std::string(1, '\0') + body), NoBase64},
        {block("CERTIFICATE", "Proc-Type: 4,ENCRYPTED\n\n" + body), NoBase64},
        {block("CERTIFICATE", base64(der + '\0')), "Unable to read certificate. Bytes follow the certificate."},
        {block("CERTIFICATE", base64(der + der)), "Unable to read certificate. Bytes follow the certificate."},
        {pem + std::string(MaxSize + 1 - pem.size(), ' '),
         "Unable to read certificate. Text of [1048577] bytes is longer than [1048576]."},
    };
    for (const auto& [text, message] : cases)
    {
        EXPECT_EQ(failureText([&, t = text] { CX509::FromPem(t); }), message) << text;
        EXPECT_EQ(ERR_peek_error(), 0U);
    }
}

TEST(X509Test, TellsWhatOpenSslSays)
{
    const auto key = makeEcKey();
    const auto x509 = makeCertificate(key.get(), "storage.example");
    const auto der = derOf(x509.get());
    const std::string cases[] = {
        "",
        base64(std::string(100, '\0')),
        base64(std::string(100, '\xFF')),
        base64("\x30\x84\xFF\xFF\xFF\xFF" + der),
        base64("\x30\x80" + der),
        bodyOf(pemOf(key.get())),
    };
    for (const auto& body : cases)
    {
        ERR_raise(ERR_LIB_USER, ERR_R_MALLOC_FAILURE);
        const auto message = failureText([&] { CX509::FromPem(block("CERTIFICATE", body)); });
        EXPECT_EQ(message.find("Unable to read certificate. OpenSSL reports [error:"), 0U) << message;
        EXPECT_EQ(message.substr(message.size() - 2), "].");
        EXPECT_EQ(message.find("malloc"), std::string::npos) << message;
        EXPECT_FALSE(quotes(message, body));
        EXPECT_EQ(ERR_peek_error(), 0U);
    }
}

TEST(X509Test, RefusesACertificateCutAtAnyByte)
{
    const auto key = makeEcKey();
    const auto der = derOf(makeCertificate(key.get(), "storage.example").get());
    for (std::size_t size = 0; size < der.size(); ++size)
    {
        const auto body = base64(der.substr(0, size));
        const auto message = failureText([&] { CX509::FromPem(block("CERTIFICATE", body)); });
        EXPECT_EQ(message.find("Unable to read certificate. OpenSSL reports [error:"), 0U) << size << message;
        EXPECT_FALSE(quotes(message, body));
    }
}

TEST(X509Test, EmptiesTheErrorQueueOfThisThread)
{
    const auto key = makeEcKey();
    const auto pem = pemOf(makeCertificate(key.get(), "storage.example").get());
    ERR_raise(ERR_LIB_USER, ERR_R_MALLOC_FAILURE);
    const auto certificate = CX509::FromPem(pem);
    EXPECT_EQ(ERR_peek_error(), 0U);
    certificate->GetSHA256Fingerprint();
    EXPECT_EQ(ERR_peek_error(), 0U);
}

} // namespace
