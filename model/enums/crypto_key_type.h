#pragma once

#include <cstdint>
#include <string>

#include <zelmodel/export.h>
#include <zelplatform/crypto/crypto.h>

namespace zelplatform::model
{

/// What a key set is for, as the managing server numbers it. Two pairs of types share a role of the crypto platform and
/// come back as one of them: DB as Meta and PublicPolicy as PrivatePolicy, on purpose.
struct ZELMODEL_API ECryptoKeyType
{
    enum type : std::int32_t
    {
        Password = 0,
        Session = 1,
        Storage = 4,
        Meta = 5,
        Enterprise = 6,
        DB = 7,
        Archive = 8,
        History = 9,
        PublicPolicy = 10,
        PrivatePolicy = 11,
        SymmetricRndAgent = 12,
        KmsMasterPublic = 15
    };

    /// The name, or "Unknown (%1)" with the number; never throws for a number.
    static std::string ToLogString(type value);

    /// Throws "Unable to convert ECryptoKeyType %1 to EKeySetUsageRole".
    static crypto::EKeySetUsageRole ToCryptoKeyRole(type value);

    /// Throws "Unable to convert EKeySetUsageRole %1 to ECryptoKeyType".
    static type FromCryptoKeyRole(crypto::EKeySetUsageRole role);
};

} // namespace zelplatform::model
