#include <zelplatform/io/mem_stream.h>

#include <algorithm>
#include <utility>

namespace io
{

mem_stream_tt::mem_stream_tt() = default;

mem_stream_tt::mem_stream_tt(crypto::sec_buffer_t bytes) noexcept : m_bytes(std::move(bytes)) {}

mem_stream_tt::~mem_stream_tt() = default;

long mem_stream_tt::write(const void* data, unsigned long size)
{
    const auto* const bytes = static_cast<const char*>(data);
    m_bytes.insert(m_bytes.end(), bytes, bytes + size);
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
