#include "library_notes.h"

#include <thread>
#include <utility>

namespace logs
{

class LibraryNotes::Sink : public logging::ILogSink
{
public:
    explicit Sink(std::shared_ptr<logging::ILogSink> before) : m_before(std::move(before)) {}

    void write(const logging::Entry& entry) override
    {
        if (std::this_thread::get_id() == m_thread)
            (entry.level == logging::ELevel::Error ? m_failure : m_note) = entry.text;
        else if (m_before)
            m_before->write(entry);
    }

    std::string takeReason()
    {
        const auto note = std::exchange(m_note, {});
        const auto failure = std::exchange(m_failure, {});
        return failure.empty() ? note : failure;
    }

private:
    std::shared_ptr<logging::ILogSink> m_before;
    std::thread::id m_thread = std::this_thread::get_id();
    std::string m_failure; ///< like the note for the one thread alone
    std::string m_note;
};

LibraryNotes::LibraryNotes() : m_before(logging::current_sink()), m_sink(std::make_shared<Sink>(m_before))
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
