#include <memory>
#include <string>
#include <thread>
#include <vector>

#include <gtest/gtest.h>

#include <zelplatform/logging/logging.h>

#include "logs/library_notes.h"

namespace
{

void note(const std::string& text)
{
    logging::log_section_t("zelmodel").warn(text);
}

void noteOnAnotherThread(const std::string& text)
{
    std::thread([&text] { note(text); }).join();
}

/// A sink that is in force while the object lives.
class SinkInForce
{
public:
    SinkInForce() { logging::set_sink(m_sink); }
    SinkInForce(const SinkInForce&) = delete;
    SinkInForce& operator=(const SinkInForce&) = delete;
    ~SinkInForce() { logging::set_sink(nullptr); }

    std::vector<std::string> texts() const
    {
        std::vector<std::string> texts;
        for (const auto& entry : m_sink->entries())
            texts.push_back(entry.text);
        return texts;
    }

private:
    std::shared_ptr<logging::memory_sink> m_sink = std::make_shared<logging::memory_sink>();
};

} // namespace

TEST(LibraryNotes, KeepsWhatItsThreadNotes)
{
    const SinkInForce sink;
    logs::LibraryNotes notes;
    note("skipped");
    EXPECT_EQ(notes.takeReason(), "skipped");
    EXPECT_EQ(notes.takeReason(), "");
    EXPECT_TRUE(sink.texts().empty());
}

TEST(LibraryNotes, LeavesWhatOtherThreadsNoteToTheSinkBefore)
{
    const SinkInForce sink;
    logs::LibraryNotes notes;
    note("skipped");
    noteOnAnotherThread("of another document");
    EXPECT_EQ(notes.takeReason(), "skipped");
    EXPECT_EQ(sink.texts(), std::vector<std::string>{"of another document"});
}

TEST(LibraryNotes, DropsWhatOtherThreadsNoteWhereNothingIsLogged)
{
    logs::LibraryNotes notes;
    noteOnAnotherThread("of another document");
    EXPECT_EQ(notes.takeReason(), "");
}
