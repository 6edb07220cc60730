#include <memory>
#include <string>

#include <gtest/gtest.h>

#include <support/made_certificates.h>
#include <zelmodel/structs/certificate.h>

namespace
{

using crypto::openssl::CEvpPrivateKey;
using crypto::openssl::CX509;
using zelplatform::model::structs::SCertificate;

SCertificate made()
{
    const auto key = zelmodel_test::makeEcKey();
    const auto x509 = zelmodel_test::makeCertificate(key.get(), "agent.example.org");
    SCertificate result;
    result.certificate = CX509::FromPem(zelmodel_test::pemOf(x509.get()));
    result.privateKey = CEvpPrivateKey::FromPem(zelmodel_test::pemOf(key.get()));
    return result;
}

TEST(Certificate, ContainerHoldsTheSameObjects)
{
    const SCertificate certificate = made();
    const auto container = certificate.ToOstraCertificateContainer();
    ASSERT_NE(nullptr, container);
    EXPECT_EQ(certificate.certificate, container->certificate);
    EXPECT_EQ(certificate.privateKey, container->privateKey);
    EXPECT_EQ(2, certificate.certificate.use_count());
    EXPECT_EQ(2, certificate.privateKey.use_count());
}

TEST(Certificate, ContainerOutlivesTheRecord)
{
    auto certificate = std::make_unique<SCertificate>(made());
    const std::string fingerprint = certificate->certificate->GetSHA256Fingerprint();
    const auto container = certificate->ToOstraCertificateContainer();
    certificate.reset();
    EXPECT_EQ(fingerprint, container->certificate->GetSHA256Fingerprint());
    EXPECT_NE(nullptr, container->privateKey->GetNative());
}

TEST(Certificate, EachCallMakesAContainerOfItsOwn)
{
    const SCertificate certificate = made();
    EXPECT_NE(certificate.ToOstraCertificateContainer(), certificate.ToOstraCertificateContainer());
}

TEST(Certificate, EmptyPointersAreCarriedAsTheyAre)
{
    const SCertificate full = made();
    const auto none = SCertificate().ToOstraCertificateContainer();
    ASSERT_NE(nullptr, none);
    EXPECT_EQ(nullptr, none->certificate);
    EXPECT_EQ(nullptr, none->privateKey);

    SCertificate half;
    half.certificate = full.certificate;
    EXPECT_EQ(full.certificate, half.ToOstraCertificateContainer()->certificate);
    EXPECT_EQ(nullptr, half.ToOstraCertificateContainer()->privateKey);

    half.certificate = nullptr;
    half.privateKey = full.privateKey;
    EXPECT_EQ(nullptr, half.ToOstraCertificateContainer()->certificate);
    EXPECT_EQ(full.privateKey, half.ToOstraCertificateContainer()->privateKey);
}

TEST(Certificate, QuirkPairIsNotChecked)
{
    SCertificate mixed = made();
    mixed.privateKey = made().privateKey;
    const auto container = mixed.ToOstraCertificateContainer();
    EXPECT_EQ(mixed.certificate, container->certificate);
    EXPECT_EQ(mixed.privateKey, container->privateKey);
}

} // namespace
