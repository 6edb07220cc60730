#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include <zelplatform/crypto/sec_buffer.h>
#include <zelplatform/export.h>

namespace crypto
{

/// The identifier of a key set: 0 to 64 bytes of any values, ordered byte by byte. No secret, but erased when it is
/// released: in a damaged form its bytes can be those of keys.
class ZELPLATFORM_API CKeySetId
{
public:
    /// The most bytes that an identifier may have.
    static constexpr std::size_t MaxSize = 64;

    CKeySetId() = default;

    /// Takes the bytes as they are; throws when there are more than 64.
    explicit CKeySetId(std::string_view bytes);

    /// Throws when no identifier can have that many bytes.
    static void CheckSize(std::size_t size);

    /// The bytes; they live as long as the identifier.
    std::string_view bytes() const noexcept { return {m_bytes.data(), m_size}; }

    /// The bytes as upper-case hexadecimal digits without separators.
    std::string ToLogString() const;

    friend bool operator==(const CKeySetId& a, const CKeySetId& b) noexcept { return a.bytes() == b.bytes(); }
    friend bool operator!=(const CKeySetId& a, const CKeySetId& b) noexcept { return !(a == b); }

    /// Byte by byte, as numbers without a sign.
    friend bool operator<(const CKeySetId& a, const CKeySetId& b) noexcept { return a.bytes() < b.bytes(); }

private:
    sec_array_t<MaxSize> m_bytes;
    std::size_t m_size = 0;
};

} // namespace crypto
