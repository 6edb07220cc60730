#pragma once

#include <cstddef>

#include <zelplatform/crypto/sec_buffer.h>
#include <zelplatform/export.h>
#include <zelplatform/io/device.h>

namespace io
{

/// A device in secure memory: writing appends at the end, reading takes from the front. A read past the end gives the
/// bytes that are left. For one thread at a time, looking at the bytes included.
class ZELPLATFORM_API mem_stream_tt : public io_dev_redirector_t
{
public:
    /// Empty.
    mem_stream_tt();

    /// Holds these bytes, to be read from the front.
    explicit mem_stream_tt(crypto::sec_buffer_t bytes) noexcept;
    ~mem_stream_tt() override;

    /// Makes room for so many bytes in all, so that writing them does not copy what is already there.
    void reserve(unsigned long size);

    long write(const void* data, unsigned long size) override;
    long read(void* data, unsigned long size) override;
    long remaining() const override;

    /// All bytes, those already read included.
    const crypto::sec_buffer_t& buffer() const noexcept;

private:
    void extend(unsigned long size);

    // Longer than what was written, so that many small values are written fast; cut when somebody looks at it.
    mutable crypto::sec_buffer_t m_bytes;
    std::size_t m_end = 0;
    std::size_t m_position = 0;
};

} // namespace io
