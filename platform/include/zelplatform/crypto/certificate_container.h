#pragma once

#include <memory>
#include <utility>

#include <zelplatform/crypto/private_key.h>
#include <zelplatform/crypto/x509.h>
#include <zelplatform/export.h>

namespace crypto
{

/// A certificate and its private key. Either pointer may be empty; whether they belong together is not checked.
struct ZELPLATFORM_API SOstraCertificateContainer
{
    /// The two pointers as they are.
    SOstraCertificateContainer(std::shared_ptr<openssl::CX509> x509, std::shared_ptr<openssl::CEvpPrivateKey> key)
        : certificate(std::move(x509)), privateKey(std::move(key))
    {
    }

    /// What the constructor was given.
    std::shared_ptr<openssl::CX509> certificate;
    std::shared_ptr<openssl::CEvpPrivateKey> privateKey;
};

} // namespace crypto
