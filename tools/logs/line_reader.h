#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "byte_source.h"

namespace logs
{

/// Cuts bytes into lines, in constant memory. A line ends with LF or with CR and LF.
class LineReader
{
public:
    /// Bytes of the longest line that is kept; of a longer one only the number and the length are known.
    static constexpr std::size_t LongestLine = 64UL * 1024;

    /// The source must outlive the reader.
    explicit LineReader(ByteSource& source) : m_source(source) {}

    /// Takes the next line that has an end; false when there is none, or none yet.
    bool next();

    /// Takes what stands behind the last line end; false when nothing does.
    bool finish();

    /// The line without its end; its beginning when it is too long.
    const std::string& text() const noexcept { return m_text; }

    bool isTooLong() const noexcept { return m_size > LongestLine; }

    /// Lines are counted from 1.
    std::uint64_t number() const noexcept { return m_number; }

private:
    void begin();
    void add(std::string_view part);
    void complete();

    ByteSource& m_source;
    std::string_view m_piece; ///< what is left of the last piece
    std::string m_text;
    std::uint64_t m_size = 0; ///< bytes of the line, those that were dropped included
    std::uint64_t m_number = 0;
    bool m_isComplete = false;
};

} // namespace logs
