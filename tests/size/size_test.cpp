#include <zelmodel/size/size.h>

#include <type_traits>

#include <gtest/gtest.h>

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
constexpr unsigned long EB = 1024 * 1024 * TB;
constexpr unsigned long Most = 18446744073709551615UL;

TEST(SizeTest, ReadsAsItsNumberOfBytes)
{
    CSize size = 5;
    unsigned long& bytes = size;
    bytes += 2;
    EXPECT_EQ(size, 7UL);
    const CSize fixed(9);
    const unsigned long& fixedBytes = fixed;
    EXPECT_EQ(fixedBytes, 9UL);
}

TEST(SizeTest, ComputesPlainly)
{
    const CSize a(700);
    const CSize b(200);
    EXPECT_EQ(a + b, 900UL);
    EXPECT_EQ(a - b, 500UL);
    EXPECT_EQ(a * b, 140000UL);
    EXPECT_EQ(a / b, 3UL);
    EXPECT_EQ(b - a, Most - 499);
    EXPECT_EQ(CSize(Most) + CSize(2), 1UL);
    static_assert(std::is_same_v<decltype(a + b), CSize>);
    static_assert(std::is_same_v<decltype(a * 2UL), unsigned long>);
    EXPECT_EQ(a * 2UL, 1400UL);
}

TEST(SizeTest, PicksTheUnit)
{
    const struct
    {
        unsigned long bytes;
        double number;
        EDataSizeUnit::type unit;
        const char* text;
    } rows[] = {
        {0, 0.0, EDataSizeUnit::B, "0.0 B"},
        {100, 100.0, EDataSizeUnit::B, "100.0 B"},
        {1023, 1023.0, EDataSizeUnit::B, "1023.0 B"},
        {1024, 1.0, EDataSizeUnit::KB, "1.0 KB"},
        {1536, 1.5, EDataSizeUnit::KB, "1.5 KB"},
        {MB, 1.0, EDataSizeUnit::MB, "1.0 MB"},
        {3 * GB / 2, 1.5, EDataSizeUnit::GB, "1.5 GB"},
        {TB, 1.0, EDataSizeUnit::TB, "1.0 TB"},
        {1024 * TB, 1.0, EDataSizeUnit::PB, "1.0 PB"},
        {EB, 1.0, EDataSizeUnit::EB, "1.0 EB"},
        {Most, 16.0, EDataSizeUnit::EB, "16.0 EB"},
    };
    for (const auto& row : rows)
    {
        SCOPED_TRACE(row.text);
        auto unit = EDataSizeUnit::EB;
        EXPECT_EQ(CSize(row.bytes).ToNBytes(unit), row.number);
        EXPECT_EQ(unit, row.unit);
        EXPECT_EQ(CSize(row.bytes).ToNBytesStr(), row.text);
    }
}

TEST(SizeTest, IsWrittenInTheRoomGiven)
{
    const struct
    {
        unsigned long bytes;
        unsigned maxLength;
        bool showZero;
        const char* text;
    } rows[] = {
        {0, 8, false, ""},
        {0, 8, true, "0B"},
        {1, 8, false, "1B"},
        {3 * GB / 2, 8, true, "1.5G"},
        {GB, 8, false, "1G"},
        {GB + GB / 4, 8, false, "1.25G"},
        {GB + GB / 8, 8, false, "1.12G"}, // 1.125 is cut, not rounded
        {1614907703, 8, false, "1.50G"},  // 1.504: the zero stays
        {1023 * KB + 1023, 8, false, "1023.99K"},
        {1023 * KB + 1023, 7, false, "1023.9K"},
        {1023 * KB + 1023, 6, false, "1023K"}, // the separator is not left at the end
        {1023 * KB + 1023, 5, false, "1023K"},
        {1023 * KB + 1023, 3, false, "10K"},
        {1023 * KB + 1023, 1, false, "K"},
        {1023 * KB + 1023, 0, false, "K"},
    };
    for (const auto& row : rows)
        EXPECT_EQ(CSize(row.bytes).ToStr(row.maxLength, row.showZero), row.text) << row.bytes << ' ' << row.maxLength;
}

TEST(SizeTest, IsReadWithOrWithoutUnit)
{
    const std::pair<const char*, unsigned long> rows[] = {
        {"0", 0},           {"10", 10},       {"18446744073709551615", Most},
        {"10 GB", 10 * GB}, {"10g", 10 * GB}, {"1.5 k", 1536},
        {"0.3K", 307},      {"7b", 7},        {"1.9 B", 1},
        {"2 kb  ", 2 * KB}, {"8E", 8 * EB},   {"15.5 EB", 15 * EB + EB / 2},
    };
    for (const auto& [text, bytes] : rows)
        EXPECT_EQ(CSize::FromStr(text), bytes) << text;
}

TEST(SizeTest, RefusesWhatIsNoSize)
{
    const std::pair<const char*, const char*> rows[] = {
        {"5X", "EDataSizeUnit: Failed to convert from string [X]. Unknown data unit: [X]."},
        {"5 Kx ", "EDataSizeUnit: Failed to convert from string [Kx]. Unknown data unit: [Kx]."},
        {"5 ", "EDataSizeUnit: Failed to convert from string []. Unknown data unit: []."},
        {"1 .5 K", "EDataSizeUnit: Failed to convert from string [.5 K]. Unknown data unit: [.5 K]."},
        {"", "Unable to convert string [] to [unsigned long]."},
        {"1.5", "Unable to convert string [1.5] to [unsigned long]."},
        {"18446744073709551616", "Unable to convert string [18446744073709551616] to [unsigned long]."},
        {"K", "Unable to convert string [] to [double]."},
        {"-1 K", "Unable to convert string [] to [double]."},
        {" 2 KB", "Unable to convert string [] to [double]."},
        {"1.2.3 K", "Unable to convert string [1.2.3] to [double]."},
        {"16 EB", "Unable to cast value from [double] to [unsigned long]."},
        {"18446744073709551616 B", "Unable to cast value from [double] to [unsigned long]."},
    };
    for (const auto& [text, chain] : rows)
        EXPECT_EQ(failureText([input = text] { CSize::FromStr(input); }), chain);
}

} // namespace
