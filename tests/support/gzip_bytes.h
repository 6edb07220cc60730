#pragma once

#include <stdexcept>
#include <string>

#include <zlib.h>

namespace zelmodel_test
{

/// The text as one part of gzip data.
inline std::string gzipBytes(const std::string& text)
{
    constexpr int onlyGzip = MAX_WBITS + 16;
    z_stream stream = {};
    if (::deflateInit2(&stream, Z_BEST_SPEED, Z_DEFLATED, onlyGzip, 9, Z_DEFAULT_STRATEGY) != Z_OK)
        throw std::runtime_error("The test's data cannot be compressed.");
    std::string bytes(::deflateBound(&stream, static_cast<uLong>(text.size())), '\0');
    stream.next_in = reinterpret_cast<Bytef*>(const_cast<char*>(text.data()));
    stream.avail_in = static_cast<uInt>(text.size());
    stream.next_out = reinterpret_cast<Bytef*>(bytes.data());
    stream.avail_out = static_cast<uInt>(bytes.size());
    const int result = ::deflate(&stream, Z_FINISH);
    bytes.resize(bytes.size() - stream.avail_out);
    ::deflateEnd(&stream);
    if (result != Z_STREAM_END)
        throw std::runtime_error("The test's data cannot be compressed.");
    return bytes;
}

} // namespace zelmodel_test
