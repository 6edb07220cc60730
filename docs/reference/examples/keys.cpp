#include <iostream>

#include <zelmodel/keys.h>
#include <zelplatform/util/util.h>

using namespace zelplatform::model;

namespace
{

std::shared_ptr<crypto::CKeySet> madeKeySet()
{
    // The bytes stay in memory that is erased when it is released.
    const char bytes[] = {7, 3, 1, 4, 1, 5, 9, 2};
    auto key = std::make_shared<crypto::CKey>(crypto::sec_buffer_t(std::begin(bytes), std::end(bytes)));
    return std::make_shared<crypto::CKeySet>(crypto::CKeySetId("A1"), crypto::Local1, crypto::Storage, CUniString(),
                                             lin::lin_filetime_t{1709500000, 0},
                                             std::vector<std::shared_ptr<crypto::CKey>>{std::move(key)});
}

} // namespace

int main()
{
    structs::SExplicitBackupKeys bundle;
    bundle.id = guid::guid_t::FromAStr("6f9619ff-8b86-d011-b42d-00c04fc964ff");
    bundle.keySets.emplace(bundle.id, madeKeySet());

    // The text holds the keys: whoever makes it sends it and erases it.
    auto text = bundle.ToBase64();
    const auto received = structs::SExplicitBackupKeys::FromBase64(text);
    util::SecureErase(text.data(), text.size());
    std::cout << (received == bundle ? "the same keys" : "other keys") << ", text erased: " << (text[0] == '\0')
              << '\n';

    // What may go to a log, and the model's copy of a key set.
    const auto& keySet = received.keySets.at(bundle.id);
    std::cout << keySet->ToLogString() << '\n';
    const auto key = structs::SCryptoKey::FromKeySet(keySet);
    std::cout << ECryptoKeyType::ToLogString(key.type) << ", made "
              << key.creationTime.getUtcTime().toStdString("%Y-%m-%d") << '\n';
}
