#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string_view>
#include <vector>

#include "byte_source.h"

namespace logs
{

/// Decompresses gzip data of one part or of several behind each other, as rotation leaves them. Zero bytes behind the
/// last part are padding.
class GzipSource : public ByteSource
{
public:
    explicit GzipSource(std::unique_ptr<ByteSource> compressed);
    ~GzipSource() override;

    /// Whether the bytes begin as gzip data do; so many are needed to tell. No record of a log begins so.
    static constexpr std::size_t BytesToTell = 3;
    static bool isGzip(std::string_view beginning) noexcept;

    /// Data that are damaged or cut short throw exc::CRuntimeExc with the byte of the file where they stop to make
    /// sense, after everything before has been given.
    std::string_view next() override;

    std::uint64_t position() const noexcept override;

private:
    struct Inflater;

    bool fill();
    void beginNextPart();
    [[noreturn]] void fail(const char* format, const char* reason) const;

    std::unique_ptr<ByteSource> m_compressed;
    std::unique_ptr<Inflater> m_inflater;
    std::vector<char> m_text;
    bool m_isBetweenParts = false;
    bool m_isPadding = false;
};

} // namespace logs
