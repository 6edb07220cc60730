#include "new_file.h"

#include <cerrno>
#include <cstring>

#include <fcntl.h>
#include <unistd.h>

#include "input_file.h"

namespace files
{
namespace
{

[[noreturn]] void failToWrite(int error)
{
    throw InputError("cannot be written: " + std::string(std::strerror(error)));
}

// Gives the error's number; 0 when everything is written.
int writeAll(int descriptor, const std::string& text)
{
    for (std::size_t at = 0; at < text.size();)
    {
        const auto count = ::write(descriptor, text.data() + at, text.size() - at);
        if (count < 0 && errno != EINTR)
            return errno;
        at += count < 0 ? 0 : static_cast<std::size_t>(count);
    }
    return ::fsync(descriptor) == 0 ? 0 : errno;
}

} // namespace

void writeNewFile(const std::string& path, const std::string& text, mode_t mode)
{
    const int descriptor = ::open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, mode);
    if (descriptor < 0)
        failToWrite(errno);
    int error = writeAll(descriptor, text);
    if (::close(descriptor) != 0 && error == 0)
        error = errno;
    if (error == 0)
        return;
    ::unlink(path.c_str());
    failToWrite(error);
}

} // namespace files
