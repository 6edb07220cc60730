#include <memory>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "log_lines.h"
#include "logs/log_reader.h"
#include "pieces.h"

namespace
{

using logs::ELine;
using zelmodel_test::logLineAt;
using zelmodel_test::Pieces;

struct ReasonCase
{
    std::string line;
    std::string reason;
};

TEST(LogReader, GivesTheLibrarysReasons)
{
    const std::string id = zelmodel_test::FirstSession;
    const ReasonCase cases[] = {
        {"Log of the session", "Line [Log of the session] is skipped."},
        {" ", "Line [ ] is skipped."},
        {"2024-03-07 13:05:09 utc " + id + " info Begun",
         "Line [2024-03-07 13:05:09 utc " + id + " info Begun] is skipped."},
        {"07.03.2024 13:05:09 UTC " + id + " info Begun",
         "Unable to convert time string to DateTime. Wrong string format (year)."},
        {"2024-02-30 13:05:09 UTC " + id + " info Begun",
         "Unable to convert time string to DateTime. Day of month is not valid for year"},
        {"2024-03-07 13:05:09 UTC b1d04c7e info Begun", "Unable to convert string [b1d04c7e] to GUID."},
        {logLineAt("13:05:09", "Info Begun"), "Invalid severity value string [Info]."},
        {std::string(logs::LineReader::LongestLine + 1, 'x'), "The line is longer than 65536 bytes."}};
    logs::LibraryNotes notes;
    for (const auto& expected : cases)
    {
        Pieces source({expected.line + '\n'});
        logs::LogReader reader(source, notes);
        ASSERT_TRUE(reader.next());
        EXPECT_EQ(reader.kind(), ELine::Skipped);
        EXPECT_EQ(reader.reason(), expected.reason);
    }
}

TEST(LogReader, NoReasonIsThatOfALineBefore)
{
    logs::LibraryNotes notes;
    Pieces source({logLineAt("13:05:09", "Info Begun") + "\nno record\n"});
    logs::LogReader reader(source, notes);
    ASSERT_TRUE(reader.next());
    EXPECT_EQ(reader.reason(), "Invalid severity value string [Info].");
    ASSERT_TRUE(reader.next());
    EXPECT_EQ(reader.reason(), "Line [no record] is skipped.");
}

TEST(LogReader, CountsLinesByTheirKind)
{
    logs::LibraryNotes notes;
    Pieces source({logLineAt("13:05:09", "warn Volume /srv was read twice") + "\r\n\r\n\nno record\n" +
                   logLineAt("13:05:10", "info")});
    logs::LogReader reader(source, notes);
    ASSERT_TRUE(reader.next());
    ASSERT_EQ(reader.kind(), ELine::Record);
    EXPECT_EQ(reader.record().session.ToAStr(), zelmodel_test::FirstSession);
    EXPECT_EQ(reader.record().severity, logs::ESeverity::Warn);
    EXPECT_EQ(reader.record().message, "Volume /srv was read twice");
    for (const auto kind : {ELine::Empty, ELine::Empty, ELine::Skipped})
    {
        ASSERT_TRUE(reader.next());
        EXPECT_EQ(reader.kind(), kind);
    }
    EXPECT_EQ(reader.number(), 4U);
    EXPECT_FALSE(reader.next());
    ASSERT_TRUE(reader.finish());
    EXPECT_EQ(reader.kind(), ELine::Record);
    EXPECT_EQ(reader.record().message, "");
    EXPECT_EQ(reader.counts().lines, 5U);
    EXPECT_EQ(reader.counts().records, 2U);
    EXPECT_EQ(reader.counts().empty, 2U);
    EXPECT_EQ(reader.counts().skipped, 1U);
}

TEST(LibraryNotes, ReachNoLogAndThePutBackSinkDoes)
{
    const auto sink = std::make_shared<logging::memory_sink>();
    logging::set_sink(sink);
    {
        logs::LibraryNotes notes;
        Pieces source({"no record\n"});
        logs::LogReader reader(source, notes);
        EXPECT_TRUE(reader.next());
    }
    EXPECT_TRUE(sink->entries().empty());
    EXPECT_EQ(logging::current_sink(), sink);
    logging::set_sink(nullptr);
}

} // namespace
