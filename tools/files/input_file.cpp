#include "input_file.h"

#include <cerrno>
#include <cstring>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace files
{
namespace
{

struct stat statusOf(int descriptor)
{
    struct stat status = {};
    if (::fstat(descriptor, &status) != 0)
        failToRead();
    return status;
}

} // namespace

std::string shownName(const std::string& name)
{
    return name == StandardInput ? "standard input" : name;
}

void failToRead()
{
    throw InputError("cannot be read: " + std::string(std::strerror(errno)));
}

InputFile::InputFile(const std::string& name)
    : m_isOwned(name != StandardInput),
      m_number(m_isOwned ? ::open(name.c_str(), O_RDONLY | O_CLOEXEC | O_NOCTTY) : STDIN_FILENO)
{
    if (m_number < 0)
        failToRead();
}

InputFile::~InputFile()
{
    if (m_isOwned)
        ::close(m_number);
}

std::size_t InputFile::read(char* to, std::size_t room)
{
    for (;;)
    {
        const auto count = ::read(m_number, to, room);
        if (count >= 0)
            return static_cast<std::size_t>(count);
        if (errno != EINTR)
            failToRead();
    }
}

bool InputFile::isRegular() const
{
    return S_ISREG(statusOf(m_number).st_mode);
}

std::uint64_t InputFile::size() const
{
    const auto status = statusOf(m_number);
    return S_ISREG(status.st_mode) ? static_cast<std::uint64_t>(status.st_size) : 0;
}

FileIdentity InputFile::identity() const
{
    const auto status = statusOf(m_number);
    return {static_cast<std::uint64_t>(status.st_dev), static_cast<std::uint64_t>(status.st_ino)};
}

} // namespace files
