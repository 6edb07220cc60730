#include "key_bundle_sample.h"

#include <memory>
#include <vector>

namespace zelmodel_bench
{

zelplatform::model::structs::SExplicitBackupKeys makeBundle(std::size_t keySize)
{
    zelplatform::model::structs::SExplicitBackupKeys bundle;
    bundle.id = guid::guid_t::CreateNew();
    for (int i = 0; i < BundleEntries; ++i)
    {
        const std::vector<char> idBytes(16, static_cast<char>(i));
        const crypto::sec_buffer_t keyBytes(keySize, static_cast<char>(i));
        std::vector<std::shared_ptr<crypto::CKey>> keys{std::make_shared<crypto::CKey>(keyBytes)};
        bundle.keySets.emplace(guid::guid_t::CreateNew(),
                               std::make_shared<crypto::CKeySet>(crypto::CKeySetId({idBytes.data(), idBytes.size()}),
                                                                 crypto::ECryptAlgs::Local1,
                                                                 crypto::EKeySetUsageRole::Storage, CUniString(L"hint"),
                                                                 lin::lin_filetime_t{1700000000, 0}, keys));
    }
    return bundle;
}

} // namespace zelmodel_bench
