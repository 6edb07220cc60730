#include <climits>

#include <gtest/gtest.h>

#include <support/expect_failure.h>
#include <zelmodel/backup_job_compression.h>

namespace
{

using zelmodel_test::failureText;
using zelplatform::model::BackupJobCompression;

struct Row
{
    BackupJobCompression::type value;
    int number;
    const char* name;
    const char* level;
    const char* serverLevel;
};

const Row rows[] = {
    {BackupJobCompression::NoCompression, 0, "NoCompression", "0", "0"},
    {BackupJobCompression::Rle, 1, "Rle", "1", "1"},
    {BackupJobCompression::Lz4, 5, "Lz4", "2", "5"},
    {BackupJobCompression::Zstd3, 6, "Zstd3", "3", "6"},
    {BackupJobCompression::Zstd9, 9, "Zstd9", "4", "9"},
};

BackupJobCompression::type value(int number)
{
    return static_cast<BackupJobCompression::type>(number);
}

TEST(BackupJobCompression, ConvertsEveryRow)
{
    for (const Row& row : rows)
    {
        EXPECT_EQ(row.number, static_cast<int>(row.value));
        EXPECT_EQ(row.name, BackupJobCompression::toStr(row.value));
        EXPECT_EQ(row.value, BackupJobCompression::fromStr(row.name));
        EXPECT_EQ(row.level, BackupJobCompression::toLevelStr(row.value));
        EXPECT_EQ(row.value, BackupJobCompression::fromLevelStr(row.level));
        EXPECT_EQ(row.value, BackupJobCompression::fromQorLevelStr(row.serverLevel));
    }
}

TEST(BackupJobCompression, DefaultIsLz4)
{
    EXPECT_EQ(5, static_cast<int>(BackupJobCompression::Default));
}

TEST(BackupJobCompression, ReadsOlderNamesAndNeverWritesThem)
{
    EXPECT_EQ(BackupJobCompression::Zstd3, BackupJobCompression::fromStr("ZlibLow"));
    EXPECT_EQ(BackupJobCompression::Zstd9, BackupJobCompression::fromStr("ZlibHigh"));
    EXPECT_EQ("Zstd3", BackupJobCompression::toStr(BackupJobCompression::fromStr("ZlibLow")));
    EXPECT_EQ("Zstd9", BackupJobCompression::toStr(BackupJobCompression::fromStr("ZlibHigh")));
}

TEST(BackupJobCompression, ListsFollowTheValues)
{
    EXPECT_EQ((std::vector<std::string>{"NoCompression", "Rle", "Lz4", "Zstd3", "Zstd9"}),
              BackupJobCompression::toStringList());
    EXPECT_EQ((std::vector<std::string>{"0", "1", "2", "3", "4"}), BackupJobCompression::toLevelStringList());
}

TEST(BackupJobCompression, SameDigitMeansDifferentThingsInTheTwoLevels)
{
    EXPECT_EQ("2", BackupJobCompression::toLevelStr(BackupJobCompression::Lz4));
    EXPECT_EQ(BackupJobCompression::Lz4, BackupJobCompression::fromLevelStr("2"));
    EXPECT_EQ(BackupJobCompression::Lz4, BackupJobCompression::fromQorLevelStr("5"));
    EXPECT_EQ("Unable to convert QOR level string [2] to BackupJobCompression::type.",
              failureText([] { BackupJobCompression::fromQorLevelStr("2"); }));
    EXPECT_EQ("Unable to convert level string [5] to BackupJobCompression::type.",
              failureText([] { BackupJobCompression::fromLevelStr("5"); }));
}

TEST(BackupJobCompression, RefusesTextsOutsideTheTables)
{
    for (const std::string text : {"", "lz4", "LZ4", " Lz4", "Lz4 ", "zliblow", "5", "Default", "Zstd", "Zstd99"})
        EXPECT_EQ("Unable to convert string [" + text + "] to BackupJobCompression::type.",
                  failureText([&] { BackupJobCompression::fromStr(text); }));
    for (const std::string text : {"", "-1", "5", "6", "9", "00", "+1", " 1", "1 ", "Lz4"})
        EXPECT_EQ("Unable to convert level string [" + text + "] to BackupJobCompression::type.",
                  failureText([&] { BackupJobCompression::fromLevelStr(text); }));
    for (const std::string text : {"", "-1", "2", "3", "4", "7", "8", "05", "+5", " 5", "5 ", "5x", "0x5", "Lz4"})
        EXPECT_EQ("Unable to convert QOR level string [" + text + "] to BackupJobCompression::type.",
                  failureText([&] { BackupJobCompression::fromQorLevelStr(text); }));
}

TEST(BackupJobCompression, RefusesValuesOutsideTheTable)
{
    for (const int number : {-1, 2, 3, 4, 7, 8, 10, INT_MAX, INT_MIN})
    {
        const std::string decimal = std::to_string(number);
        EXPECT_EQ("Unable to convert BackupJobCompression::type [" + decimal + "] to string.",
                  failureText([&] { BackupJobCompression::toStr(value(number)); }));
        EXPECT_EQ("Failed to convert compression type [" + decimal + "] to level string Unsupported compression level",
                  failureText([&] { BackupJobCompression::toLevelStr(value(number)); }));
    }
}

TEST(BackupJobCompression, NormalizesAnyNumber)
{
    const struct
    {
        int number;
        int expected;
    } cases[] = {{0, 0}, {-1, 0}, {1, 1}, {2, 1},  {3, 1},  {4, 1},   {5, 5},       {6, 6},
                 {7, 6}, {8, 6},  {9, 9}, {10, 9}, {-2, 9}, {100, 9}, {INT_MAX, 9}, {INT_MIN, 9}};
    for (const auto& each : cases)
        EXPECT_EQ(each.expected, static_cast<int>(BackupJobCompression::Normalize(each.number))) << each.number;
}

TEST(BackupJobCompression, AgentLevelIsTheArgumentEvenOutsideTheTable)
{
    for (const int number : {-1, 0, 1, 2, 5, 6, 7, 9, 77})
        EXPECT_EQ(number, static_cast<int>(BackupJobCompression::ToAgentLevel(value(number))));
}

} // namespace
