#include <clocale>

#include <gtest/gtest.h>

#include <zelplatform/datetime/datetime.h>
#include <zelplatform/exc/exc.h>

namespace
{

using datetime::CDateTime;

CDateTime at(const std::string& text)
{
    return CDateTime::fromString(text, "%Y-%m-%d %H:%M:%S");
}

CDateTime day(const std::string& text)
{
    return CDateTime::fromString(text, "%Y-%m-%d");
}

std::string text(const CDateTime& value)
{
    return value.toStdString("%Y-%m-%d %H:%M:%S");
}

TEST(DateTimeText, ReadingInTheDocumentsFormat)
{
    const struct
    {
        const char* text;
        const char* expected;
    } cases[] = {
        {"03/06/2024 07:08:09", "2024-03-06 07:08:09"}, {"3/6/2024 7:8:9", "2024-03-06 07:08:09"},
        {"02/29/2024 23:59:59", "2024-02-29 23:59:59"}, {"01/01/1400 00:00:00", "1400-01-01 00:00:00"},
        {"12/31/9999 23:59:59", "9999-12-31 23:59:59"}, {"01/01/1970 00:00:00", "1970-01-01 00:00:00"},
    };
    EXPECT_STREQ("%m/%d/%Y %H:%M:%S", CDateTime::QorDateFormat);
    EXPECT_STREQ("%m/%d/%Y %H:%M:%S", CDateTime::DefaultFormat);
    for (const auto& each : cases)
        EXPECT_EQ(each.expected, text(CDateTime::fromString(each.text, CDateTime::QorDateFormat))) << each.text;
    EXPECT_TRUE(CDateTime::fromString("03/06/2024 07:08:09", CDateTime::QorDateFormat).isUtcTime());
    EXPECT_FALSE(CDateTime::fromString("03/06/2024 07:08:09", CDateTime::QorDateFormat, false).isUtcTime());
}

TEST(DateTimeText, TextsThatAreNoDates)
{
    for (const std::string text : {"",
                                   " ",
                                   "now",
                                   "01/01/0001 00:00:00",
                                   "12/31/1399 23:59:59",
                                   "01/01/10000 00:00:00",
                                   "02/30/2024 00:00:00",
                                   "02/29/2023 00:00:00",
                                   "02/29/1900 00:00:00",
                                   "00/01/2024 00:00:00",
                                   "13/01/2024 00:00:00",
                                   "01/00/2024 00:00:00",
                                   "01/32/2024 00:00:00",
                                   "03/06/2024 24:00:00",
                                   "03/06/2024 00:60:00",
                                   "03/06/2024 00:00:60",
                                   "03/06/2024",
                                   "03/06/2024 00:00",
                                   "03/06/2024 00:00:00 ",
                                   " 03/06/2024 00:00:00",
                                   "03/06/202400:00:00",
                                   "03/06/2024  00:00:00",
                                   "03/06/2024T00:00:00",
                                   "03-06-2024 00:00:00",
                                   "2024/03/06 00:00:00",
                                   "03/06/24 00:00:00",
                                   "03/06/024 00:00:00",
                                   "03/06/02024 00:00:00",
                                   "+3/06/2024 00:00:00",
                                   "-3/06/2024 00:00:00",
                                   "003/06/2024 00:00:00",
                                   "03/006/2024 00:00:00",
                                   "03/06/+024 00:00:00",
                                   "03/06/-024 00:00:00",
                                   " 3/06/2024 00:00:00",
                                   "03/06/2024 00:00:00Z",
                                   "03/06/2024 00:00:0a",
                                   "a3/06/2024 00:00:00",
                                   "0x/06/2024 00:00:00",
                                   "03/06/2024 1:2:",
                                   "03/06/2024 ::",
                                   "\xD9\xA3/06/2024 00:00:00"})
        EXPECT_THROW((void)CDateTime::fromString(text, CDateTime::QorDateFormat), exc::CRuntimeExc) << text;
    EXPECT_THROW((void)CDateTime::fromString(std::string("03/06/2024 00:00:00\0", 20), CDateTime::QorDateFormat),
                 exc::CRuntimeExc);
}

TEST(DateTimeText, FieldsThatTheFormatLacksStayAtTheEpoch)
{
    EXPECT_EQ("2024-01-01 00:00:00", text(CDateTime::fromString("2024", "%Y")));
    EXPECT_EQ("1970-01-01 05:06:00", text(CDateTime::fromString("5h06", "%Hh%M")));
    EXPECT_EQ("1970-01-01 00:00:00", text(CDateTime::fromString("", "")));
    EXPECT_EQ("1970-01-06 00:00:00", text(CDateTime::fromString("6%", "%d%")));
    EXPECT_EQ("2024-02-29 00:00:00", text(CDateTime::fromString("29.02.2024", "%d.%m.%Y")));
    EXPECT_THROW((void)CDateTime::fromString("x", ""), exc::CRuntimeExc);
    EXPECT_THROW((void)CDateTime::fromString("", "%Y"), exc::CRuntimeExc);
}

TEST(DateTimeText, Formatting)
{
    const CDateTime value = at("2024-03-06 07:08:09");
    EXPECT_EQ("03/06/2024 07:08:09", value.toStdString(CDateTime::QorDateFormat));
    EXPECT_EQ("Wednesday Wed March Mar 06 066", value.toStdString("%A %a %B %b %d %j"));
    EXPECT_EQ("100%", value.toStdString("100%%"));
    EXPECT_EQ("01/01/1400", day("1400-01-01").toStdString("%m/%d/%Y"));
    EXPECT_EQ("12/31/9999 23:59:59", at("9999-12-31 23:59:59").toStdString("%m/%d/%Y %H:%M:%S"));
    EXPECT_EQ(std::string(200, 'x') + "2024", value.toStdString(std::string(200, 'x') + "%Y"));
}

TEST(DateTimeText, LocaleOfTheProcessPlaysNoPart)
{
    const std::string before = std::setlocale(LC_ALL, nullptr);
    for (const char* locale : {"de_DE.UTF-8", "C.UTF-8", "C"})
        if (std::setlocale(LC_ALL, locale))
        {
            EXPECT_EQ("Wednesday March", day("2024-03-06").toStdString("%A %B"));
        }
    std::setlocale(LC_ALL, before.c_str());
}

} // namespace
