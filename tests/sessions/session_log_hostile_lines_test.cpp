#include <random>
#include <sstream>

#include <support/expect_quick.h>

#include "session_log_lines.h"

namespace
{

using namespace zelplatform::model;
using zelmodel_test::lineId;
using zelmodel_test::lineStart;
using zelmodel_test::parseLine;

class SessionLogHostileLines : public zelmodel_test::SessionLogLines
{
protected:
    /// A record logs nothing, any other line one note, after one error at most.
    void expectNotesFit(const std::string& line, bool isRecord)
    {
        const auto logged = takeEntries();
        if (isRecord || line.empty())
        {
            EXPECT_TRUE(logged.empty());
            return;
        }
        ASSERT_FALSE(logged.empty());
        ASSERT_LE(logged.size(), 2U);
        if (logged.size() == 2)
        {
            EXPECT_EQ(logging::ELevel::Error, logged[0].level);
        }
        expectEntry(logged.back(), logging::ELevel::Info, "Line [" + line + "] is skipped.");
    }
};

constexpr std::size_t megabyte = 1UL << 20;

TEST_F(SessionLogHostileLines, ControlCharactersInAMessageAreData)
{
    std::string message = "<";
    for (int code = 0; code < 256; ++code)
        message += static_cast<char>(code);
    message += ">";
    expectMessage(lineStart() + "info " + message, message);
    expectMessage(lineStart() + "info \x1B[31mred\x1B[0m\x07", "\x1B[31mred\x1B[0m\x07");
    expectMessage(lineStart() + "info a\nb\nc", "a\nb\nc");
    const std::string nul = std::string("a\0b\0", 4);
    expectMessage(lineStart() + "info " + nul, nul);
    expectMessage(lineStart() + "info " + std::string(3, '\0'), std::string(3, '\0'));
}

TEST_F(SessionLogHostileLines, ControlCharactersElsewhereAreFaults)
{
    expectSkipped(std::string("2024-03-07 13:05:09 UTC\0 ", 25) + lineId + " info x");
    // A failure's text ends at the first NUL; the note keeps the whole line.
    expectFaulty(lineStart() + std::string("info\0", 5) + " x", "Invalid severity value string [info");
    expectFaulty(lineStart() + "info\x1B x", "Invalid severity value string [info\x1B].");
    expectFaulty("2024-03-07\x01 13:05:09 UTC " + std::string(lineId) + " info x",
                 "Unable to convert time string to DateTime. Unable to convert string [07\x01] to [unsigned char].");
    expectFaulty("2024-03-07 13:05:09 UTC " + std::string(lineId) + "\x7F info x",
                 "Unable to convert string [" + std::string(lineId) + "\x7F] to GUID.");
}

TEST_F(SessionLogHostileLines, MegabyteLines)
{
    zelmodel_test::expectQuick([&] {
        const std::string letters(megabyte, 'x');
        const std::string blanks(megabyte, ' ');
        std::string words;
        for (std::size_t count = 0; count < megabyte / 2; ++count)
            words += "y ";
        const std::string dashes(megabyte, '-');

        expectMessage(lineStart() + "info " + letters, letters);
        expectMessage(lineStart() + "info " + blanks + "z" + blanks, "z");
        expectMessage(lineStart() + "info " + words, words.substr(0, words.size() - 1));
        expectMessage(lineStart() + "info" + blanks, "");
        expectSkipped(letters);
        expectSkipped(blanks);
        expectSkipped(words);
        expectFaulty(lineStart() + letters, "Invalid severity value string [" + letters + "].");
        expectFaulty("2024-03-07 13:05:09 UTC " + letters + " info x",
                     "Unable to convert string [" + letters + "] to GUID.");
        expectFaulty(letters + "-03-07 13:05:09 UTC " + lineId + " info x",
                     "Unable to convert time string to DateTime. Unable to convert string [" + letters +
                         "] to [unsigned short].");
        expectFaulty(dashes + " 13:05:09 UTC " + lineId + " info x",
                     "Unable to convert time string to DateTime. Unable to convert string [] to [unsigned short].");
    });
}

// Each refusal is told by a note, not by an exception, which would take many times longer than the line.
TEST_F(SessionLogHostileLines, MillionLinesWithAWrongTime)
{
    logging::set_sink(nullptr);
    zelmodel_test::expectQuick([] {
        for (int count = 0; count < 250000; ++count)
        {
            for (const char* line : {"  UTC  ", "1-1-0 0:0:0 UTC  ", "2024-02-30 00:00:00 UTC  ", "x-1-1 0:0:0 UTC  "})
                EXPECT_FALSE(parseLine(line).isRecord);
        }
    });
}

TEST_F(SessionLogHostileLines, EveryBeginningOfALine)
{
    const std::string line = lineStart() + "warn Volume /srv was read  twice";
    const std::size_t severityEnd = lineStart().size() + 4;
    for (std::size_t length = 0; length <= line.size(); ++length)
    {
        SCOPED_TRACE(length);
        const std::string part = line.substr(0, length);
        const auto parsed = parseLine(part);
        EXPECT_EQ(length >= severityEnd, parsed.isRecord);
        const auto logged = takeEntries();
        if (parsed.isRecord || length == 0)
            EXPECT_TRUE(logged.empty());
        else
            EXPECT_EQ(length >= lineStart().size() ? 2U : 1U, logged.size());
    }
}

TEST_F(SessionLogHostileLines, RandomRecordsComeBack)
{
    std::mt19937 random(20240307);
    const auto upTo = [&](int last) { return static_cast<int>(random() % static_cast<unsigned>(last + 1)); };
    for (int round = 0; round < 2000; ++round)
    {
        std::ostringstream stamp;
        const datetime::CDateTime time(1 + static_cast<long>(random()) * 58, true);
        stamp << time.toStdString("%Y-%m-%d %H:%M:%S");
        const auto id = guid::guid_t::CreateNew();
        const auto severity = static_cast<ISessionLogWriter::ESeverity>(upTo(3));
        std::string message = "m";
        for (int count = upTo(60); count > 0; --count)
            message += static_cast<char>(upTo(3) == 0 ? ' ' : upTo(255));
        message += "m";

        const auto parsed = parseLine(stamp.str() + " UTC " + id.ToAStr() + " " +
                                      ISessionLogWriter::SeverityToString(severity) + " " + message);
        ASSERT_TRUE(parsed.isRecord) << stamp.str();
        EXPECT_TRUE(parsed.time.getUtcTime() == time);
        EXPECT_TRUE(parsed.id == id);
        EXPECT_EQ(severity, parsed.severity);
        EXPECT_TRUE(parsed.message == message);
    }
    EXPECT_TRUE(entries().empty());
}

TEST_F(SessionLogHostileLines, DamagedLinesNeverThrow)
{
    std::mt19937 random(7);
    const std::string line = lineStart() + "warn Volume /srv";
    const std::string pieces = " -:0129UTCutcwarn{}\t\r\n%";
    for (int round = 0; round < 20000; ++round)
    {
        std::string damaged = line;
        for (auto count = 1 + random() % 4; count > 0 && !damaged.empty(); --count)
        {
            const std::size_t at = random() % damaged.size();
            const char piece = random() % 4 == 0 ? static_cast<char>(random() % 256) : pieces[random() % pieces.size()];
            if (random() % 3 == 0)
                damaged.erase(at, 1 + random() % 5);
            else if (random() % 2 == 0)
                damaged.insert(at, 1, piece);
            else
                damaged[at] = piece;
        }
        bool isRecord = false;
        ASSERT_NO_THROW(isRecord = parseLine(damaged).isRecord) << damaged;
        expectNotesFit(damaged, isRecord);
    }
}

} // namespace
