#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <type_traits>

#include <zelplatform/crypto/sec_buffer.h>
#include <zelplatform/export.h>
#include <zelplatform/io/device.h>

namespace io
{

/// Values on a device, one after the other: little-endian, of fixed width, without tags or alignment. A text or a
/// buffer is its length in 4 bytes and its bytes. The device must outlive the stream. Short transfers throw and leave
/// the device where it stopped; the target of a failed read keeps its value.
class ZELPLATFORM_API binary_stream_tt
{
public:
    /// Over the device, from where it stands.
    explicit binary_stream_tt(io_dev_redirector_t& device) noexcept : m_device(device) {}

    /// The device that the constructor was given.
    io_dev_redirector_t& device() const noexcept { return m_device; }

    /// Raw bytes, in one call of the device. Throws with both counts when it takes or gives another number of bytes.
    void write(const void* data, unsigned long size);
    void read(void* data, unsigned long size);

    /// Like read, but refused without a call when the device is known to have less.
    void read_checked(void* data, unsigned long size);

    /// The length and the bytes of a text; throws when the length needs more than 32 bits.
    void write_text(std::string_view text);

    /// A text with its length in front. The length is not trusted: memory grows only as bytes arrive.
    std::string read_text();

    /// That many raw bytes, with the same care, straight into secure memory.
    crypto::sec_buffer_t read_secure(unsigned long size);

private:
    io_dev_redirector_t& m_device;
};

/// Writes the value: a number in its width, a bool as one byte, 0 or 1, a text or a buffer behind its length in 4
/// bytes. Throws when the device takes less or a length needs more than 32 bits.
ZELPLATFORM_API binary_stream_tt& operator<<(binary_stream_tt& stream, bool value);
ZELPLATFORM_API binary_stream_tt& operator<<(binary_stream_tt& stream, std::uint8_t value);
ZELPLATFORM_API binary_stream_tt& operator<<(binary_stream_tt& stream, std::int32_t value);
ZELPLATFORM_API binary_stream_tt& operator<<(binary_stream_tt& stream, std::uint32_t value);
ZELPLATFORM_API binary_stream_tt& operator<<(binary_stream_tt& stream, std::int64_t value);
ZELPLATFORM_API binary_stream_tt& operator<<(binary_stream_tt& stream, std::uint64_t value);
ZELPLATFORM_API binary_stream_tt& operator<<(binary_stream_tt& stream, const std::string& text);
ZELPLATFORM_API binary_stream_tt& operator<<(binary_stream_tt& stream, const crypto::sec_buffer_t& bytes);

/// Reads what << writes; any byte but 0 is a true bool. Throws when the device gives less, and leaves the value as it
/// was.
ZELPLATFORM_API binary_stream_tt& operator>>(binary_stream_tt& stream, bool& value);
ZELPLATFORM_API binary_stream_tt& operator>>(binary_stream_tt& stream, std::uint8_t& value);
ZELPLATFORM_API binary_stream_tt& operator>>(binary_stream_tt& stream, std::int32_t& value);
ZELPLATFORM_API binary_stream_tt& operator>>(binary_stream_tt& stream, std::uint32_t& value);
ZELPLATFORM_API binary_stream_tt& operator>>(binary_stream_tt& stream, std::int64_t& value);
ZELPLATFORM_API binary_stream_tt& operator>>(binary_stream_tt& stream, std::uint64_t& value);
ZELPLATFORM_API binary_stream_tt& operator>>(binary_stream_tt& stream, std::string& text);
ZELPLATFORM_API binary_stream_tt& operator>>(binary_stream_tt& stream, crypto::sec_buffer_t& bytes);

/// A value of any other arithmetic type, an enumeration or a pointer would be written in a width nobody chose.
template <class T, std::enable_if_t<std::is_arithmetic_v<T> || std::is_enum_v<T> || std::is_pointer_v<T>, int> = 0>
binary_stream_tt& operator<<(binary_stream_tt& stream, T value) = delete;

} // namespace io
