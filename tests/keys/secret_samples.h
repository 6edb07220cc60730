#pragma once

#include <cstddef>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include <zelmodel/keys.h>
#include <zelplatform/util/util.h>

#include "sample_keys.h"
#include "secret_watch.h"

namespace zelmodel_test
{

constexpr std::size_t SecretSize = 200;

/// A text that the test itself has to protect.
class ErasedText
{
public:
    explicit ErasedText(std::string text) : m_text(std::move(text)) {}
    ~ErasedText()
    {
        // What was cut off is still there.
        m_text.resize(m_text.capacity());
        util::SecureErase(m_text.data(), m_text.size());
    }
    ErasedText(const ErasedText&) = delete;
    ErasedText& operator=(const ErasedText&) = delete;

    std::string& str() noexcept { return m_text; }
    const std::string& str() const noexcept { return m_text; }

private:
    std::string m_text;
};

inline crypto::sec_buffer_t secretBytes(std::size_t size = SecretSize)
{
    return crypto::sec_buffer_t(size, SecretByte);
}

/// A key set whose keys, a short one among them, were never anywhere but in secure memory.
inline std::shared_ptr<crypto::CKeySet> secretKeySet()
{
    std::vector<std::shared_ptr<crypto::CKey>> keys;
    for (const std::size_t size : {SecretSize, std::size_t{32}, SecretSize})
        keys.push_back(std::make_shared<crypto::CKey>(secretBytes(size)));
    return std::make_shared<crypto::CKeySet>(crypto::CKeySetId("id"), crypto::Local0, crypto::Storage,
                                             CUniString(L"hint"), lin::lin_filetime_t{1709728496, 0}, keys);
}

inline zelplatform::model::structs::SExplicitBackupKeys secretBundle()
{
    zelplatform::model::structs::SExplicitBackupKeys keys;
    keys.id = guid::guid_t::FromAStr("e2a57c90-14fb-4b8d-9d36-05c8f1e6a742");
    keys.keySets[keys.id] = secretKeySet();
    keys.keySets[guid::guid_t::FromAStr("f2a57c90-14fb-4b8d-9d36-05c8f1e6a742")] = secretKeySet();
    return keys;
}

inline zelplatform::model::structs::SPasswordDerivedKey secretDerivedKey()
{
    return {secretKeySet(), std::make_shared<crypto::sec_buffer_t>(secretBytes())};
}

/// The binary form of a record, in secure memory.
template <class TRecord>
crypto::sec_buffer_t secretForm(const TRecord& record)
{
    io::mem_stream_tt memory;
    io::binary_stream_tt stream(memory);
    record.Serialize(stream);
    return memory.buffer();
}

/// The record that a binary form in secure memory reads as.
template <class TRecord>
TRecord fromSecretForm(crypto::sec_buffer_t bytes)
{
    io::mem_stream_tt memory(std::move(bytes));
    io::binary_stream_tt stream(memory);
    TRecord record;
    record.Unserialize(stream);
    return record;
}

} // namespace zelmodel_test
