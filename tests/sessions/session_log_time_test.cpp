#include <zelmodel/sessions/session_log_line_parser.h>

#include <gtest/gtest.h>

#include <support/expect_failure.h>
#include <zelplatform/datetime/datetime.h>

#include "log_capture.h"

namespace
{

using namespace zelplatform::model;
using zelmodel_test::failureText;

constexpr const char* readFailed = "Unable to convert time string to DateTime. ";

/// A machine two hours east of UTC.
class SessionLogTime : public zelmodel_test::LogCapture
{
protected:
    void SetUp() override
    {
        LogCapture::SetUp();
        datetime::set_clock_for_tests([] { return 1700000000L; }, [] { return 7200L; });
    }
    void TearDown() override
    {
        datetime::set_clock_for_tests({}, {});
        LogCapture::TearDown();
    }

    static CDateTimeEx read(const std::string& text) { return CSessionLogLineParser::LogTimeStrToTime(text); }

    static void expectRefused(const std::string& text, const std::string& reason)
    {
        EXPECT_EQ(readFailed + reason, failureText([&] { read(text); })) << text;
    }
};

TEST_F(SessionLogTime, TextsThatAreTimes)
{
    const struct
    {
        const char* text;
        const char* expected;
    } cases[] = {
        {"2024-03-07 13:05:09", "2024-03-07 13:05:09"},
        {"2024-03-07 13:05:09 ", "2024-03-07 13:05:09"},
        {"2024-03-07 13:05:09 UTC", "2024-03-07 13:05:09"},
        {"2024-03-07 13:05:09 anything - at : all", "2024-03-07 13:05:09"},
        {"2024-3-7 1:2:3 UTC", "2024-03-07 01:02:03"},
        {"02024-003-007 013:005:009", "2024-03-07 13:05:09"},
        {"2024-02-29 23:59:59", "2024-02-29 23:59:59"},
        {"2024-01-31 00:00:00", "2024-01-31 00:00:00"},
        {"1970-01-01 00:00:01", "1970-01-01 00:00:01"},
        {"9999-12-31 23:59:59", "9999-12-31 23:59:59"},
    };
    for (const auto& each : cases)
    {
        const auto time = read(each.text);
        EXPECT_TRUE(time.isSet()) << each.text;
        EXPECT_TRUE(time.getUtcTime().isUtcTime());
        EXPECT_EQ(each.expected, time.getUtcTime().toStdString("%Y-%m-%d %H:%M:%S")) << each.text;
    }
    EXPECT_TRUE(entries().empty());
}

TEST_F(SessionLogTime, OfSeveralWrongNumbersTheFirstIsTold)
{
    const std::string right[] = {"2024", "03", "07", "13", "05", "09"};
    for (std::size_t first = 0; first < std::size(right); ++first)
    {
        std::string numbers[std::size(right)];
        for (std::size_t i = 0; i < std::size(right); ++i)
            numbers[i] = i < first ? right[i] : "x" + std::to_string(i);
        const auto text =
            numbers[0] + '-' + numbers[1] + '-' + numbers[2] + ' ' + numbers[3] + ':' + numbers[4] + ':' + numbers[5];
        const auto failure = failureText([&] { read(text); });
        EXPECT_NE(failure.find("string [x" + std::to_string(first) + "] to"), std::string::npos) << failure;
    }
}

TEST_F(SessionLogTime, InstantIsUtcWithTheOffsetInForce)
{
    const auto time = read("2024-03-07 23:05:09");
    EXPECT_EQ(1709852709, time.getUtcTime().toUnixTime());
    EXPECT_EQ("2024-03-08 01:05:09", time.getLocalTime().toStdString("%Y-%m-%d %H:%M:%S"));

    datetime::set_clock_for_tests([] { return 1700000000L; }, [] { return -3600L; });
    EXPECT_EQ("2024-03-07 22:05:09", read("2024-03-07 23:05:09").getLocalTime().toStdString("%Y-%m-%d %H:%M:%S"));
}

TEST_F(SessionLogTime, TimesUntilTheEpochAreNotSet)
{
    EXPECT_FALSE(read("1970-01-01 00:00:00").isSet());
    EXPECT_FALSE(read("1969-12-31 23:59:59").isSet());
    EXPECT_FALSE(read("1400-01-01 00:00:00").isSet());
    EXPECT_TRUE(read("1400-01-01 00:00:00") < read("1969-12-31 23:59:59"));
    EXPECT_EQ(1, (read("1970-01-01 00:00:00") - read("1969-12-31 23:59:59")).getTotalSeconds());
}

TEST_F(SessionLogTime, MissingPartsAreNamed)
{
    const struct
    {
        const char* text;
        const char* part;
    } cases[] = {
        {"", "year"},
        {"2024", "year"},
        {"2024 03 07 13:05:09", "year"},
        {"2024/03/07 13:05:09", "year"},
        {"2024-", "month"},
        {"2024-03", "month"},
        {"2024-03/07 13:05:09", "month"},
        {"2024-03-", "day"},
        {"2024-03-07", "day"},
        {"2024-03-07T13:05:09", "day"},
        {"2024-03-07\t13:05:09", "day"},
        {"2024-03-07 ", "hours"},
        {"2024-03-07 13", "hours"},
        {"2024-03-07 13.05.09 UTC", "hours"},
        {"2024-03-07 13:", "minutes"},
        {"2024-03-07 13:05", "minutes"},
        {"2024-03-07 13:05 UTC", "minutes"},
    };
    for (const auto& each : cases)
        expectRefused(each.text, "Wrong string format (" + std::string(each.part) + ").");
}

TEST_F(SessionLogTime, PartsAreFoundBeforeAnyIsConverted)
{
    expectRefused("x-y-z 13:05", "Wrong string format (minutes).");
    expectRefused("70000-03-07", "Wrong string format (day).");
}

TEST_F(SessionLogTime, YearIsA16BitNumber)
{
    for (const std::string year :
         {"", " 2024", "+2024", "2024x", "x", "0x7E8", "2e3", "65536", "67560", "4294969320", "18446744073709553640",
          "\xEF\xBB\xBF"
          "2024"})
        expectRefused(year + "-03-07 13:05:09", "Unable to convert string [" + year + "] to [unsigned short].");
    expectRefused("-2024-03-07 13:05:09", "Unable to convert string [] to [unsigned short].");
}

TEST_F(SessionLogTime, OtherPartsAre8BitNumbers)
{
    const char* texts[][2] = {{"2024-", "-07 13:05:09"}, {"2024-03-", " 13:05:09"}, {"2024-03-07 ", ":05:09"},
                              {"2024-03-07 13:", ":09"}, {"2024-03-07 13:05:", ""}, {"2024-03-07 13:05:", " UTC"}};
    for (const auto& around : texts)
    {
        for (const std::string part : {"", "+7", "7x", "x7", "0x7", "1.5", "256", "259", "263", "512", "65543",
                                       "4294967303", "\t7", "7\r", "\xD9\xA3"})
            expectRefused(around[0] + part + around[1], "Unable to convert string [" + part + "] to [unsigned char].");
    }
    expectRefused("2024-03-07 -1:05:09", "Unable to convert string [-1] to [unsigned char].");
    expectRefused("2024-03--7 13:05:09", "Unable to convert string [-7] to [unsigned char].");
    expectRefused("2024-03-07  3:05:09", "Unable to convert string [ 3] to [unsigned char].");
    expectRefused("2024-03-07 13:05:09:10", "Unable to convert string [09:10] to [unsigned char].");
    expectRefused("2024-03-07 13:05:09.5", "Unable to convert string [09.5] to [unsigned char].");
    expectRefused("2024-03-07 13:05:09Z", "Unable to convert string [09Z] to [unsigned char].");
}

TEST_F(SessionLogTime, DatesThatDoNotExist)
{
    for (const char* text : {"2023-02-29", "2024-02-30", "1900-02-29", "2024-04-31", "2024-06-31", "2024-11-31"})
        expectRefused(std::string(text) + " 13:05:09", "Day of month is not valid for year");
    for (const char* text : {"2024-01-00", "2024-01-32", "2024-12-255"})
        expectRefused(std::string(text) + " 13:05:09", "Day of month value is out of range 1..31");
    for (const char* text : {"2024-00-07", "2024-13-07", "2024-255-07"})
        expectRefused(std::string(text) + " 13:05:09", "Month number is out of range 1..12");
    for (const char* text : {"0-03-07", "0001-03-07", "1399-12-31", "10000-01-01", "65535-01-01"})
        expectRefused(std::string(text) + " 13:05:09", "Year is out of valid range: 1400..9999");
}

TEST_F(SessionLogTime, TimesOfDayThatDoNotExist)
{
    for (const char* text : {"24:00:00", "255:00:00", "00:60:00", "00:255:00", "00:00:60", "23:59:61", "00:00:255"})
    {
        const std::string failure = failureText([&] { read(std::string("2024-03-07 ") + text); });
        EXPECT_EQ(readFailed, failure.substr(0, std::string(readFailed).size())) << text;
        EXPECT_LT(std::string(readFailed).size(), failure.size()) << text;
    }
}

TEST_F(SessionLogTime, RefusalsAreNotLogged)
{
    expectRefused("2024-03-07 13:05", "Wrong string format (minutes).");
    EXPECT_TRUE(entries().empty());
}

} // namespace
