#include "gzip_source.h"

#include <algorithm>
#include <new>
#include <utility>

#include <zlib.h>

#include <zelplatform/exc/exc.h>
#include <zelplatform/util/util.h>

namespace logs
{
namespace
{

constexpr std::size_t PieceSize = 128UL * 1024;
constexpr std::string_view Magic("\x1f\x8b\x08", GzipSource::BytesToTell);
constexpr int OnlyGzip = MAX_WBITS + 16;

} // namespace

struct GzipSource::Inflater
{
    Inflater()
    {
        if (::inflateInit2(&stream, OnlyGzip) != Z_OK)
            throw std::bad_alloc();
    }
    Inflater(const Inflater&) = delete;
    Inflater& operator=(const Inflater&) = delete;
    ~Inflater() { ::inflateEnd(&stream); }

    z_stream stream = {};
};

GzipSource::GzipSource(std::unique_ptr<ByteSource> compressed)
    : m_compressed(std::move(compressed)), m_inflater(std::make_unique<Inflater>()), m_text(PieceSize)
{
}

GzipSource::~GzipSource() = default;

bool GzipSource::isGzip(std::string_view beginning) noexcept
{
    return beginning.substr(0, Magic.size()) == Magic;
}

std::string_view GzipSource::next()
{
    auto& stream = m_inflater->stream;
    stream.next_out = reinterpret_cast<Bytef*>(m_text.data());
    stream.avail_out = static_cast<uInt>(m_text.size());
    while (stream.avail_out == m_text.size())
    {
        const bool hasMore = stream.avail_in > 0 || fill();
        if (m_isBetweenParts)
        {
            if (!hasMore)
                break;
            beginNextPart();
            continue;
        }
        const int result = ::inflate(&stream, Z_NO_FLUSH);
        if (result == Z_STREAM_END)
            m_isBetweenParts = true;
        else if (result == Z_BUF_ERROR && !hasMore)
            fail("The compressed data end too early, at byte %1.", nullptr);
        else if (result != Z_OK && result != Z_BUF_ERROR && stream.avail_out == m_text.size())
            fail("The compressed data are damaged before byte %1: %2.", stream.msg);
    }
    return {m_text.data(), m_text.size() - stream.avail_out};
}

std::uint64_t GzipSource::position() const noexcept
{
    return m_compressed->position() - m_inflater->stream.avail_in;
}

bool GzipSource::fill()
{
    const auto piece = m_compressed->next();
    // The decompressor declares its input as mutable and does not change it.
    m_inflater->stream.next_in = reinterpret_cast<Bytef*>(const_cast<char*>(piece.data()));
    m_inflater->stream.avail_in = static_cast<uInt>(piece.size());
    return !piece.empty();
}

// Passes over padding; what stands there then must be the next part.
void GzipSource::beginNextPart()
{
    auto& stream = m_inflater->stream;
    const auto* const end =
        std::find_if(stream.next_in, stream.next_in + stream.avail_in, [](Bytef b) { return b != 0; });
    m_isPadding = m_isPadding || end != stream.next_in;
    stream.avail_in -= static_cast<uInt>(end - stream.next_in);
    stream.next_in += end - stream.next_in;
    if (stream.avail_in == 0)
        return;
    if (m_isPadding || *end != static_cast<unsigned char>(Magic.front()))
        fail("Something else stands behind the compressed data, at byte %1.", nullptr);
    m_isBetweenParts = false;
    ::inflateReset(&stream);
}

void GzipSource::fail(const char* format, const char* reason) const
{
    throw exc::CRuntimeExc(format, util::toStr(position()), reason == nullptr ? "no reason is known" : reason);
}

} // namespace logs
