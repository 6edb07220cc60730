#include <string>

#include <gtest/gtest.h>

#include "log_lines.h"
#include "logs/summary.h"
#include "tools/tree.h"

namespace
{

using logs::Record;
using logs::Summary;
using Model = zelplatform::model::CSessionLogLineParser;
using zelmodel_test::at;
using zelmodel_test::FirstSession;
using zelmodel_test::logLine;
using zelmodel_test::SecondSession;

void add(Summary& summary, const std::string& line)
{
    Record record;
    ASSERT_TRUE(Model::Parse(line, record.time, record.session, record.severity, record.message)) << line;
    summary.add(record);
}

TEST(LogSummary, OfNothing)
{
    const auto tree = logs::describeSummary(Summary());
    EXPECT_EQ(tree.words, "0 sessions with 0 records");
    EXPECT_TRUE(tree.children.empty());
}

TEST(LogSummary, TellsFirstLastCountsAndWorst)
{
    Summary summary;
    // The second session begins earlier; times need not ascend.
    add(summary, logLine("2024-03-07 10:00:00", FirstSession, "info a"));
    add(summary, logLine("2024-03-08 11:00:09", SecondSession, "warn b"));
    add(summary, logLine("2024-03-07 09:00:00", SecondSession, "processing c"));
    add(summary, logLine("2024-03-07 10:00:00", FirstSession, "info d"));
    const auto tree = logs::describeSummary(summary);
    EXPECT_EQ(tree.words, "2 sessions with 4 records");
    ASSERT_EQ(tree.children.size(), 2U);
    const auto& second = tree.children[0];
    EXPECT_EQ(at(second, "id").value, SecondSession);
    EXPECT_EQ(at(second, "first").words, "2024-03-07 09:00:00 UTC");
    EXPECT_EQ(at(second, "last").words, "2024-03-08 11:00:09 UTC");
    EXPECT_EQ(at(second, "duration").words, "26:00:09");
    EXPECT_EQ(at(second, "duration").value, "93609");
    EXPECT_EQ(at(second, "processing").words, "1");
    EXPECT_EQ(at(second, "info").words, "0");
    EXPECT_EQ(at(second, "warn").words, "1");
    EXPECT_EQ(at(second, "error").words, "0");
    EXPECT_EQ(at(second, "worst").words, "warn");
    const auto& first = tree.children[1];
    EXPECT_EQ(at(first, "duration").words, "00:00:00");
    EXPECT_EQ(at(first, "info").words, "2");
    EXPECT_EQ(at(first, "worst").words, "info");
}

struct WorstCase
{
    const char* severity;
    const char* worst;
};

TEST(LogSummary, TheWorstGrows)
{
    Summary summary;
    for (const auto& step : {WorstCase{"processing", "processing"}, WorstCase{"info", "info"},
                             WorstCase{"processing", "info"}, WorstCase{"error", "error"}, WorstCase{"warn", "error"}})
    {
        add(summary, logLine("2024-03-07 10:00:00", FirstSession, step.severity));
        EXPECT_EQ(at(logs::describeSummary(summary).children[0], "worst").words, step.worst);
    }
}

TEST(LogSummary, TimesBefore1970AreTheirOwn)
{
    Summary summary;
    add(summary, logLine("1969-12-31 23:59:58", FirstSession, "info a"));
    add(summary, logLine("1970-01-01 00:00:00", FirstSession, "info b"));
    const auto tree = logs::describeSummary(summary);
    EXPECT_EQ(at(tree.children[0], "first").words, "1969-12-31 23:59:58 UTC");
    EXPECT_EQ(at(tree.children[0], "last").words, "1970-01-01 00:00:00 UTC");
    EXPECT_EQ(at(tree.children[0], "duration").value, "2");
}

} // namespace
