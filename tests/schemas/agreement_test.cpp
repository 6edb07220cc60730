#include <map>
#include <set>

#include <gtest/gtest.h>

#include <support/golden.h>

#include "documents.h"
#include "variations.h"
#include "xmllint.h"

namespace zelmodel_test
{
namespace
{

using Names = std::vector<std::string>;
using Places = std::set<std::string>;

/// What is varied of a kind, and where its schema takes what the reader refuses, because no schema can say more.
struct Agreement
{
    Names golden;
    Places beyondSchemas;
    std::set<std::string> variedElsewhere{};
};

const Agreement& agreementOf(const std::string& kind)
{
    // Older times are refused when the low eight bits of a number are beyond the clock.
    const Places olderTimes{"Schedule@Hours", "Schedule@Minutes", "Time@Hours", "Time@Minutes"};
    static const std::map<std::string, Agreement> agreements{
        {"job-options",
         {{"JobOptions/full.xml", "legacy/job_options_daily.xml", "legacy/job_options_monthly.xml",
           "legacy/job_options_periodically.xml"},
          olderTimes,
          {"WeekMask", "MonthMask", "ActiveFullOptions", "SyntheticFullOptions", "Weekly", "Monthly", "Yearly"}}},
        {"server-job-options", {{"JobOptionsRoot/full.xml", "JobOptionsRoot/empty.xml"}, {}}},
        {"schedule-options", {{"ScheduleOptions/weekly_with_fulls.xml"}, {}}},
        {"lone-schedule",
         {{"Schedule/weekly.xml", "Schedule/calendar_weekly.xml", "ActiveFullOptions/weekly.xml",
           "SyntheticFullOptions/monthly_week_day.xml"},
          {"Time@Hours", "Time@Minutes"},
          {"WeekMask", "MonthMask"}}},
        // Intervals behind the end of a day, which are taken when they list nothing.
        {"backup-window",
         {{"ScheduleWindow/monday_hours.xml", "ScheduleWindow/office_hours_closed.xml"},
          {"Monday@Intervals", "Sunday@Intervals"},
          {"Tuesday", "Wednesday", "Thursday", "Friday", "Saturday"}}},
        {"gfs-policy", {{"GfsPolicy/short.xml", "GfsPolicy/long.xml", "GfsPolicy/default.xml"}, {}}},
        {"oracle-config", {{"OracleConfig/by_age.xml"}, {}}},
        {"postgres-config", {{"PostgresConfig/peer.xml"}, {}}},
        {"repository-limitations", {{"JobSettings/full.xml", "JobSettings/enclosed.xml"}, {}}},
        {"immutability-settings", {{"ImmutabilitySettings/with_mode.xml"}, {}}},
        {"direct-backup-immutability-settings", {{"DirectBackupImmutabilitySettings/full.xml"}, {}}},
        // That a February has 29 days.
        {"s3-params", {{"AmazonS3SpecificParams/full.xml"}, {"Credentials@LastUpdateTimeUtc"}}},
        {"cloud-container", {{"root/full.xml"}, {}}},
        {"sql-variant", {{"SqlVariant/text.xml"}, {}}},
        {"job-session-details", {{"Details/full.xml"}, {}}},
        {"job-session-progress-details", {{"ProgressDetails/full.xml"}, {}}},
        {"task-log-record", {{"Record/warning.xml"}, {"Record@startTime", "Record@updateTime"}}},
        {"mount-session-details", {{"MountSessionDetails/mounted.xml"}, {}}},
        {"backup-job-state", {{"BackupJobState/mode_3.xml", "legacy/backup_job_state_version_1.xml"}, {}}},
        {"transform-spec", {{"DeletePointTransformSpec/three_points.xml", "legacy/delete_point_text_points.xml"}, {}}},
        {"create-synthetic-full-spec",
         {{"FullTransformSpec/three_points.xml", "legacy/full_transform_single_point.xml"}, {}}},
        {"create-gfs-synthetic-full-spec", {{"GfsFullTransformSpec/weekly.xml"}, {}}},
    };
    return agreements.at(kind);
}

// Without its attributes or under another name a document may be of another kind, or of none.
std::vector<Variation> variationsOfKind(const SchemaKind& kind, const Names& paths)
{
    std::vector<Variation> variations;
    const auto& agreement = agreementOf(kind.name);
    for (const auto& path : paths)
    {
        for (auto& variation : variationsOf(golden(path), agreement.variedElsewhere))
        {
            if (isOfKind(kind, variation.text))
                variations.push_back(std::move(variation));
        }
    }
    return variations;
}

// XSD drops white space around a number before it looks.
bool isPadded(const std::string& value)
{
    return !value.empty() && (value.front() == ' ' || value.back() == ' ');
}

class Agreements : public testing::TestWithParam<SchemaKind>
{
};

// What the reader takes validates; what it refuses does not, except where no schema can say it.
TEST_P(Agreements, OfReaderAndSchema)
{
    const auto variations = variationsOfKind(GetParam(), agreementOf(GetParam().name).golden);
    std::vector<std::string> texts;
    for (const auto& variation : variations)
        texts.push_back(variation.text);
    const auto verdicts = judge(pathOfRng(GetParam()), texts);

    Places beyond;
    std::size_t refusals = 0;
    for (std::size_t i = 0; i < variations.size(); ++i)
    {
        const auto& text = variations[i].text;
        const bool isTaken = isRead(text);
        EXPECT_TRUE(!isTaken || verdicts[i].isValid) << text << '\n' << verdicts[i].messages;
        refusals += isTaken ? 0U : 1U;
        if (isTaken || !verdicts[i].isValid || !beyond.insert(variations[i].place).second)
            continue;
        EXPECT_EQ(1U, agreementOf(GetParam().name).beyondSchemas.count(variations[i].place)) << text;
    }
    EXPECT_EQ(agreementOf(GetParam().name).beyondSchemas, beyond);
    EXPECT_LT(10U, refusals);
    EXPECT_LT(10U, variations.size() - refusals);
}

// Who keeps to what is written is read, except where no schema can say what is wrong.
TEST_P(Agreements, OfWritersAndReader)
{
    const std::map<std::string, Places> beyondSchemas{
        // Restore points that are counted, and none is kept.
        {"job-options", {"JobOptions@MaxPoints"}},
        {"server-job-options", {"RetainCycles"}},
        // A kind of calendar below 0 is read beside a time only.
        {"schedule-options", {"ActiveFullOptions@Type", "SyntheticFullOptions@Type"}},
        // 29 February.
        {"s3-params", {"Credentials@LastUpdateTimeUtc"}},
        {"task-log-record", {"Record@startTime", "Record@updateTime"}},
    };
    const auto variations = variationsOfKind(GetParam(), {agreementOf(GetParam().name).golden.front()});
    std::vector<std::string> texts;
    for (const auto& variation : variations)
        texts.push_back(withoutOwner(GetParam(), variation.text));
    const auto verdicts = judge(pathOfXsd(GetParam()), texts);

    Places beyond;
    for (std::size_t i = 0; i < variations.size(); ++i)
    {
        if (verdicts[i].isValid && !isPadded(variations[i].value) && !isRead(variations[i].text))
            beyond.insert(variations[i].place);
    }
    const auto expected = beyondSchemas.find(GetParam().name);
    EXPECT_EQ(expected != beyondSchemas.end() ? expected->second : Places(), beyond);
}

// Whatever is read, what is made of it keeps to the written form.
TEST_P(Agreements, OfWritersAndSchema)
{
    std::set<std::string> written;
    for (const auto& variation : variationsOfKind(GetParam(), agreementOf(GetParam().name).golden))
    {
        for (const auto& text : rewritten(GetParam(), variation.text))
            written.insert(withoutOwner(GetParam(), text));
    }
    const std::vector<std::string> texts(written.begin(), written.end());
    const auto verdicts = judge(pathOfXsd(GetParam()), texts);
    for (std::size_t i = 0; i < texts.size(); ++i)
        EXPECT_TRUE(verdicts[i].isValid) << texts[i] << '\n' << verdicts[i].messages;
    EXPECT_EQ(isOnlyRead(GetParam()), texts.empty());
}

INSTANTIATE_TEST_SUITE_P(All, Agreements, testing::ValuesIn(schemaKinds()), nameOfKind);

} // namespace
} // namespace zelmodel_test
