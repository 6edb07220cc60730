#include <limits>
#include <type_traits>
#include <vector>

#include <gtest/gtest.h>

#include <support/expect_failure.h>
#include <zelmodel/structs/gfs/gfs_flags.h>

namespace
{

using zelmodel_test::failureText;
using zelplatform::model::structs::gfs::CGfsFlags;
using zelplatform::model::structs::gfs::EGfsFlags;
using Flags = std::vector<EGfsFlags::type>;

constexpr unsigned AllBits = std::numeric_limits<unsigned>::max();

EGfsFlags::type flag(unsigned value)
{
    return static_cast<EGfsFlags::type>(value);
}

TEST(GfsFlags, KeepsTheBitsAsGiven)
{
    static_assert(std::is_convertible_v<CGfsFlags, unsigned>);
    for (const unsigned bits : {0U, 1U, 2U, 3U, 4U, 8U, 11U, 12U, 16U, 0x80000000U, AllBits})
        EXPECT_EQ(bits, static_cast<unsigned>(CGfsFlags(bits)));
}

TEST(GfsFlags, SetsFlags)
{
    const struct
    {
        unsigned before;
        unsigned added;
        unsigned after;
    } table[] = {
        {0, 1, 1},
        {0, 2, 2},
        {0, 8, 8},
        {1, 1, 1},
        {1, 2, 3},
        {3, 8, 11},
        {5, 2, 7},
        {0x40000000, 8, 0x40000008},
        {AllBits, 1, AllBits},
        {0, 4, 4},
    };
    for (const auto& row : table)
    {
        CGfsFlags flags(row.before);
        flags.set(flag(row.added));
        EXPECT_EQ(row.after, static_cast<unsigned>(flags)) << row.before << " with " << row.added;
    }
}

TEST(GfsFlags, ClearsFlags)
{
    const struct
    {
        unsigned before;
        unsigned removed;
        unsigned after;
    } table[] = {
        {11, 1, 10}, {11, 2, 9}, {11, 8, 3}, {8, 8, 0}, {8, 1, 8}, {0, 2, 0}, {7, 2, 5}, {AllBits, 8, 0xFFFFFFF7},
        {4, 4, 0},
    };
    for (const auto& row : table)
    {
        CGfsFlags flags(row.before);
        flags.clear(flag(row.removed));
        EXPECT_EQ(row.after, static_cast<unsigned>(flags)) << row.before << " without " << row.removed;
    }
}

TEST(GfsFlags, SettingOrClearingNoneChangesNothing)
{
    for (const unsigned bits : {0U, 1U, 4U, 11U, AllBits})
    {
        CGfsFlags flags(bits);
        flags.set(EGfsFlags::None);
        EXPECT_EQ(bits, static_cast<unsigned>(flags));
        flags.clear(EGfsFlags::None);
        EXPECT_EQ(bits, static_cast<unsigned>(flags));
    }
}

TEST(GfsFlags, TellsWhetherAFlagIsSet)
{
    const struct
    {
        unsigned bits;
        bool isWeekly;
        bool isMonthly;
        bool isYearly;
        bool isAny;
    } table[] = {
        {0, false, false, false, false},   {1, true, false, false, true},  {2, false, true, false, true},
        {3, true, true, false, true},      {8, false, false, true, true},  {9, true, false, true, true},
        {11, true, true, true, true},      {4, false, false, false, true}, {0x80000000, false, false, false, true},
        {AllBits, true, true, true, true},
    };
    for (const auto& row : table)
    {
        const CGfsFlags flags(row.bits);
        EXPECT_EQ(row.isWeekly, flags.isSet(EGfsFlags::Weekly)) << row.bits;
        EXPECT_EQ(row.isMonthly, flags.isSet(EGfsFlags::Monthly)) << row.bits;
        EXPECT_EQ(row.isYearly, flags.isSet(EGfsFlags::Yearly)) << row.bits;
        EXPECT_EQ(row.isAny, flags.isAnySet()) << row.bits;
    }
}

TEST(GfsFlags, ComparesSetsByAnyCommonBit)
{
    const struct
    {
        unsigned bits;
        unsigned others;
        bool isSet;
    } table[] = {
        {3, 2, true},  {2, 3, true},  {1, 2, false}, {1, 10, false}, {9, 10, true}, {11, 11, true}, {0, 0, true},
        {1, 0, false}, {0, 1, false}, {4, 4, true},  {4, 11, false}, {5, 12, true}, {8, 16, false},
    };
    for (const auto& row : table)
        EXPECT_EQ(row.isSet, CGfsFlags(row.bits).isSet(CGfsFlags(row.others))) << row.bits << " and " << row.others;
}

TEST(GfsFlags, ListsTheKnownFlagsInTheirOrder)
{
    const struct
    {
        unsigned bits;
        Flags flags;
        std::string text;
    } table[] = {
        {0, {}, ""},
        {1, {EGfsFlags::Weekly}, "Weekly"},
        {2, {EGfsFlags::Monthly}, "Monthly"},
        {3, {EGfsFlags::Weekly, EGfsFlags::Monthly}, "Weekly, Monthly"},
        {8, {EGfsFlags::Yearly}, "Yearly"},
        {9, {EGfsFlags::Weekly, EGfsFlags::Yearly}, "Weekly, Yearly"},
        {10, {EGfsFlags::Monthly, EGfsFlags::Yearly}, "Monthly, Yearly"},
        {11, {EGfsFlags::Weekly, EGfsFlags::Monthly, EGfsFlags::Yearly}, "Weekly, Monthly, Yearly"},
        {AllBits, {EGfsFlags::Weekly, EGfsFlags::Monthly, EGfsFlags::Yearly}, "Weekly, Monthly, Yearly"},
    };
    for (const auto& row : table)
    {
        EXPECT_EQ(row.flags, CGfsFlags(row.bits).enumerate()) << row.bits;
        EXPECT_EQ(row.text, CGfsFlags(row.bits).toString()) << row.bits;
    }
}

TEST(GfsFlags, OrderDoesNotDependOnTheOrderOfSetting)
{
    CGfsFlags flags(0);
    flags.set(EGfsFlags::Yearly);
    flags.set(EGfsFlags::Weekly);
    flags.set(EGfsFlags::Monthly);
    EXPECT_EQ("Weekly, Monthly, Yearly", flags.toString());
}

TEST(GfsFlags, NumbersThatAreNoFlagHaveNoName)
{
    for (const auto& [number, text] : std::vector<std::pair<unsigned, std::string>>{
             {3, "3"}, {4, "4"}, {11, "11"}, {16, "16"}, {0x80000000, "2147483648"}, {AllBits, "4294967295"}})
    {
        EXPECT_EQ("Unable to convert value [" + text + "] to [short] string.",
                  failureText([value = number] { EGfsFlags::toString(flag(value), true); }));
        EXPECT_EQ("Unable to convert value [" + text + "] to [long] string.",
                  failureText([value = number] { EGfsFlags::toString(flag(value), false); }));
    }
}

TEST(GfsFlags, QuirkNoneIsSetExactlyWhenNoBitIs)
{
    EXPECT_TRUE(CGfsFlags(0).isSet(EGfsFlags::None));
    for (const unsigned bits : {1U, 2U, 4U, 8U, 11U, 0x80000000U, AllBits})
        EXPECT_FALSE(CGfsFlags(bits).isSet(EGfsFlags::None)) << bits;
}

TEST(GfsFlags, QuirkBitOfNoPeriodCountsButIsNotNamed)
{
    const CGfsFlags flags(4);
    EXPECT_EQ(4U, static_cast<unsigned>(flags));
    EXPECT_TRUE(flags.isAnySet());
    EXPECT_TRUE(flags.isSet(flag(4)));
    EXPECT_EQ(Flags(), flags.enumerate());
    EXPECT_EQ("", flags.toString());
    EXPECT_EQ("Monthly", CGfsFlags(6).toString());
}

} // namespace
