#pragma once

#include <memory>
#include <vector>

#include <zelmodel/datetime/date_time_ex.h>
#include <zelmodel/enums/crypto_alg.h>
#include <zelmodel/enums/crypto_key_type.h>
#include <zelmodel/export.h>
#include <zelplatform/crypto/crypto.h>
#include <zelplatform/guid/guid.h>
#include <zelplatform/util/unicode.h>

namespace zelplatform::model::structs
{

/// The model's copy of one key set of the crypto platform. Key bytes stay in the platform's secure memory.
struct ZELMODEL_API SCryptoKey
{
    /// The record's own identifier, fresh at each conversion; not the key set's.
    guid::guid_t id;

    /// The key set's identifier.
    crypto::CKeySetId keySetId;

    /// The algorithm and the purpose, as the managing server numbers them.
    ECryptoAlg::type alg = ECryptoAlg::Qor1;
    ECryptoKeyType::type type = ECryptoKeyType::Password;

    /// The password hint.
    CUniString hint;

    /// In UTC, whole seconds; a key set from 1970-01-01 00:00:00 or before has none, and goes back as 0.
    CDateTimeEx creationTime;

    /// The keys themselves, shared with the key set.
    std::vector<std::shared_ptr<crypto::CKey>> keys;

    /// Throws "Failed to convert CKeySetPtr to SCryptoKey. Keyset: %1 ..." without a trace, for an empty pointer too.
    static SCryptoKey FromKeySet(const std::shared_ptr<crypto::CKeySet>& keySet);

    /// Throws "Failed to convert SCryptoKey to CKeySetPtr. ID: %1, type: %2, keyset ID: ..." without a trace.
    std::shared_ptr<crypto::CKeySet> ToKeySet() const;
};

/// Compares the keys by what they hold and the creation times as instants, whatever their offsets.
ZELMODEL_API bool operator==(const SCryptoKey& a, const SCryptoKey& b);
inline bool operator!=(const SCryptoKey& a, const SCryptoKey& b)
{
    return !(a == b);
}

} // namespace zelplatform::model::structs
