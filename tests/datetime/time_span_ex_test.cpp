#include <zelmodel/datetime/time_span_ex.h>

#include <limits>

#include <gtest/gtest.h>

#include "support/expect_failure.h"

using zelmodel_test::failureText;
using zelplatform::model::CTimeSpanEx;

namespace
{

constexpr long Longest = std::numeric_limits<long>::max();

TEST(TimeSpanExTest, IsMadeOfSecondsHoursOrDays)
{
    EXPECT_EQ(CTimeSpanEx(-7).getTotalSeconds(), -7);
    EXPECT_EQ(CTimeSpanEx::fromHours(3).getTotalSeconds(), 10800);
    EXPECT_EQ(CTimeSpanEx::fromHours(-1).getTotalSeconds(), -3600);
    EXPECT_EQ(CTimeSpanEx::fromDays(2).getTotalSeconds(), 172800);
    EXPECT_EQ(CTimeSpanEx::fromHours(2562047788015215L).getTotalSeconds(), 9223372036854774000L);
}

TEST(TimeSpanExTest, RefusesSpansThatDoNotFit)
{
    EXPECT_EQ(failureText([] { CTimeSpanEx::fromHours(2562047788015216L); }),
              "The product of [2562047788015216] and [3600] is out of range.");
    EXPECT_EQ(failureText([] { CTimeSpanEx::fromDays(-Longest); }),
              "The product of [-9223372036854775807] and [86400] is out of range.");
    EXPECT_EQ(failureText([] { CTimeSpanEx::fromDays(Longest); }),
              "The product of [9223372036854775807] and [86400] is out of range.");
}

TEST(TimeSpanExTest, ComparesBySeconds)
{
    const CTimeSpanEx less(-1);
    const CTimeSpanEx more(1);
    EXPECT_TRUE(less < more);
    EXPECT_TRUE(more > less);
    EXPECT_TRUE(less <= more);
    EXPECT_TRUE(more >= less);
    EXPECT_FALSE(more < more);
    EXPECT_FALSE(more > more);
    EXPECT_TRUE(more <= more);
    EXPECT_TRUE(more >= more);
}

TEST(TimeSpanExTest, IsWrittenAsAMomentAfter1970)
{
    const struct
    {
        CTimeSpanEx span;
        const char* format;
        const char* text;
    } rows[] = {
        {CTimeSpanEx(3723), "%H:%M:%S", "01:02:03"},
        {CTimeSpanEx::fromDays(2), "%H:%M:%S", "00:00:00"},
        {CTimeSpanEx::fromDays(2), "%Y-%m-%d %H:%M", "1970-01-03 00:00"},
        {CTimeSpanEx(-1), "%H:%M:%S", "23:59:59"},
        {CTimeSpanEx(0), "%A, %B", "Thursday, January"},
        {CTimeSpanEx(0), "no field", "no field"},
    };
    for (const auto& row : rows)
        EXPECT_EQ(row.span.toStdString(row.format), row.text);
}

TEST(TimeSpanExTest, RefusesTextsThatDoNotFit)
{
    EXPECT_EQ(CTimeSpanEx(0).toStdString(std::string(255, 'x')), std::string(255, 'x'));
    const std::string tooLong(256, 'x');
    EXPECT_EQ(failureText([&] { (void)CTimeSpanEx(0).toStdString(tooLong); }),
              "Failed convert time span to string using format [" + tooLong + "].");
    EXPECT_EQ(failureText([] { (void)CTimeSpanEx(0).toStdString(""); }),
              "Failed convert time span to string using format [].");
    // The last second of the last year whose number fits into the fields of a time.
    EXPECT_EQ(CTimeSpanEx(67768036191676799).toStdString("%H:%M:%S"), "23:59:59");
    for (const long seconds : {67768036191676800, Longest})
    {
        EXPECT_EQ(failureText([seconds] { (void)CTimeSpanEx(seconds).toStdString("%H"); }),
                  "Failed to convert UNIX time to struct tm.");
    }
}

} // namespace
