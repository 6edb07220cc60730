#include <zelmodel/datetime/date.h>

#include <type_traits>

#include <gtest/gtest.h>

using datetime::CDateTime;
using zelplatform::model::CDate;

namespace
{

static_assert(!std::is_convertible_v<CDateTime, CDate>);
static_assert(std::is_convertible_v<CDate, CDateTime>);

CDateTime moment(const std::string& text, bool isUtc = true)
{
    return CDateTime::fromString(text, "%Y-%m-%d %H:%M:%S", isUtc);
}

TEST(DateTest, DropsTheTimeOfDay)
{
    const char* const rows[][2] = {
        {"2024-03-07 15:04:05", "2024-03-07 00:00:00"}, {"2024-03-07 00:00:00", "2024-03-07 00:00:00"},
        {"1969-12-31 23:59:59", "1969-12-31 00:00:00"}, {"1400-01-01 00:00:01", "1400-01-01 00:00:00"},
        {"9999-12-31 23:59:59", "9999-12-31 00:00:00"},
    };
    for (const auto& [text, midnight] : rows)
    {
        const CDateTime result = CDate(moment(text));
        EXPECT_EQ(result.toStdString("%Y-%m-%d %H:%M:%S"), midnight);
    }
}

TEST(DateTest, KeepsTheUtcFlag)
{
    EXPECT_TRUE(CDateTime(CDate(moment("2024-03-07 15:00:00", true))).isUtcTime());
    EXPECT_FALSE(CDateTime(CDate(moment("2024-03-07 15:00:00", false))).isUtcTime());
}

TEST(DateTest, IsWrittenMonthFirst)
{
    EXPECT_EQ(CDate(moment("2024-03-07 15:04:05")).toString(), "03/07/2024");
}

TEST(DateTest, ComparesByTheDay)
{
    const CDate thursday(moment("2024-03-07 15:04:05"));
    const CDate sameThursday(moment("2024-03-07 23:00:00", false));
    const CDate friday(moment("2024-03-08 00:00:00"));
    EXPECT_TRUE(thursday == sameThursday);
    EXPECT_FALSE(thursday != sameThursday);
    EXPECT_TRUE(thursday <= sameThursday);
    EXPECT_TRUE(thursday >= sameThursday);
    EXPECT_FALSE(thursday < sameThursday);
    EXPECT_FALSE(thursday > sameThursday);

    EXPECT_TRUE(thursday < friday);
    EXPECT_TRUE(thursday <= friday);
    EXPECT_TRUE(thursday != friday);
    EXPECT_TRUE(friday > thursday);
    EXPECT_TRUE(friday >= thursday);
    EXPECT_FALSE(friday == thursday);
    EXPECT_FALSE(friday <= thursday);
    EXPECT_FALSE(thursday >= friday);
}

TEST(DateTest, IsComparedWithADateTimeByItsMidnight)
{
    const CDate thursday(moment("2024-03-07 15:04:05"));
    EXPECT_TRUE(moment("2024-03-06 23:59:59") <= thursday);
    EXPECT_TRUE(moment("2024-03-07 00:00:00") <= thursday);
    EXPECT_FALSE(moment("2024-03-07 00:00:01") <= thursday);
}

} // namespace
