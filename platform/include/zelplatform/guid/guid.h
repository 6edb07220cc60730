#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include <boost/endian/conversion.hpp>

#include <zelplatform/export.h>

/// 128-bit identifiers.
namespace guid
{

/// A 128-bit identifier, all zero by default. Identifiers are ordered as their texts are.
class ZELPLATFORM_API guid_t
{
public:
    /// How many characters the text has.
    static constexpr std::size_t TextSize = 36;

    constexpr guid_t() = default;

    /// Of these bytes, in the order of the text.
    explicit constexpr guid_t(const std::array<std::uint8_t, 16>& bytes) noexcept : m_bytes(bytes) {}

    /// A fresh random identifier (version 4); throws when the system gives no random bytes.
    static guid_t CreateNew();

    /// Reads 8-4-4-4-12 hexadecimal digits in any letter case, with or without a pair of braces around. The empty text
    /// is the zero identifier. Anything else throws, and the message quotes it.
    static guid_t FromAStr(std::string_view text);

    /// The same without a message, for texts that nobody may quote: nothing when the text is no identifier.
    static std::optional<guid_t> TryFromAStr(std::string_view text) noexcept;

    /// Whether all bits are zero.
    bool IsEmpty() const noexcept { return *this == guid_t(); }

    /// 36 characters: lower-case digits and hyphens, no braces.
    std::string ToAStr() const;

    /// The same text without memory of its own; there is no terminator.
    std::array<char, TextSize> ToChars() const noexcept;

    friend bool operator==(const guid_t& a, const guid_t& b) noexcept { return a.m_bytes == b.m_bytes; }
    friend bool operator!=(const guid_t& a, const guid_t& b) noexcept { return !(a == b); }

    /// In the order of the texts.
    friend bool operator<(const guid_t& a, const guid_t& b) noexcept
    {
        const auto high = a.half(0);
        const auto otherHigh = b.half(0);
        return high != otherHigh ? high < otherHigh : a.half(8) < b.half(8);
    }

private:
    // Eight bytes as a number of the same order.
    std::uint64_t half(std::size_t at) const noexcept { return boost::endian::load_big_u64(&m_bytes[at]); }

    std::array<std::uint8_t, 16> m_bytes{};
};

} // namespace guid
