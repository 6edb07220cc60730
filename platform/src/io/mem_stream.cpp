#include <zelplatform/io/mem_stream.h>

#include <algorithm>
#include <utility>

namespace io
{
namespace
{

constexpr unsigned long ExtensionStep = 4096;

} // namespace

mem_stream_tt::mem_stream_tt() = default;

mem_stream_tt::mem_stream_tt(crypto::sec_buffer_t bytes) noexcept : m_bytes(std::move(bytes)), m_end(m_bytes.size()) {}

mem_stream_tt::~mem_stream_tt() = default;

// A vector with an allocator of its own copies byte by byte; blocks are copied here instead.
void mem_stream_tt::reserve(unsigned long size)
{
    if (size <= m_bytes.capacity())
        return;
    crypto::sec_buffer_t bytes;
    bytes.reserve(size);
    bytes.resize(m_end);
    std::copy_n(m_bytes.data(), m_end, bytes.data());
    m_bytes.swap(bytes);
}

void mem_stream_tt::extend(unsigned long size)
{
    if (size > m_bytes.capacity())
        reserve(std::max(size, 2 * m_bytes.capacity()));
    m_bytes.resize(std::min(size + ExtensionStep, m_bytes.capacity()));
}

long mem_stream_tt::write(const void* data, unsigned long size)
{
    if (size > m_bytes.size() - m_end)
        extend(m_end + size);
    std::copy_n(static_cast<const char*>(data), size, m_bytes.data() + m_end);
    m_end += size;
    return static_cast<long>(size);
}

long mem_stream_tt::read(void* data, unsigned long size)
{
    const unsigned long count = std::min(size, m_end - m_position);
    std::copy_n(m_bytes.data() + m_position, count, static_cast<char*>(data));
    m_position += count;
    return static_cast<long>(count);
}

long mem_stream_tt::remaining() const
{
    return static_cast<long>(m_end - m_position);
}

const crypto::sec_buffer_t& mem_stream_tt::buffer() const noexcept
{
    m_bytes.resize(m_end);
    return m_bytes;
}

} // namespace io
