#include <zelplatform/io/mem_stream.h>

#include <algorithm>
#include <utility>

namespace io
{

mem_stream_tt::mem_stream_tt() = default;

mem_stream_tt::mem_stream_tt(crypto::sec_buffer_t bytes) noexcept : m_bytes(std::move(bytes)) {}

mem_stream_tt::~mem_stream_tt() = default;

// A vector with an allocator of its own copies byte by byte; blocks are copied here instead.
void mem_stream_tt::reserve(unsigned long size)
{
    if (size <= m_bytes.capacity())
        return;
    crypto::sec_buffer_t bytes;
    bytes.reserve(size);
    bytes.resize(m_bytes.size());
    std::copy_n(m_bytes.data(), m_bytes.size(), bytes.data());
    m_bytes.swap(bytes);
}

long mem_stream_tt::write(const void* data, unsigned long size)
{
    const std::size_t end = m_bytes.size();
    if (size > m_bytes.capacity() - end)
        reserve(std::max(end + size, 2 * m_bytes.capacity()));
    m_bytes.resize(end + size);
    std::copy_n(static_cast<const char*>(data), size, m_bytes.data() + end);
    return static_cast<long>(size);
}

long mem_stream_tt::read(void* data, unsigned long size)
{
    const unsigned long count = std::min(size, m_bytes.size() - m_position);
    std::copy_n(m_bytes.data() + m_position, count, static_cast<char*>(data));
    m_position += count;
    return static_cast<long>(count);
}

long mem_stream_tt::remaining() const
{
    return static_cast<long>(m_bytes.size() - m_position);
}

} // namespace io
