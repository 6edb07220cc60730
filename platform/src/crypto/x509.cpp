#include <zelplatform/crypto/x509.h>

#include <array>
#include <exception>
#include <string_view>
#include <utility>

#include <openssl/evp.h>
#include <openssl/x509.h>

#include <crypto/hex.h>
#include <crypto/openssl_errors.h>
#include <crypto/pem_block.h>
#include <zelplatform/exc/exc.h>
#include <zelplatform/util/base64.h>

namespace crypto::openssl
{
namespace
{

bool isCertificate(std::string_view label)
{
    return label == "CERTIFICATE";
}

} // namespace

void CX509::Release::operator()(x509_st* certificate) const noexcept
{
    X509_free(certificate);
}

std::shared_ptr<CX509> CX509::FromPem(const std::string& pem)
try
{
    const auto der = util::fromBase64(findPemBlock(pem, isCertificate).body);
    const ErrorScope errors;
    const auto* end = reinterpret_cast<const unsigned char*>(der.data());
    const auto* const derEnd = end + der.size();
    Handle certificate(d2i_X509(nullptr, &end, static_cast<long>(der.size())));
    if (!certificate)
        ErrorScope::raise();
    if (end != derEnd)
        throw exc::CRuntimeExc("Bytes follow the certificate.");
    return std::shared_ptr<CX509>(new CX509(std::move(certificate)));
}
catch (std::exception& cause)
{
    exc::RegenTraceExc("Unable to read certificate.", cause);
}

std::string CX509::GetSHA256Fingerprint() const
{
    const ErrorScope errors;
    std::array<unsigned char, EVP_MAX_MD_SIZE> digest{};
    unsigned size = 0;
    if (X509_digest(m_certificate.get(), EVP_sha256(), digest.data(), &size) != 1)
        ErrorScope::raise();
    return hexText(digest.data(), size);
}

} // namespace crypto::openssl
