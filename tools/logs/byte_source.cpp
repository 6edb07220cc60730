#include "byte_source.h"

#include <utility>

#include "gzip_source.h"

namespace logs
{
namespace
{

constexpr std::size_t PieceSize = 128UL * 1024;

} // namespace

ByteSource::~ByteSource() = default;

PlainSource::PlainSource(files::InputFile& file) : m_file(file), m_buffer(PieceSize) {}

std::string_view PlainSource::next()
{
    const auto count = m_ready > 0 ? std::exchange(m_ready, 0) : m_file.read(m_buffer.data(), m_buffer.size());
    m_position += count;
    return {m_buffer.data(), count};
}

std::string_view PlainSource::peek(std::size_t count)
{
    while (m_ready < count)
    {
        const auto more = m_file.read(m_buffer.data() + m_ready, m_buffer.size() - m_ready);
        if (more == 0)
            break;
        m_ready += more;
    }
    return {m_buffer.data(), m_ready};
}

std::unique_ptr<ByteSource> openSource(files::InputFile& file)
{
    auto plain = std::make_unique<PlainSource>(file);
    if (!GzipSource::isGzip(plain->peek(GzipSource::BytesToTell)))
        return plain;
    return std::make_unique<GzipSource>(std::move(plain));
}

} // namespace logs
