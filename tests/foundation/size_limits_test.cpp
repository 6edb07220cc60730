#include <zelmodel/data_size.h>

#include <limits>
#include <string>

#include <gtest/gtest.h>

#include <zelplatform/exc/exc.h>

#include "support/expect_failure.h"

using zelmodel_test::failureText;
using zelplatform::CSize;
using zelplatform::EDataSizeUnit;

namespace
{

constexpr unsigned long KB = 1024;
constexpr unsigned long MB = 1024 * KB;
constexpr unsigned long GB = 1024 * MB;
constexpr unsigned long TB = 1024 * GB;
constexpr unsigned long PB = 1024 * TB;
constexpr unsigned long EB = 1024 * PB;
constexpr unsigned long Most = std::numeric_limits<unsigned long>::max();

TEST(SizeLimitsTest, UnitsFarFromEveryRowAreRefused)
{
    for (const int value : {256, 262, 65537, -250, std::numeric_limits<int>::max(), std::numeric_limits<int>::min()})
    {
        const auto unit = static_cast<EDataSizeUnit::type>(value);
        const auto inner = "Cannot convert Unit type to string: unknown value [" + std::to_string(value) + "].";
        EXPECT_EQ(failureText([&] { EDataSizeUnit::toStr(unit); }),
                  "EDataSizeUnit: Failed to convert to long string. " + inner);
        EXPECT_EQ(failureText([&] { EDataSizeUnit::toShortStr(unit); }),
                  "EDataSizeUnit: Failed to convert to short string. " + inner);
    }
    EXPECT_EQ(&EDataSizeUnit::GetShortStrSet(), &EDataSizeUnit::GetShortStrSet());
}

TEST(SizeLimitsTest, VariablesComputeAndCompareAsTheirNumbers)
{
    CSize less(3);
    CSize more(4);
    EXPECT_EQ(less + more, 7UL);
    EXPECT_EQ(less - more, Most);
    EXPECT_EQ(CSize(1UL << 63) * CSize(2), 0UL);
    EXPECT_TRUE(less < more);
    EXPECT_FALSE(less == more);
    less += more;
    EXPECT_EQ(less, 7UL);
}

TEST(SizeLimitsTest, RoundedNumberMayReachTheNextUnit)
{
    const std::pair<unsigned long, const char*> rows[] = {
        {MB - 1, "1024.0 KB"},                               // 1023.999
        {GB - 1, "1024.0 MB"},           {EB - 1, "1.0 EB"}, // the nearest double is 1 EB
        {1048524, "1023.9 KB"},                              // 1023.949
        {GB + GB / 4, "1.2 GB"},                             // 1.25: half goes to the even digit
        {GB + GB / 2 + GB / 4, "1.8 GB"}                     // 1.75
    };
    for (const auto& [bytes, text] : rows)
        EXPECT_EQ(CSize(bytes).ToNBytesStr(), text) << bytes;
}

TEST(SizeLimitsTest, CutNumberMayNot)
{
    const std::pair<unsigned long, const char*> rows[] = {
        {1025, "1.00K"},      {MB - 1, "1023.99K"}, {GB - 1, "1023.99M"},
        {TB - 1, "1023.99G"}, {PB - 1, "1024T"}, // 15 digits do not tell it from 1024 any more
        {8 * EB, "8E"},       {Most, "16E"},
    };
    for (const auto& [bytes, text] : rows)
    {
        EXPECT_EQ(CSize(bytes).ToStr(20, false), text);
        EXPECT_EQ(CSize(bytes).ToStr(std::numeric_limits<unsigned>::max(), true), text);
    }
    EXPECT_EQ(CSize(0).ToStr(1, true), "B");
    EXPECT_EQ(CSize(0).ToStr(0, true), "B");
    EXPECT_EQ(CSize(0).ToStr(0, false), "");
}

TEST(SizeLimitsTest, TextsAreReadUpToTheLastDouble)
{
    const std::pair<const char*, unsigned long> rows[] = {
        {"00010", 10},
        {"10\t gB \r\n", 10 * GB},
        {"2048.0K", 2 * MB},
        {"0.0009765625K", 1},
        {"0.5B", 0},
        {"0E", 0},
        {"16383P", 16383 * PB},
        {"9223372036854775808", 1UL << 63},
        {"9223372036854775808B", 1UL << 63},
        {"9223372036854777856B", (1UL << 63) + 2048},
        {"18446744073709549568B", Most - 2047},
    };
    for (const auto& [text, bytes] : rows)
        EXPECT_EQ(CSize::FromStr(text), bytes) << text;
}

TEST(SizeLimitsTest, TextsBeyondAreRefused)
{
    // The last two are below 2^64, but the nearest double is not.
    for (const char* text : {"16384P", "99999999E", "18014398509481983K", "18446744073709551615B"})
        EXPECT_EQ(failureText([text] { CSize::FromStr(text); }),
                  "Unable to cast value from [double] to [unsigned long].");
    const std::string digits(400, '9');
    EXPECT_EQ(failureText([&] { CSize::FromStr(digits); }),
              "Unable to convert string [" + digits + "] to [unsigned long].");
    EXPECT_EQ(failureText([&] { CSize::FromStr(digits + "B"); }),
              "Unable to convert string [" + digits + "] to [double].");
}

TEST(SizeLimitsTest, TextsOfOtherNotationsAreRefused)
{
    const std::pair<const char*, const char*> units[] = {
        {"1e3", "e3"},    {"1,5K", ",5K"},   {"0x10", "x10"},   {"10-5K", "-5K"},
        {"10GB5", "GB5"}, {"1.5KiB", "KiB"}, {"10 10K", "10K"},
    };
    for (const auto& [text, unit] : units)
        EXPECT_EQ(failureText([input = text] { CSize::FromStr(input); }),
                  std::string("EDataSizeUnit: Failed to convert from string [") + unit + "]. Unknown data unit: [" +
                      unit + "].");
    EXPECT_EQ(failureText([] { CSize::FromStr("."); }), "Unable to convert string [.] to [unsigned long].");
    EXPECT_EQ(failureText([] { CSize::FromStr(".K"); }), "Unable to convert string [.] to [double].");
    for (const char* text : {"+5", "inf", "nan K", "\t10"})
        EXPECT_THROW(CSize::FromStr(text), exc::CRuntimeExc) << text;
    EXPECT_THROW(CSize::FromStr(std::string("10\0", 3)), exc::CRuntimeExc);
    EXPECT_THROW(CSize::FromStr(std::string("10K\0", 4)), exc::CRuntimeExc);
}

} // namespace
