#pragma once

#include <memory>

#include <zelmodel/export.h>
#include <zelplatform/crypto/crypto.h>

namespace zelplatform::model::structs
{

/// A certificate and its private key.
struct ZELMODEL_API SCertificate
{
    /// Either may be empty; whether they belong together is not checked.
    std::shared_ptr<crypto::openssl::CX509> certificate;
    std::shared_ptr<crypto::openssl::CEvpPrivateKey> privateKey;

    /// The same two pointers, empty ones too, as the crypto platform takes them.
    std::shared_ptr<crypto::SOstraCertificateContainer> ToOstraCertificateContainer() const;
};

} // namespace zelplatform::model::structs
