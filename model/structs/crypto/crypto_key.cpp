#include <zelmodel/structs/crypto/crypto_key.h>

#include <zelplatform/exc/exc.h>
#include <zelplatform/util/util.h>

#include "detail/key_content.h"

namespace zelplatform::model::structs
{

SCryptoKey SCryptoKey::FromKeySet(const std::shared_ptr<crypto::CKeySet>& keySet)
try
{
    if (!keySet)
        throw exc::CRuntimeExc("There is no key set.");
    const datetime::CDateTime creationTime(keySet->GetCreationTime().GetSecNum(), true);
    SCryptoKey key;
    key.id = guid::guid_t::CreateNew();
    key.keySetId = keySet->GetId();
    key.alg = ECryptoAlg::FromLocalType(keySet->GetAlg());
    key.type = ECryptoKeyType::FromCryptoKeyRole(keySet->GetUsageRole());
    key.hint = keySet->GetHint();
    key.creationTime = CDateTimeEx::fromUtcTime(creationTime);
    key.keys = keySet->GetKeys();
    return key;
}
catch (std::exception& cause)
{
    exc::RegenExc("Failed to convert CKeySetPtr to SCryptoKey. Keyset: %1", keySet ? keySet->ToLogString() : "", cause);
}

// The key set's id stands behind the formatted sentence, which ends in a blank: kept on purpose.
std::shared_ptr<crypto::CKeySet> SCryptoKey::ToKeySet() const
try
{
    const auto localAlg = ECryptoAlg::ToLocalType(alg);
    const auto role = ECryptoKeyType::ToCryptoKeyRole(type);
    const auto fileTime = util::FiletimeFromUnixTime(creationTime.getUtcTime().toUnixTime());
    return std::make_shared<crypto::CKeySet>(keySetId, localAlg, role, hint, fileTime, keys);
}
catch (std::exception& cause)
{
    const auto context =
        util::str_format("Failed to convert SCryptoKey to CKeySetPtr. ID: %1, type: %2, keyset ID: ", util::toStr(id),
                         ECryptoKeyType::ToLogString(type));
    exc::RegenExc(context + keySetId.ToLogString(), cause);
}

bool operator==(const SCryptoKey& a, const SCryptoKey& b)
{
    return a.id == b.id && a.keySetId == b.keySetId && a.alg == b.alg && a.type == b.type && a.hint == b.hint &&
           !(a.creationTime < b.creationTime) && !(a.creationTime > b.creationTime) &&
           detail::areSameKeys(a.keys, b.keys);
}

} // namespace zelplatform::model::structs
