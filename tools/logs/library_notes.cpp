#include "library_notes.h"

#include <mutex>
#include <utility>

namespace logs
{

class LibraryNotes::Sink : public logging::ILogSink
{
public:
    void write(const logging::Entry& entry) override
    {
        const std::lock_guard<std::mutex> lock(m_guard);
        (entry.level == logging::ELevel::Error ? m_failure : m_note) = entry.text;
    }

    std::string takeReason()
    {
        const std::lock_guard<std::mutex> lock(m_guard);
        const auto note = std::exchange(m_note, {});
        const auto failure = std::exchange(m_failure, {});
        return failure.empty() ? note : failure;
    }

private:
    std::mutex m_guard;
    std::string m_failure;
    std::string m_note;
};

LibraryNotes::LibraryNotes() : m_before(logging::current_sink()), m_sink(std::make_shared<Sink>())
{
    logging::set_sink(m_sink);
}

LibraryNotes::~LibraryNotes()
{
    logging::set_sink(m_before);
}

std::string LibraryNotes::takeReason()
{
    return m_sink->takeReason();
}

} // namespace logs
