#pragma once

#include <cstdint>

#include <zelmodel/export.h>
#include <zelplatform/crypto/crypto.h>

namespace zelplatform::model
{

/// An encryption algorithm as the managing server numbers it.
struct ZELMODEL_API ECryptoAlg
{
    enum type : std::int32_t
    {
        Qor1 = 1,
        Qor2 = 2
    };

    /// The crypto platform's number; throws "Unknown qor crypto alg: %1".
    static crypto::ECryptAlgs ToLocalType(type value);

    /// From the crypto platform's number; throws "Unknown local crypto alg: %1".
    static type FromLocalType(crypto::ECryptAlgs value);
};

} // namespace zelplatform::model
