#include "replace_file.h"

#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <utility>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <zelplatform/util/util.h>

#include "input_file.h"
#include "new_file.h"

namespace files
{
namespace
{

constexpr mode_t OwnerOnly = 0600;
constexpr mode_t Permissions = 07777;
constexpr unsigned MostBackups = 10000;

[[noreturn]] void fail(const std::string& reason)
{
    throw InputError("cannot be replaced: " + reason);
}

[[noreturn]] void failWithError()
{
    fail(std::strerror(errno));
}

/// A file that is removed unless it is kept.
class Passing
{
public:
    explicit Passing(std::string path) : m_path(std::move(path)) {}
    Passing(const Passing&) = delete;
    Passing& operator=(const Passing&) = delete;
    ~Passing()
    {
        if (!m_path.empty())
            ::unlink(m_path.c_str());
    }

    const std::string& path() const noexcept { return m_path; }
    std::string keep() { return std::exchange(m_path, {}); }

private:
    std::string m_path;
};

std::string behindLinks(const std::string& path)
{
    const std::unique_ptr<char, decltype(&std::free)> real(::realpath(path.c_str(), nullptr), &std::free);
    if (!real)
        failWithError();
    return real.get();
}

struct stat statusOf(const std::string& path)
{
    struct stat status = {};
    if (::stat(path.c_str(), &status) != 0)
        failWithError();
    return status;
}

// Only what differs is set: nobody but root may give a file away, not even to its owner.
void takeOver(const std::string& path, const struct stat& model)
{
    const auto status = statusOf(path);
    const bool isSameOwner = status.st_uid == model.st_uid && status.st_gid == model.st_gid;
    if (!isSameOwner && ::chown(path.c_str(), model.st_uid, model.st_gid) != 0)
        fail("its owner and group cannot be kept: " + std::string(std::strerror(errno)));
    if (::chmod(path.c_str(), model.st_mode & Permissions) != 0)
        failWithError();
}

std::string numbered(const std::string& name, unsigned number)
{
    return number == 0 ? name : name + '.' + util::toStr(number);
}

std::string linkBackup(const std::string& path)
{
    for (unsigned number = 0; number < MostBackups; ++number)
    {
        auto backup = numbered(path + ".orig", number);
        if (::link(path.c_str(), backup.c_str()) == 0)
            return backup;
        if (errno != EEXIST)
            fail("no backup can be kept: " + std::string(std::strerror(errno)));
    }
    fail("there are too many backups of it");
}

// The new name lasts when its folder is written. Some file systems cannot do that, and need not.
void syncFolderOf(const std::string& path)
{
    const auto folder = path.substr(0, path.rfind('/') + 1);
    const int descriptor = ::open(folder.c_str(), O_RDONLY | O_CLOEXEC);
    if (descriptor < 0)
        return;
    ::fsync(descriptor);
    ::close(descriptor);
}

} // namespace

std::string replaceFile(const std::string& path, const std::string& text)
{
    const auto target = behindLinks(path);
    const auto status = statusOf(target);
    if (!S_ISREG(status.st_mode))
        fail("it is no regular file");
    const auto newName = target + ".new." + util::toStr(static_cast<unsigned long>(::getpid()));
    writeNewFile(newName, text, OwnerOnly);
    Passing fresh(newName);
    takeOver(newName, status);
    Passing backup(linkBackup(target));
    if (::rename(newName.c_str(), target.c_str()) != 0)
        failWithError();
    fresh.keep();
    syncFolderOf(target);
    return backup.keep();
}

} // namespace files
