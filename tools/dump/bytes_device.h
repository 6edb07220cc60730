#pragma once

#include <cstddef>
#include <string_view>

#include <zelplatform/io/device.h>

namespace dump
{

/// Bytes that somebody else holds, read from the front; nothing is copied but what is read. Tells how far a reader
/// came: a read that wants more than there is moves nothing and is remembered.
class BytesDevice : public io::io_dev_redirector_t
{
public:
    explicit BytesDevice(std::string_view bytes) noexcept : m_bytes(bytes) {}

    /// Nothing can be written: always fails.
    long write(const void* data, unsigned long size) override;
    long read(void* data, unsigned long size) override;
    long remaining() const override { return static_cast<long>(m_bytes.size() - m_position); }

    /// Behind the last byte of the last complete read.
    std::size_t position() const noexcept { return m_position; }

    /// Passes over bytes that are there.
    void skip(std::size_t size) noexcept { m_position += size; }

    /// Whether some read wanted more than there was.
    bool wasShort() const noexcept { return m_wasShort; }

private:
    std::string_view m_bytes;
    std::size_t m_position = 0;
    bool m_wasShort = false;
};

} // namespace dump
