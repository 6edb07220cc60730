#include "follow.h"

#include <memory>
#include <utility>

#include <zelplatform/exc/exc.h>

#include "gzip_source.h"

namespace logs
{
namespace
{

/// A file that is being followed, from its first byte on.
class FollowedFile
{
public:
    FollowedFile(std::unique_ptr<files::InputFile> file, LibraryNotes& notes)
        : m_file(std::move(file)), m_source(*m_file), m_reader(m_source, notes)
    {
        if (!m_file->isRegular())
            throw exc::CRuntimeExc("Only a regular file can be followed.");
        if (GzipSource::isGzip(m_source.peek(GzipSource::BytesToTell)))
            throw exc::CRuntimeExc("A compressed file cannot be followed.");
    }

    LogReader& reader() noexcept { return m_reader; }

    bool isShorterThanRead() const { return m_file->size() < m_source.position(); }

    bool isSameAs(const files::InputFile& other) const { return m_file->identity() == other.identity(); }

private:
    std::unique_ptr<files::InputFile> m_file;
    PlainSource m_source;
    LogReader m_reader;
};

// Nothing while the name is missing: a rotation may be under way.
std::unique_ptr<files::InputFile> openIfThere(const std::string& name)
try
{
    return std::make_unique<files::InputFile>(name);
}
catch (const files::InputError&)
{
    return nullptr;
}

} // namespace

void follow(const std::string& name, LibraryNotes& notes, const FollowSteps& steps)
{
    auto file = std::make_unique<FollowedFile>(std::make_unique<files::InputFile>(name), notes);
    for (;;)
    {
        steps.read(file->reader());
        const bool goesOn = steps.wait();
        auto current = goesOn ? openIfThere(name) : nullptr;
        const bool isReplaced = current && !file->isSameAs(*current);
        const bool isTruncated = current && !isReplaced && file->isShorterThanRead();
        if (goesOn && !isReplaced && !isTruncated)
            continue;
        if (!isTruncated)
            steps.read(file->reader());
        steps.finish(file->reader());
        if (!goesOn)
            return;
        file = std::make_unique<FollowedFile>(std::move(current), notes);
        steps.changed(isReplaced ? EChange::Replaced : EChange::Truncated);
    }
}

} // namespace logs
