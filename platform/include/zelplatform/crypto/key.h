#pragma once

#include <cstddef>

#include <zelplatform/crypto/sec_buffer.h>
#include <zelplatform/export.h>

namespace crypto
{

/// The bytes of a key, in secure memory for as long as they live. There is no text of a key.
class ZELPLATFORM_API CKey
{
public:
    static constexpr std::size_t MaxSize = 65536;

    /// Throws when there are more than 65536 bytes.
    explicit CKey(sec_buffer_t bytes);

    /// Throws when no key can have that many bytes.
    static void CheckSize(std::size_t size);

    std::size_t size() const noexcept { return m_bytes.size(); }
    const char* data() const noexcept { return m_bytes.data(); }

    /// Takes the same time wherever keys of one length differ.
    friend ZELPLATFORM_API bool operator==(const CKey& a, const CKey& b) noexcept;
    friend bool operator!=(const CKey& a, const CKey& b) noexcept { return !(a == b); }

private:
    sec_buffer_t m_bytes;
};

} // namespace crypto
