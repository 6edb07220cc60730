#include <algorithm>
#include <cctype>
#include <stdexcept>

#include "session_log_lines.h"

namespace
{

using Writer = zelplatform::model::ISessionLogWriter;
using zelmodel_test::lineId;
using zelmodel_test::lineStart;
using zelmodel_test::parseLine;

// A blank divides the time for the line's reader, and ends the seconds for the time's.
void readTimeOrRefuseBlank(const std::string& text)
{
    if (std::count(text.begin(), text.end(), ' ') != 2)
        throw std::invalid_argument("tokens");
    zelplatform::model::CSessionLogLineParser::LogTimeStrToTime(text);
}

class SessionLogLineParserTest : public zelmodel_test::SessionLogLines
{
};

TEST_F(SessionLogLineParserTest, WholeRecord)
{
    const auto parsed = parseLine(lineStart() + "warn Volume /srv was read twice");
    EXPECT_TRUE(parsed.isRecord);
    EXPECT_EQ("2024-03-07 13:05:09", parsed.time.getUtcTime().toStdString("%Y-%m-%d %H:%M:%S"));
    EXPECT_EQ("2024-03-07 14:05:09", parsed.time.getLocalTime().toStdString("%Y-%m-%d %H:%M:%S"));
    EXPECT_EQ(lineId, parsed.id.ToAStr());
    EXPECT_EQ(Writer::Warn, parsed.severity);
    EXPECT_EQ("Volume /srv was read twice", parsed.message);
    EXPECT_TRUE(entries().empty());
}

TEST_F(SessionLogLineParserTest, EverySeverity)
{
    for (const auto& [value, word] : Writer::CreateMessageTypes())
    {
        const auto parsed = parseLine(lineStart() + word + " text");
        EXPECT_TRUE(parsed.isRecord) << word;
        EXPECT_EQ(value, parsed.severity) << word;
    }
    EXPECT_TRUE(entries().empty());
}

TEST_F(SessionLogLineParserTest, FiveTokensHaveAnEmptyMessage)
{
    for (const char* severity : {"info", "info ", "info  ", "info\r", "info\r\n", "\tinfo\t", "info \t\r\n\v\f "})
        expectMessage(lineStart() + severity, "");
}

TEST_F(SessionLogLineParserTest, MessageIsTheRestOfTheLineTrimmed)
{
    expectMessage(lineStart() + "info a  b   c", "a  b   c");
    expectMessage(lineStart() + "info   two blanks in front", "two blanks in front");
    expectMessage(lineStart() + "info \t in tabs \t\r", "in tabs");
    expectMessage(lineStart() + "info one", "one");
    expectMessage(lineStart() + "info info", "info");
    expectMessage(lineStart() + "info info info  info", "info info  info");
    expectMessage(lineStart() + "info " + lineStart() + "warn again", lineStart() + "warn again");
    expectMessage(lineStart() + "error %1 [%2] %%", "%1 [%2] %%");
    expectMessage(lineStart() + "error Gr\xC3\xB6\xC3\x9F"
                                "e \xFF\x80",
                  "Gr\xC3\xB6\xC3\x9F"
                  "e \xFF\x80");
    expectMessage(lineStart() + "error \xC2\xA0no-break blanks stay\xC2\xA0", "\xC2\xA0no-break blanks stay\xC2\xA0");
}

TEST_F(SessionLogLineParserTest, LineBreaksOfOtherSystems)
{
    expectMessage(lineStart() + "info first\r", "first");
    expectMessage(lineStart() + "info first\r\n", "first");
    expectMessage(lineStart() + "info \r", "");
    expectMessage(lineStart() + "processing a\rb\r\r", "a\rb");
}

TEST_F(SessionLogLineParserTest, IdMayBeInBracesAndCapitals)
{
    for (const char* id : {"{0f8fad5b-d9cb-469f-a165-70867728950e}", "0F8FAD5B-D9CB-469F-A165-70867728950E"})
    {
        const auto parsed = parseLine(std::string("2024-03-07 13:05:09 UTC ") + id + " info x");
        EXPECT_TRUE(parsed.isRecord);
        EXPECT_EQ(lineId, parsed.id.ToAStr());
    }
    EXPECT_TRUE(entries().empty());
}

TEST_F(SessionLogLineParserTest, EmptyIdIsTheZeroOne)
{
    // Two blanks before the severity leave an empty fourth token.
    const auto parsed = parseLine("2024-03-07 13:05:09 UTC  warn No session");
    EXPECT_TRUE(parsed.isRecord);
    EXPECT_TRUE(parsed.id.IsEmpty());
    EXPECT_EQ(Writer::Warn, parsed.severity);
    EXPECT_EQ("No session", parsed.message);
    EXPECT_TRUE(entries().empty());
}

TEST_F(SessionLogLineParserTest, EpochIsARecordWithoutATime)
{
    const auto parsed = parseLine(std::string("1970-01-01 00:00:00 UTC ") + lineId + " info x");
    EXPECT_TRUE(parsed.isRecord);
    EXPECT_FALSE(parsed.time.isSet());
    EXPECT_TRUE(entries().empty());
}

TEST_F(SessionLogLineParserTest, EmptyLineIsSilent)
{
    EXPECT_FALSE(parseLine("").isRecord);
    EXPECT_TRUE(entries().empty());
}

TEST_F(SessionLogLineParserTest, LinesThatAreNoRecordsAreNotedOnce)
{
    for (const std::string& line :
         {std::string(" "), std::string("     "), std::string("\t"), std::string("\r"), std::string("\r\n"),
          std::string("rubbish"), std::string("one two three four five"), std::string("2024-03-07"),
          std::string("2024-03-07 13:05:09 UTC"), std::string("2024-03-07 13:05:09 UTC "), lineStart().substr(0, 60),
          std::string("a b UTC d"), std::string("%1 %2 %3 %1 %2"), std::string("\0", 1)})
        expectSkipped(line);
}

TEST_F(SessionLogLineParserTest, ThirdTokenIsExactlyUtc)
{
    for (const std::string zone : {"utc", "Utc", "UTC+1", "UTC\t", "\tUTC", "UT", "GMT", "Z", "+00:00", "", "UTC\r"})
        expectSkipped("2024-03-07 13:05:09 " + zone + " " + lineId + " info x");
    expectSkipped(" " + lineStart() + "info x");
    expectSkipped("2024-03-07  13:05:09 UTC " + std::string(lineId) + " info x");
    expectSkipped("2024-03-07 13:05:09  UTC " + std::string(lineId) + " info x");
    expectSkipped("2024-03-07\t13:05:09 UTC " + std::string(lineId) + " info x");
    expectSkipped("2024-03-07 13:05:09\tUTC " + std::string(lineId) + " info x");
    expectSkipped("utc UTC utc UTC UTC UTC");
}

TEST_F(SessionLogLineParserTest, FourTokensAreTooFew)
{
    expectSkipped("2024-03-07 13:05:09 UTC " + std::string(lineId));
    expectSkipped("2024-03-07 13:05:09 UTC " + std::string(lineId) + "\tinfo\tx");
    expectSkipped("x y UTC z");
}

TEST_F(SessionLogLineParserTest, SeverityIsExact)
{
    const struct
    {
        std::string token;
        std::string named;
    } cases[] = {{"Warn", "Warn"},
                 {"WARN", "WARN"},
                 {"warning", "warning"},
                 {"0", "0"},
                 {"[info]", "[info]"},
                 {"\tError\r", "Error"},
                 {"info\tx", "info\tx"},
                 {"%1", "%1"},
                 {"", ""},
                 {"info,", "info,"},
                 {"\r", ""},
                 {"EWarning", "EWarning"}};
    for (const auto& each : cases)
        expectFaulty(lineStart() + each.token + " text", "Invalid severity value string [" + each.named + "].");
    // One blank too many before the severity: the fifth token is empty.
    expectFaulty(lineStart() + " info text", "Invalid severity value string [].");
    expectFaulty(lineStart(), "Invalid severity value string [].");
    expectFaulty(lineStart() + "Warn", "Invalid severity value string [Warn].");
}

TEST_F(SessionLogLineParserTest, IdMustBeOne)
{
    for (const std::string id :
         {"x", "{}", "0f8fad5b-d9cb-469f-a165-70867728950", "0f8fad5b-d9cb-469f-a165-70867728950e0",
          "{0f8fad5b-d9cb-469f-a165-70867728950e", "0f8fad5b-d9cb-469f-a165-70867728950e}",
          "0f8fad5bd9cb469fa16570867728950e", "\t", "%1"})
        expectFaulty("2024-03-07 13:05:09 UTC " + id + " info text", "Unable to convert string [" + id + "] to GUID.");
}

TEST_F(SessionLogLineParserTest, TimeMustBeOne)
{
    const struct
    {
        std::string stamp;
        std::string reason;
    } cases[] = {
        {" ", "Wrong string format (year)."},
        {"a b", "Wrong string format (year)."},
        {"2024 13:05:09", "Wrong string format (year)."},
        {"2024-03 13:05:09", "Wrong string format (month)."},
        {"2024-03-07 13", "Wrong string format (hours)."},
        {"2024-03-07 13:05", "Wrong string format (minutes)."},
        {"2024-03-07 13:05:", "Unable to convert string [] to [unsigned char]."},
        {"2024-03-07 13:05:09.250", "Unable to convert string [09.250] to [unsigned char]."},
        {"2024-256-07 13:05:09", "Unable to convert string [256] to [unsigned char]."},
        {"2024-03-259 13:05:09", "Unable to convert string [259] to [unsigned char]."},
        {"2024-03-07 269:05:09", "Unable to convert string [269] to [unsigned char]."},
        {"65536-03-07 13:05:09", "Unable to convert string [65536] to [unsigned short]."},
        {"67560-03-07 13:05:09", "Unable to convert string [67560] to [unsigned short]."},
        {"2023-02-29 13:05:09", "Day of month is not valid for year"},
        {"2024-13-07 13:05:09", "Month number is out of range 1..12"},
        {"2024-00-07 13:05:09", "Month number is out of range 1..12"},
        {"1399-03-07 13:05:09", "Year is out of valid range: 1400..9999"},
    };
    for (const auto& each : cases)
        expectFaulty(each.stamp + " UTC " + lineId + " info text",
                     "Unable to convert time string to DateTime. " + each.reason);
}

TEST_F(SessionLogLineParserTest, FaultsAreReportedInReadingOrder)
{
    expectFaulty("2024 13:05:09 UTC x Warn text",
                 "Unable to convert time string to DateTime. Wrong string format (year).");
    expectFaulty("2024-03-07 13:05:09 UTC x Warn text", "Unable to convert string [x] to GUID.");
}

TEST_F(SessionLogLineParserTest, TimesOfDayThatDoNotExist)
{
    for (const char* time : {"24:00:00", "23:60:00", "23:59:60"})
    {
        const std::string line = std::string("2024-03-07 ") + time + " UTC " + lineId + " info text";
        EXPECT_FALSE(parseLine(line).isRecord);
        const auto logged = takeEntries();
        ASSERT_EQ(2U, logged.size());
        EXPECT_EQ(logging::ELevel::Error, logged[0].level);
        EXPECT_EQ(0U, logged[0].text.rfind("Unable to convert time string to DateTime. ", 0));
        expectEntry(logged[1], logging::ELevel::Info, "Line [" + line + "] is skipped.");
    }
}

// Lines that start as the writer's do are read by another way than all others; nobody must be able to tell.
TEST_F(SessionLogLineParserTest, EveryByteInEveryPlaceOfTheTime)
{
    using zelplatform::model::CSessionLogLineParser;
    const std::string time = "2024-03-07 13:05:09 UTC";
    for (std::size_t place = 0; place < time.size(); ++place)
    {
        for (int byte = 0; byte < 256; ++byte)
        {
            SCOPED_TRACE(std::to_string(byte) + " at " + std::to_string(place));
            std::string changed = time;
            changed[place] = static_cast<char>(byte);
            const auto parsed = parseLine(changed + " " + lineId + " info text");
            takeEntries();
            const bool isInZone = place > time.rfind(' ');
            const bool isSeparator = place < time.rfind(' ') && std::isdigit(time[place]) == 0;
            const bool isWhole = changed == time;
            if (isInZone || isSeparator || time[place] == ' ')
                EXPECT_EQ(isWhole, parsed.isRecord);
            else if (parsed.isRecord)
                EXPECT_EQ(CSessionLogLineParser::LogTimeStrToTime(changed).getUtcTime(), parsed.time.getUtcTime());
            else
                EXPECT_ANY_THROW(readTimeOrRefuseBlank(changed));
        }
    }
}

} // namespace
