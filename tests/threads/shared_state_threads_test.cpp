#include <array>
#include <atomic>
#include <memory>
#include <sstream>
#include <string>

#include <gtest/gtest.h>
#include <spdlog/sinks/ostream_sink.h>
#include <spdlog/spdlog.h>

#include <zelmodel/zelmodel_log.h>
#include <zelplatform/datetime/clock.h>
#include <zelplatform/exc/exc.h>
#include <zelplatform/logging/logging.h>
#include <zelplatform/logging/spdlog_sink.h>
#include <zelplatform/xmlpp/xmlpp.h>

#include "together.h"

namespace
{

using namespace zelmodel_test;

/// Counts entries, and those that are not whole.
struct CountingSink : logging::ILogSink
{
    void write(const logging::Entry& entry) override
    {
        ++count;
        if (entry.section != "zelmodel" || entry.text != "Bad value [7]. It is odd.")
            ++broken;
    }

    std::atomic<int> count{0};
    std::atomic<int> broken{0};
};

void note()
{
    zelmodel_log.warn("Bad value [%1].", "7", exc::CRuntimeExc("It is odd."));
}

TEST(LoggingThreads, EachEntryReachesTheSinkInForce)
{
    const std::array<std::shared_ptr<CountingSink>, 2> sinks{std::make_shared<CountingSink>(),
                                                             std::make_shared<CountingSink>()};
    logging::set_sink(sinks[0]);
    repeatTogether([&](int thread, int round) {
        if (thread == 0)
            logging::set_sink(sinks[static_cast<std::size_t>(round) % 2]);
        else
            note();
    });
    logging::set_sink(nullptr);
    EXPECT_EQ((ThreadCount - 1) * roundCount(), sinks[0]->count + sinks[1]->count);
    EXPECT_EQ(0, sinks[0]->broken + sinks[1]->broken);
}

TEST(LoggingThreads, SinksAreReleasedWhileTheyAreWrittenTo)
{
    repeatTogether([](int thread, int round) {
        if (thread == 0)
            logging::set_sink(round % 3 == 0 ? nullptr : std::make_shared<logging::memory_sink>());
        else
            note();
    });
    logging::set_sink(nullptr);
}

TEST(LoggingThreads, MemoryKeepsEveryEntry)
{
    const auto sink = std::make_shared<logging::memory_sink>();
    logging::set_sink(sink);
    runTogether([&](int) {
        for (int i = 0; i < 100; ++i)
        {
            note();
            EXPECT_NE(0U, sink->entries().size());
        }
    });
    logging::set_sink(nullptr);
    EXPECT_EQ(ThreadCount * 100U, sink->entries().size());
    repeatTogether([&](int thread, int) {
        if (thread == 0)
            sink->clear();
        else
            sink->write({"section", logging::ELevel::Info, "text"});
    });
}

TEST(LoggingThreads, LoggersGetWholeLines)
{
    std::ostringstream out;
    const auto logger = std::make_shared<spdlog::logger>("test", std::make_shared<spdlog::sinks::ostream_sink_mt>(out));
    logger->set_pattern("%v", spdlog::pattern_time_type::utc);
    logging::set_sink(std::make_shared<logging::spdlog_sink>(logger));
    repeatTogether([](int, int) { note(); });
    logging::set_sink(nullptr);

    std::istringstream lines(out.str());
    int count = 0;
    for (std::string line; std::getline(lines, line); ++count)
        ASSERT_EQ("[zelmodel] Bad value [7]. It is odd.", line);
    EXPECT_EQ(ThreadCount * roundCount(), count);
}

TEST(LookupRecordThreads, EachThreadKeepsItsOwnQuestions)
{
    repeatTogether([](int thread, int round) {
        const auto document = xmlpp::CXmlDocument::Unserialize("<a x='1'><b/></a>");
        const auto root = document.GetRootNode();
        if ((thread + round) % 4 == 0)
        {
            EXPECT_TRUE(root.HasAttribute("x"));
            return;
        }
        const xmlpp::CLookupRecord record;
        EXPECT_TRUE(root.HasAttribute("x"));
        {
            const xmlpp::CLookupPause pause;
            EXPECT_TRUE(root.HasNode("b"));
        }
        const xmlpp::CLookupRecord inner;
        EXPECT_FALSE(root.HasNode("c"));
        EXPECT_EQ(1U, record.GetLookups().size());
        EXPECT_EQ(1U, inner.GetLookups().size());
        EXPECT_EQ("c", inner.GetLookups().front().name);
    });
}

TEST(ClockThreads, TimeIsAskedWhileItsSourceIsReplaced)
{
    datetime::set_clock_for_tests([] { return 0L; }, [] { return 3600L; });
    repeatTogether([](int thread, int round) {
        if (thread == 0)
        {
            datetime::set_clock_for_tests([round] { return static_cast<long>(round); }, [] { return 3600L; });
            return;
        }
        const long now = datetime::clock_now();
        EXPECT_TRUE(now >= 0 && now < roundCount()) << now;
        EXPECT_EQ(3600, datetime::clock_local_offset());
    });
    datetime::set_clock_for_tests(nullptr, nullptr);
}

} // namespace
