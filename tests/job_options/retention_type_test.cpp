#include <gtest/gtest.h>

#include <support/expect_failure.h>
#include <zelmodel/retention_type.h>

namespace
{

using zelmodel_test::failureText;
using zelplatform::model::ERetentionType;

TEST(RetentionType, ConvertsEveryRow)
{
    const struct
    {
        int number;
        const char* text;
    } rows[] = {{0, "Cycles"}, {1, "Days"}};
    for (const auto& row : rows)
    {
        EXPECT_EQ(row.text, ERetentionType::ToStr(static_cast<ERetentionType::type>(row.number)));
        EXPECT_EQ(row.number, static_cast<int>(ERetentionType::FromStr(row.text)));
    }
}

TEST(RetentionType, CountOfTheKindsConvertsLikeAKind)
{
    EXPECT_EQ("_number", ERetentionType::ToStr(static_cast<ERetentionType::type>(2)));
    EXPECT_EQ(2, static_cast<int>(ERetentionType::FromStr("_number")));
}

TEST(RetentionType, RefusesUnknownTexts)
{
    for (const std::string text : {"", "cycles", "CYCLES", "Cycles ", " Days", "days", "number", "0", "1", "Day"})
        EXPECT_EQ("Failed to convert retention type from string.", failureText([&] { ERetentionType::FromStr(text); }))
            << text;
    EXPECT_EQ("Failed to convert retention type from string.",
              failureText([] { ERetentionType::FromStr(std::string("Days\0", 5)); }));
}

TEST(RetentionType, RefusesUnknownValues)
{
    for (const int number : {-1, 3, 4, 127, 128, 255, 256, 257, 2147483647})
        EXPECT_EQ("Failed to convert retention type to string.",
                  failureText([&] { ERetentionType::ToStr(static_cast<ERetentionType::type>(number)); }))
            << number;
}

} // namespace
