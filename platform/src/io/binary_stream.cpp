#include <zelplatform/io/binary_stream.h>

#include <algorithm>
#include <limits>

#include <boost/endian/conversion.hpp>

#include <io/transfer_errors.h>
#include <zelplatform/util/cast.h>

namespace io
{
namespace
{

// Memory runs ahead of the data by at most this much, whatever length was announced.
constexpr unsigned long ReadStep = 64 * 1024;

template <class T>
binary_stream_tt& writeNumber(binary_stream_tt& stream, T value)
{
    const T bytes = boost::endian::native_to_little(value);
    stream.write(&bytes, sizeof(bytes));
    return stream;
}

template <class T>
T readNumber(binary_stream_tt& stream)
{
    T bytes{};
    stream.read(&bytes, sizeof(bytes));
    return boost::endian::little_to_native(bytes);
}

template <class T>
binary_stream_tt& readNumber(binary_stream_tt& stream, T& value)
{
    value = readNumber<T>(stream);
    return stream;
}

// A device may claim any count; the sum stays what a count can say.
long receivedInAll(unsigned long before, long count) noexcept
{
    constexpr long greatest = std::numeric_limits<long>::max();
    const long received = static_cast<long>(before);
    return count > greatest - received ? greatest : received + count;
}

void checkRemaining(const io_dev_redirector_t& device, unsigned long size)
{
    const long left = device.remaining();
    if (left >= 0 && static_cast<unsigned long>(left) < size)
        detail::failRead(left, size);
}

template <class Bytes>
Bytes readBytes(io_dev_redirector_t& device, unsigned long size)
{
    checkRemaining(device, size);
    Bytes bytes;
    while (bytes.size() < size)
    {
        const unsigned long received = bytes.size();
        const unsigned long step = std::min(size - received, ReadStep);
        bytes.resize(received + step);
        const long count = device.read(bytes.data() + received, step);
        if (count < 0)
            detail::failRead(count, size);
        if (static_cast<unsigned long>(count) != step)
            detail::failRead(receivedInAll(received, count), size);
    }
    return bytes;
}

} // namespace

void binary_stream_tt::write(const void* data, unsigned long size)
{
    detail::write_to_device(m_device, data, size);
}

void binary_stream_tt::read(void* data, unsigned long size)
{
    detail::read_from_device(m_device, data, size);
}

void binary_stream_tt::read_checked(void* data, unsigned long size)
{
    checkRemaining(m_device, size);
    read(data, size);
}

void binary_stream_tt::write_text(std::string_view text)
{
    *this << util::safe_cast<std::uint32_t>(text.size());
    if (!text.empty())
        write(text.data(), text.size());
}

std::string binary_stream_tt::read_text()
{
    return readBytes<std::string>(m_device, readNumber<std::uint32_t>(*this));
}

crypto::sec_buffer_t binary_stream_tt::read_secure(unsigned long size)
{
    return readBytes<crypto::sec_buffer_t>(m_device, size);
}

binary_stream_tt& operator<<(binary_stream_tt& stream, bool value)
{
    return stream << static_cast<std::uint8_t>(value ? 1 : 0);
}

binary_stream_tt& operator<<(binary_stream_tt& stream, std::uint8_t value)
{
    return writeNumber(stream, value);
}

binary_stream_tt& operator<<(binary_stream_tt& stream, std::int32_t value)
{
    return writeNumber(stream, value);
}

binary_stream_tt& operator<<(binary_stream_tt& stream, std::uint32_t value)
{
    return writeNumber(stream, value);
}

binary_stream_tt& operator<<(binary_stream_tt& stream, std::int64_t value)
{
    return writeNumber(stream, value);
}

binary_stream_tt& operator<<(binary_stream_tt& stream, std::uint64_t value)
{
    return writeNumber(stream, value);
}

binary_stream_tt& operator<<(binary_stream_tt& stream, const std::string& text)
{
    stream.write_text(text);
    return stream;
}

binary_stream_tt& operator<<(binary_stream_tt& stream, const crypto::sec_buffer_t& bytes)
{
    stream.write_text({bytes.data(), bytes.size()});
    return stream;
}

binary_stream_tt& operator>>(binary_stream_tt& stream, bool& value)
{
    value = readNumber<std::uint8_t>(stream) != 0;
    return stream;
}

binary_stream_tt& operator>>(binary_stream_tt& stream, std::uint8_t& value)
{
    return readNumber(stream, value);
}

binary_stream_tt& operator>>(binary_stream_tt& stream, std::int32_t& value)
{
    return readNumber(stream, value);
}

binary_stream_tt& operator>>(binary_stream_tt& stream, std::uint32_t& value)
{
    return readNumber(stream, value);
}

binary_stream_tt& operator>>(binary_stream_tt& stream, std::int64_t& value)
{
    return readNumber(stream, value);
}

binary_stream_tt& operator>>(binary_stream_tt& stream, std::uint64_t& value)
{
    return readNumber(stream, value);
}

binary_stream_tt& operator>>(binary_stream_tt& stream, std::string& text)
{
    text = stream.read_text();
    return stream;
}

binary_stream_tt& operator>>(binary_stream_tt& stream, crypto::sec_buffer_t& bytes)
{
    bytes = stream.read_secure(readNumber<std::uint32_t>(stream));
    return stream;
}

} // namespace io
