#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string_view>
#include <vector>

#include "files/input_file.h"

namespace logs
{

/// The bytes of a log, piece by piece, in constant memory.
class ByteSource
{
public:
    virtual ~ByteSource();

    /// The next piece, valid until the next call; empty when there is none. A file that grew has one again.
    virtual std::string_view next() = 0;

    /// How far the file has been read, in bytes as they are stored.
    virtual std::uint64_t position() const noexcept = 0;
};

/// A file as it stands.
class PlainSource : public ByteSource
{
public:
    /// The file must outlive the source.
    explicit PlainSource(files::InputFile& file);

    std::string_view next() override;
    std::uint64_t position() const noexcept override { return m_position; }

    /// The beginning of the next piece without taking it: at least so many bytes unless the file ends before.
    std::string_view peek(std::size_t count);

private:
    files::InputFile& m_file;
    std::vector<char> m_buffer;
    std::size_t m_ready = 0; ///< bytes that were read and not taken
    std::uint64_t m_position = 0;
};

/// The bytes of the file, decompressed when it begins as a gzip file does, whatever its name.
std::unique_ptr<ByteSource> openSource(files::InputFile& file);

} // namespace logs
