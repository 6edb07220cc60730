#pragma once

#include <cstddef>

#include <zelplatform/crypto/sec_buffer.h>
#include <zelplatform/export.h>
#include <zelplatform/io/binary_stream.h>

namespace crypto
{

/// The bytes of a key, in secure memory for as long as they live. There is no text of a key.
class ZELPLATFORM_API CKey
{
public:
    /// The most bytes that a key may have.
    static constexpr std::size_t MaxSize = 65536;

    /// Throws when there are more than 65536 bytes.
    explicit CKey(sec_buffer_t bytes);

    /// Reads that many bytes, which are not trusted to be there; throws when no key can have as many.
    CKey(io::binary_stream_tt& stream, std::size_t size);

    /// Throws when no key can have that many bytes.
    static void CheckSize(std::size_t size);

    /// The bytes and their number; they live as long as the key.
    std::size_t size() const noexcept { return m_long.empty() ? m_shortSize : m_long.size(); }
    const char* data() const noexcept { return m_long.empty() ? m_short.data() : m_long.data(); }

    /// Takes the same time wherever keys of one length differ.
    friend ZELPLATFORM_API bool operator==(const CKey& a, const CKey& b) noexcept;
    friend bool operator!=(const CKey& a, const CKey& b) noexcept { return !(a == b); }

private:
    // The keys of a large bundle are short: without a block of their own they take less memory and time.
    static constexpr std::size_t MaxShortSize = 32;

    CKey() = default;

    sec_buffer_t m_long;
    unsigned m_shortSize = 0;
    sec_array_t<MaxShortSize> m_short;
};

} // namespace crypto
