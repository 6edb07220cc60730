#include <zelplatform/logging/logging.h>

#include <memory>
#include <stdexcept>
#include <string>
#include <thread>
#include <vector>

#include <gtest/gtest.h>

namespace
{

class LoggingTest : public testing::Test
{
protected:
    LoggingTest() { logging::set_sink(m_sink); }
    ~LoggingTest() override { logging::set_sink(nullptr); }

    std::shared_ptr<logging::memory_sink> m_sink = std::make_shared<logging::memory_sink>();
    logging::log_section_t m_section{"part"};
};

TEST_F(LoggingTest, WritesOneEntryForEachCall)
{
    const std::runtime_error cause("Bad %1.");
    logging::ILogSection& section = m_section;
    section.info("100%1");
    section.warn("careful");
    section.warn("At [%1].", "%1", cause);
    section.err("broken");
    section.err(cause);
    section.err("In [%1].", "x", cause);

    struct Line
    {
        logging::ELevel level;
        std::string text;
    };
    const Line expected[] = {
        {logging::ELevel::Info, "100%1"},
        {logging::ELevel::Warn, "careful"},
        {logging::ELevel::Warn, "At [%1]. Bad %1."},
        {logging::ELevel::Error, "broken"},
        {logging::ELevel::Error, "Bad %1."},
        {logging::ELevel::Error, "In [x]. Bad %1."},
    };
    const auto entries = m_sink->entries();
    ASSERT_EQ(entries.size(), std::size(expected));
    for (std::size_t i = 0; i < entries.size(); ++i)
    {
        EXPECT_EQ(entries[i].section, "part");
        EXPECT_EQ(entries[i].level, expected[i].level);
        EXPECT_EQ(entries[i].text, expected[i].text);
    }
}

TEST_F(LoggingTest, AsksForTheSinkAtEachCall)
{
    const auto other = std::make_shared<logging::memory_sink>();
    m_section.info("first");
    logging::set_sink(other);
    m_section.info("second");
    logging::set_sink(nullptr);
    m_section.err(std::runtime_error("dropped"));
    EXPECT_EQ(logging::current_sink(), nullptr);

    ASSERT_EQ(m_sink->entries().size(), 1U);
    EXPECT_EQ(m_sink->entries()[0].text, "first");
    ASSERT_EQ(other->entries().size(), 1U);
    EXPECT_EQ(other->entries()[0].text, "second");
}

TEST_F(LoggingTest, ClearsTheMemorySink)
{
    m_section.info("first");
    m_sink->clear();
    m_section.info("second");
    ASSERT_EQ(m_sink->entries().size(), 1U);
    EXPECT_EQ(m_sink->entries()[0].text, "second");
}

TEST_F(LoggingTest, LosesNoEntryOfSeveralThreads)
{
    constexpr int EntriesOfThread = 200;
    std::vector<std::thread> threads;
    threads.reserve(4);
    for (int i = 0; i < 4; ++i)
        threads.emplace_back([this] {
            for (int entry = 0; entry < EntriesOfThread; ++entry)
            {
                m_section.info("note");
                logging::set_sink(m_sink);
            }
        });
    for (auto& thread : threads)
        thread.join();
    EXPECT_EQ(m_sink->entries().size(), 4U * EntriesOfThread);
}

} // namespace
