#include "checked.h"

namespace
{

using zelmodel_test::CheckCase;
using zelmodel_test::idsOf;

class ValueRules : public testing::TestWithParam<CheckCase>
{
};

TEST_P(ValueRules, FindWhatWasHardlyMeant)
{
    EXPECT_EQ(idsOf(check::checkText(GetParam().document)), GetParam().findings);
}

INSTANTIATE_TEST_SUITE_P(
    Retention, ValueRules,
    testing::Values(CheckCase{"PointsAtTheLimit", "<JobOptions MaxPoints='730'/>", {}},
                    CheckCase{"PointsBeyondIt", "<JobOptions\nMaxPoints='731'/>", {"2 retention-beyond-limits"}},
                    CheckCase{"DaysAtTheLimit", "<JobOptions RetentionType='Days' MaxDays='730'/>", {}},
                    CheckCase{"DaysBeyondIt", "<JobOptions MaxDays='731'/>", {"1 retention-beyond-limits"}},
                    CheckCase{
                        "NoDays", "<JobOptions RetentionType='Days' MaxDays='0'/>", {"1 retention-beyond-limits"}},
                    CheckCase{"NoDaysThatNobodyAsks", "<JobOptions RetentionType='Cycles' MaxDays='0'/>", {}},
                    CheckCase{"NoPoints", "<JobOptions RetentionType='Cycles'\nMaxPoints='0'/>", {"2 refused-value"}},
                    CheckCase{"OfAServer",
                              "<JobOptionsRoot><RetainCycles>800</RetainCycles>\n<RetainDaysToKeep>900"
                              "</RetainDaysToKeep></JobOptionsRoot>",
                              {"1 retention-beyond-limits", "2 retention-beyond-limits"}}),
    zelmodel_test::nameOfCase);

std::string weeklyRule(const std::string& begin, const std::string& slot = "1")
{
    return "<GfsPolicy IsEnabled='true'>\n<Weekly IsEnabled='true' KeepBackupsForNumberOfWeeks='1' BeginTimeUtc='" +
           begin + "' DesiredTime='" + slot + "'/></GfsPolicy>";
}

INSTANTIATE_TEST_SUITE_P(
    Gfs, ValueRules,
    testing::Values(CheckCase{"BeginIsADate", weeklyRule("01/31/2024 00:00:00"), {}},
                    CheckCase{"BeginAtOnce", weeklyRule("01/01/1970 00:00:00"), {}},
                    CheckCase{"BeginIsNoDate", weeklyRule("02/30/2024 00:00:00"), {"2 begin-is-no-date"}},
                    CheckCase{"BeginIsEmpty", weeklyRule(""), {"2 begin-is-no-date"}},
                    CheckCase{"BeginWasNeverSet", weeklyRule("01/01/0001 00:00:00"), {"2 no-begin"}},
                    CheckCase{"SlotOf33Bits", weeklyRule("01/31/2024 00:00:00", "4294967297"), {"2 narrowed-number"}},
                    CheckCase{"NegativeSlot", weeklyRule("01/31/2024 00:00:00", "-1"), {}}),
    zelmodel_test::nameOfCase);

INSTANTIATE_TEST_SUITE_P(
    Others, ValueRules,
    testing::Values(
        CheckCase{"LogsTooOld",
                  "<OracleConfig username='a'>\n<LogsTruncateConfig mode='Disabled' lifetimeHours='1000'/>"
                  "</OracleConfig>",
                  {"2 refused-when-applied"}},
        CheckCase{"WideImmutabilityMode",
                  "<ImmutabilitySettings IsEnabled='true' IntervalDays='3' ImmutabilityMode='4294967296'/>",
                  {"1 narrowed-number"}},
        // Readers of a synthetic full do not look at the operation.
        CheckCase{"OperationIsNotCut",
                  "<FullTransformSpec Id='' BackupId='' JobTargetFile='' OperationType='2'><LastIncrementPointIds/>"
                  "</FullTransformSpec>",
                  {}}),
    zelmodel_test::nameOfCase);

INSTANTIATE_TEST_SUITE_P(
    Forms, ValueRules,
    testing::Values(
        CheckCase{"OlderSnapshotFlag", "<JobOptions IsSnapshotRequired='true'/>", {"1 older-form"}},
        CheckCase{"BothSnapshotFormsAgree", "<JobOptions SnapshotMode='NoSnapshot' IsSnapshotRequired='true'/>", {}},
        CheckCase{"BothSnapshotFormsDisagree",
                  "<JobOptions SnapshotMode='NoSnapshot'\nIsSnapshotRequired='false'/>",
                  {"2 forms-disagree"}},
        CheckCase{
            "IndexingAgrees", "<JobOptions IndexOnly='/a'><Indexing Type='IndexOnly' Folders='/a'/></JobOptions>", {}},
        CheckCase{"FoldersDisagree",
                  "<JobOptions IndexOnly='/a'><Indexing Type='IndexOnly' Folders='/b'/></JobOptions>",
                  {"1 forms-disagree"}},
        CheckCase{"IndexingDisagrees",
                  "<JobOptions IndexAll='true'><Indexing Type='IndexOnly' Folders='/b'/></JobOptions>",
                  {"1 forms-disagree"}},
        CheckCase{"DeletedDataAgrees",
                  "<JobOptions><EnableDeletedVmDataRetention>True</EnableDeletedVmDataRetention>"
                  "<RetainDays>3</RetainDays></JobOptions>",
                  {}},
        CheckCase{"DeletedDataDisagrees",
                  "<JobOptions>\n<EnableDeletedVmDataRetention>false</EnableDeletedVmDataRetention>"
                  "<RetainDays>3</RetainDays></JobOptions>",
                  {"2 forms-disagree"}},
        CheckCase{
            "ScheduleFlagAgrees", "<JobOptions Schedule='1'>" + zelmodel_test::weekly("M......") + "</JobOptions>", {}},
        CheckCase{"ScheduleFlagDisagrees",
                  "<JobOptions Schedule='false'>" + zelmodel_test::weekly("M......") + "</JobOptions>",
                  {"1 forms-disagree"}}),
    zelmodel_test::nameOfCase);

} // namespace
