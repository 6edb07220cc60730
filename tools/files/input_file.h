#pragma once

#include <cstddef>
#include <cstdint>
#include <stdexcept>
#include <string>

namespace files
{

/// A file that cannot be opened or read; the text says why.
class InputError : public std::runtime_error
{
public:
    using std::runtime_error::runtime_error;
};

/// The argument that stands for standard input.
constexpr const char* StandardInput = "-";

/// The name of an input for messages.
std::string shownName(const std::string& name);

/// Throws InputError with the reason that the system gave for the last call that failed.
[[noreturn]] void failToRead();

/// What makes a file the same one under another name.
struct FileIdentity
{
    std::uint64_t device = 0;
    std::uint64_t number = 0;

    friend bool operator==(const FileIdentity& a, const FileIdentity& b) noexcept
    {
        return a.device == b.device && a.number == b.number;
    }
};

/// A file opened for reading, or standard input.
class InputFile
{
public:
    /// Throws InputError when the file cannot be opened.
    explicit InputFile(const std::string& name);
    InputFile(const InputFile&) = delete;
    InputFile& operator=(const InputFile&) = delete;
    ~InputFile();

    /// Reads at most so many bytes; 0 at the end. Throws InputError.
    std::size_t read(char* to, std::size_t room);

    /// False for pipes, terminals and other devices.
    bool isRegular() const;

    /// The size in bytes now; 0 of what is no regular file.
    std::uint64_t size() const;

    FileIdentity identity() const;

private:
    bool m_isOwned;
    int m_number;
};

} // namespace files
