#pragma once

#include <cstdint>

namespace util
{

/// Four characters as a number, the first in its lowest byte on every machine.
constexpr std::uint32_t fourBytesAt(const char* text) noexcept
{
    const auto at = [text](unsigned i) { return static_cast<std::uint32_t>(static_cast<unsigned char>(text[i])); };
    return at(0) | at(1) << 8U | at(2) << 16U | at(3) << 24U;
}

/// Eight characters as a number, the first in its lowest byte on every machine.
constexpr std::uint64_t eightBytesAt(const char* text) noexcept
{
    return fourBytesAt(text) | static_cast<std::uint64_t>(fourBytesAt(text + 4)) << 32U;
}

/// A number whose eight bytes are all the same.
constexpr std::uint64_t eachByte(unsigned char byte) noexcept
{
    return 0x0101010101010101U * byte;
}

} // namespace util
