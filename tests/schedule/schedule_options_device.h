#pragma once

#include <algorithm>
#include <cstring>
#include <string>
#include <utility>

#include <zelplatform/io/io.h>

namespace zelmodel_test
{

/// A device over a text that does not know how much is left, takes so many bytes and no more, and remembers the largest
/// request.
class CTextDevice : public io::io_dev_redirector_t
{
public:
    explicit CTextDevice(std::string toRead, unsigned long roomToWrite = 0)
        : m_toRead(std::move(toRead)), m_room(roomToWrite)
    {
    }

    long write(const void* data, unsigned long size) override
    {
        const auto taken = std::min(size, m_room);
        m_written.append(static_cast<const char*>(data), taken);
        m_room -= taken;
        return static_cast<long>(taken);
    }

    long read(void* data, unsigned long size) override
    {
        m_largestRead = std::max(m_largestRead, size);
        const auto given = std::min<unsigned long>(size, m_toRead.size() - m_at);
        std::memcpy(data, m_toRead.data() + m_at, given);
        m_at += given;
        return static_cast<long>(given);
    }

    const std::string& written() const { return m_written; }
    unsigned long largestRead() const { return m_largestRead; }
    unsigned long left() const { return m_toRead.size() - m_at; }

private:
    std::string m_toRead;
    std::string m_written;
    unsigned long m_at = 0;
    unsigned long m_room;
    unsigned long m_largestRead = 0;
};

/// The same, with a device that tells how much is left.
class CSizedTextDevice : public CTextDevice
{
public:
    using CTextDevice::CTextDevice;

    long remaining() const override { return static_cast<long>(left()); }
};

/// A device that refuses every transfer.
class CBrokenDevice : public io::io_dev_redirector_t
{
public:
    long write(const void*, unsigned long) override { return -1; }
    long read(void*, unsigned long) override { return -1; }
};

/// Four bytes, the lowest first.
inline std::string fourBytes(unsigned long value)
{
    std::string bytes;
    for (int shift = 0; shift < 32; shift += 8)
        bytes.push_back(static_cast<char>((value >> shift) & 0xFFU));
    return bytes;
}

/// What the memory stream holds.
inline std::string bytesOf(const io::mem_stream_tt& device)
{
    return std::string(device.buffer().begin(), device.buffer().end());
}

/// The binary form of the options.
template <class TOptions>
std::string bytesOf(const TOptions& options)
{
    io::mem_stream_tt device;
    io::binary_stream_tt stream(device);
    options.Serialize(stream);
    return bytesOf(device);
}

template <class TOptions>
TOptions readFrom(io::io_dev_redirector_t& device)
{
    io::binary_stream_tt stream(device);
    return TOptions::Unserialize(stream);
}

template <class TOptions>
TOptions readFrom(const std::string& bytes)
{
    io::mem_stream_tt device(crypto::sec_buffer_t(bytes.begin(), bytes.end()));
    return readFrom<TOptions>(device);
}

} // namespace zelmodel_test
