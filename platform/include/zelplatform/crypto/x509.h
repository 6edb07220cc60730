#pragma once

#include <memory>
#include <string>
#include <utility>

#include <zelplatform/export.h>

struct x509_st;

/// Certificates and private keys, read by OpenSSL.
namespace crypto::openssl
{

/// An X.509 certificate.
class ZELPLATFORM_API CX509
{
public:
    /// Reads the certificate between the first BEGIN CERTIFICATE and END CERTIFICATE of a text of at most 1 MiB; all
    /// around them is passed over. Line breaks may have become blanks or may be missing. Throws, without quoting the
    /// text, when there is no such pair or not exactly one certificate in it.
    static std::shared_ptr<CX509> FromPem(const std::string& pem);

    /// SHA-256 of the DER form: 64 upper-case hexadecimal digits.
    std::string GetSHA256Fingerprint() const;

    /// OpenSSL's certificate, owned by this object.
    x509_st* GetNative() const noexcept { return m_certificate.get(); }

private:
    struct Release
    {
        void operator()(x509_st* certificate) const noexcept;
    };

    using Handle = std::unique_ptr<x509_st, Release>;

    explicit CX509(Handle certificate) noexcept : m_certificate(std::move(certificate)) {}

    Handle m_certificate;
};

} // namespace crypto::openssl
