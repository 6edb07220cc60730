#include <iostream>

#include <zelmodel/keys.h>
#include <zelplatform/util/util.h>

using namespace zelplatform::model;

namespace
{

/// A text that holds keys: erased at the end of its scope, however that is left.
struct SecretText
{
    std::string text;

    ~SecretText() { util::SecureErase(text.data(), text.size()); }
};

std::shared_ptr<crypto::CKeySet> madeKeySet()
{
    // The bytes of a key stay in memory that is erased when it is released.
    auto key = std::make_shared<crypto::CKey>(crypto::sec_buffer_t{7, 3, 1, 4, 1, 5, 9, 2});
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

    // One side makes the text, the other reads it; both erase it.
    SecretText message{bundle.ToBase64()};
    const auto received = structs::SExplicitBackupKeys::FromBase64(message.text);
    std::cout << (received == bundle ? "the same keys\n" : "other keys\n");

    // What may go to a log, and the model's copy of a key set.
    const auto& keySet = received.keySets.at(bundle.id);
    std::cout << keySet->ToLogString() << '\n';
    const auto key = structs::SCryptoKey::FromKeySet(keySet);
    std::cout << ECryptoKeyType::ToLogString(key.type) << ", made "
              << key.creationTime.getUtcTime().toStdString("%Y-%m-%d") << '\n';
}
