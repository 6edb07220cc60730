#include <cstdint>
#include <limits>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include <zelmodel/structs/schedule/week_day_number.h>

#include "support/expect_failure.h"

using zelmodel_test::failureText;
using zelplatform::model::structs::EWeekDayNumber;

namespace
{

struct Row
{
    EWeekDayNumber::type value;
    int number;
    const char* text;
};

constexpr Row Rows[] = {{EWeekDayNumber::First, 1, "First"}, {EWeekDayNumber::Second, 2, "Second"},
                        {EWeekDayNumber::Third, 3, "Third"}, {EWeekDayNumber::Fourth, 4, "Fourth"},
                        {EWeekDayNumber::Last, 5, "Last"},   {EWeekDayNumber::Every, 6, "Every"}};

} // namespace

TEST(WeekDayNumberValue, HasFixedNumbers)
{
    for (const Row& row : Rows)
        EXPECT_EQ(static_cast<int>(row.value), row.number);
}

TEST(WeekDayNumberText, WritesNames)
{
    for (const Row& row : Rows)
        EXPECT_EQ(EWeekDayNumber::ToStr(row.value), row.text);
}

TEST(WeekDayNumberText, ReadsNamesInAnyLetterCase)
{
    for (const Row& row : Rows)
    {
        std::string lower = row.text;
        lower[0] = static_cast<char>(lower[0] - 'A' + 'a');
        std::string mixed = lower;
        mixed.back() = static_cast<char>(mixed.back() - 'a' + 'A');
        for (const std::string& text : {std::string(row.text), lower, mixed})
            EXPECT_EQ(EWeekDayNumber::FromStr(text), row.value) << text;
    }
    EXPECT_EQ(EWeekDayNumber::FromStr("LAST"), EWeekDayNumber::Last);
    EXPECT_EQ(EWeekDayNumber::FromStr("EVERY"), EWeekDayNumber::Every);
}

TEST(WeekDayNumberText, OffersFiveNames)
{
    EXPECT_EQ(EWeekDayNumber::GetWeekNumberStrSet(),
              (std::vector<std::string>{"First", "Second", "Third", "Fourth", "Last"}));
}

TEST(WeekDayNumberFailures, ValuesWithoutName)
{
    for (const std::int32_t number :
         {0, -1, 7, 100, std::numeric_limits<std::int32_t>::min(), std::numeric_limits<std::int32_t>::max()})
    {
        EXPECT_EQ(failureText([&] { EWeekDayNumber::ToStr(static_cast<EWeekDayNumber::type>(number)); }),
                  "Unable to convert EWeekDayNumber::type [" + std::to_string(number) + "] to string.");
    }
}

TEST(WeekDayNumberFailures, WordsThatAreNone)
{
    for (const char* text : {"", "fifth", "FIFTH", " First", "First ", "1", "Firs", "Firstly", "%1"})
    {
        EXPECT_EQ(failureText([&] { EWeekDayNumber::FromStr(text); }),
                  std::string("Value [") + text + "] is not a valid week number.");
    }
}
