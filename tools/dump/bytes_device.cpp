#include "bytes_device.h"

#include <algorithm>

namespace dump
{

long BytesDevice::write(const void*, unsigned long)
{
    return -1;
}

long BytesDevice::read(void* data, unsigned long size)
{
    const auto count = std::min<unsigned long>(size, m_bytes.size() - m_position);
    std::copy_n(m_bytes.data() + m_position, count, static_cast<char*>(data));
    m_wasShort = m_wasShort || count < size;
    if (count == size)
        m_position += count;
    return static_cast<long>(count);
}

} // namespace dump
