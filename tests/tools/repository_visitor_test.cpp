#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "tree.h"

namespace
{

using zelmodel_test::at;
using zelmodel_test::expectFields;
using zelmodel_test::namesOf;
using zelmodel_test::treeOf;

constexpr const char* Limitations = "<JobSettings\nRepositoryId=\"0a7f2c64-51d8-4c1e-9a34-6b1f0e92d7c5\"\n"
                                    "BackupMode=\"-7\"\nFullBackupEnabled=\"true\"\nCompactFullEnabled=\"false\"\n"
                                    "TransformIncrementsToSynthetic=\"true\"\nTransformFullToSynthetic=\"false\"\n"
                                    "ChainLength=\"1\"/>";

TEST(LimitationsTree, HoldsEveryFieldWithItsLine)
{
    const auto root = treeOf(Limitations);
    EXPECT_EQ(namesOf(root),
              (std::vector<std::string>{"repositoryId", "backupMode", "fullBackupEnabled", "compactFullEnabled",
                                        "transformIncrementsToSynthetic", "transformFullToSynthetic", "chainLength"}));
    expectFields(root,
                 {{"repositoryId", "0a7f2c64-51d8-4c1e-9a34-6b1f0e92d7c5", "0a7f2c64-51d8-4c1e-9a34-6b1f0e92d7c5", 2},
                  {"backupMode", "-7", "number -7 of the job model", 3},
                  {"fullBackupEnabled", "true", "allowed", 4},
                  {"compactFullEnabled", "false", "not allowed", 5},
                  {"transformIncrementsToSynthetic", "true", "transformed into synthetic backups", 6},
                  {"transformFullToSynthetic", "false", "not transformed", 7},
                  {"chainLength", "1", "at most 1 restore point", 8}});
}

TEST(LimitationsTree, BelowTheRootTheFirstCounts)
{
    const auto root = treeOf("<a>\n<b/>\n" + std::string(Limitations) + "<JobSettings/></a>");
    EXPECT_EQ(root.origin.line, 3);
    expectFields(root, {{"chainLength", "1", "at most 1 restore point", 10}});
}

TEST(LimitationsTree, AnyChainLengthIsTold)
{
    for (const auto& [length, words] : {std::pair<const char*, const char*>{"0", "at most 0 restore points"},
                                        {"-2147483648", "-2147483648, no number of restore points"},
                                        {"2147483647", "at most 2147483647 restore points"}})
    {
        auto text = std::string(Limitations);
        text.replace(text.find("\"1\"/>"), 5, std::string("\"") + length + "\"/>");
        EXPECT_EQ(at(treeOf(text), "chainLength").words, words);
    }
}

TEST(ImmutabilityTree, HoldsEveryFieldWithItsLine)
{
    const auto root = treeOf("<ImmutabilitySettings\nIsEnabled=\"true\"\nIntervalDays=\"1\"\nImmutabilityMode=\"0\"/>");
    EXPECT_EQ(namesOf(root), (std::vector<std::string>{"isEnabled", "intervalDays", "mode"}));
    EXPECT_EQ(root.words, "on for 1 day");
    expectFields(root, {{"isEnabled", "true", "true", 2},
                        {"intervalDays", "1", "1 day", 3},
                        {"mode", "0", "the one that is set on the repository", 4}});
}

TEST(ImmutabilityTree, TellsAnyModeAndAnyDays)
{
    const auto root = treeOf("<a>\n<ImmutabilitySettings IsEnabled=\"1\" IntervalDays=\"-2147483648\" "
                             "ImmutabilityMode=\"7\"/></a>");
    EXPECT_EQ(root.words, "on for -2147483648 days");
    EXPECT_EQ(root.origin.line, 2);
    expectFields(root, {{"mode", "7", "of an unknown kind (7)", 2}});
    expectFields(treeOf("<ImmutabilitySettings IsEnabled=\"0\" IntervalDays=\"10\"/>"),
                 {{"mode", "0", "the one that is set on the repository", 0}});
}

TEST(DirectImmutabilityTree, HoldsEveryFieldWithItsLine)
{
    const auto root = treeOf("<DirectBackupImmutabilitySettings\nNumberDaysForCapacityTierMoveOrArchiveTier=\"1\"\n"
                             "HasImmutableCapacityOrArchiveTierExtent=\"false\">\n<ImmutabilitySettings "
                             "IsEnabled=\"false\" IntervalDays=\"14\"/></DirectBackupImmutabilitySettings>");
    EXPECT_EQ(namesOf(root),
              (std::vector<std::string>{"immutabilitySettings", "numberDaysForCapacityTierMoveOrArchiveTier",
                                        "hasImmutableCapacityOrArchiveTierExtent"}));
    expectFields(root, {{"immutabilitySettings", "", "off (set to 14 days)", 4},
                        {"immutabilitySettings/intervalDays", "14", "14 days", 4},
                        {"numberDaysForCapacityTierMoveOrArchiveTier", "1", "after 1 day", 2},
                        {"hasImmutableCapacityOrArchiveTierExtent", "false", "none is immutable", 3}});
}

TEST(DirectImmutabilityTree, WithoutDaysSaysSo)
{
    const auto root = treeOf("<a>\n<DirectBackupImmutabilitySettings HasImmutableCapacityOrArchiveTierExtent=\"true\">"
                             "<ImmutabilitySettings IsEnabled=\"true\" IntervalDays=\"14\"/>"
                             "</DirectBackupImmutabilitySettings></a>");
    EXPECT_EQ(root.origin.line, 2);
    expectFields(root, {{"numberDaysForCapacityTierMoveOrArchiveTier", "0", "no number of days given", 0},
                        {"hasImmutableCapacityOrArchiveTierExtent", "true", "one is immutable", 2}});
}

TEST(SqlVariantTree, HoldsEveryFieldWithItsLine)
{
    const auto root = treeOf("<SqlVariant\nType=\"-4\"\nValue=\"a&#10;b\"/>");
    EXPECT_EQ(namesOf(root), (std::vector<std::string>{"type", "value"}));
    expectFields(root, {{"type", "-4", "number -4", 2}, {"value", "a\nb", "a\nb", 3}});
    expectFields(treeOf("<SqlVariant Type=\"0\" Value=\"\"/>"), {{"value", "", "empty", 1}});
}

} // namespace
