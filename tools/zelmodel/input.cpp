#include "input.h"

#include <cerrno>
#include <cstring>
#include <vector>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <zelplatform/exc/exc.h>
#include <zelplatform/util/util.h>
#include <zelplatform/xmlpp/xml_document.h>

namespace
{

constexpr std::size_t PieceSize = 64UL * 1024;
constexpr std::size_t MostBytes = xmlpp::CXmlDocument::MaxTextSize;

class Descriptor
{
public:
    explicit Descriptor(const std::string& name)
        : m_isOwned(name != StandardInput),
          m_number(m_isOwned ? ::open(name.c_str(), O_RDONLY | O_CLOEXEC | O_NOCTTY) : STDIN_FILENO)
    {
    }
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;
    ~Descriptor()
    {
        if (m_isOwned && m_number >= 0)
            ::close(m_number);
    }

    int number() const noexcept { return m_number; }

private:
    bool m_isOwned;
    int m_number;
};

[[noreturn]] void failToRead()
{
    throw InputError("cannot be read: " + std::string(std::strerror(errno)));
}

void checkSize(std::size_t size)
{
    if (size > MostBytes)
        throw exc::CRuntimeExc("The document is larger than %1 bytes.", util::toStr(MostBytes));
}

std::size_t announcedSize(int descriptor)
{
    struct stat status = {};
    if (::fstat(descriptor, &status) != 0)
        failToRead();
    return S_ISREG(status.st_mode) ? static_cast<std::size_t>(status.st_size) : 0;
}

} // namespace

std::string shownName(const std::string& name)
{
    return name == StandardInput ? "standard input" : name;
}

std::string readInput(const std::string& name)
{
    const Descriptor descriptor(name);
    if (descriptor.number() < 0)
        failToRead();
    checkSize(announcedSize(descriptor.number()));
    std::string text;
    std::vector<char> piece(PieceSize);
    for (;;)
    {
        const auto count = ::read(descriptor.number(), piece.data(), piece.size());
        if (count == 0)
            return text;
        if (count < 0 && errno == EINTR)
            continue;
        if (count < 0)
            failToRead();
        text.append(piece.data(), static_cast<std::size_t>(count));
        checkSize(text.size());
    }
}

const describe::Document& openDocument(const std::string& name, Reading& reading)
{
    reading.name = name;
    reading.document.reset();
    return reading.document.emplace(readInput(name));
}
