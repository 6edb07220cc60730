#include <algorithm>
#include <set>

#include <support/expect_quick.h>

#include "checked.h"

namespace
{

using zelmodel_test::CheckCase;
using zelmodel_test::idsOf;

class Refusals : public testing::TestWithParam<CheckCase>
{
};

TEST_P(Refusals, AreAllFoundInOnePass)
{
    EXPECT_EQ(idsOf(check::checkText(GetParam().document)), GetParam().findings);
}

INSTANTIATE_TEST_SUITE_P(
    OfOneDocument, Refusals,
    testing::Values(
        CheckCase{"None", "<JobOptions/>", {}},
        CheckCase{"Malformed", "<a>\n<b></a>", {"2 malformed-document", "2 rest-not-checked"}},
        CheckCase{"UnknownKind", "<a/>", {"1 unknown-document", "1 rest-not-checked"}},
        CheckCase{"ThreeNumbers",
                  "<JobOptions MaxPoints='a'\nMaxDays='b'\nRetryCount='-1'/>",
                  {"1 refused-value", "2 refused-value", "3 refused-value"}},
        CheckCase{"TextOfAnElement", "<JobOptions>\n<RetainDays>many</RetainDays></JobOptions>", {"2 refused-value"}},
        CheckCase{"MissingElement", "<OracleConfig/>", {"1 missing-attribute"}},
        // What is missing in an element that is missing itself is no fault of its own.
        CheckCase{"MissingElementOfTwo",
                  "<AmazonS3SpecificParams>\n<Endpoint ApiEndpoint='' ArnString='x'><Proxy endpoint='' login=''/>"
                  "</Endpoint></AmazonS3SpecificParams>",
                  {"1 missing-element", "2 missing-attribute"}},
        CheckCase{"EitherOfTwo",
                  "<FullTransformSpec Id='' BackupId='x' JobTargetFile=''/>",
                  {"1 refused-value", "1 missing-attribute"}},
        CheckCase{"DayOfNoWeek",
                  "<ScheduleWindow Minutes='0' Kind='0'><Days>\n<Mon Intervals='00-01'/>\n<Freitag/></Days>"
                  "</ScheduleWindow>",
                  {"2 refused-value", "3 refused-value"}},
        // The refusal does not say that it is the time.
        CheckCase{"OlderScheduleWithoutTime",
                  "<JobOptions>\n<Schedule Version='2' Type='2'/></JobOptions>",
                  {"2 missing-attribute", "2 missing-attribute"}},
        // Setters of older layouts look at the time after everything else was read.
        CheckCase{"TimeThatASetterRefuses",
                  "<JobOptions>\n<Schedule Version='2' Type='2'>\n<Time Hours='25' Minutes='0'/></Schedule>"
                  "</JobOptions>",
                  {"3 refused-value"}}),
    zelmodel_test::nameOfCase);

TEST(Refusals, NameTheAttributeAndKeepTheSentences)
{
    const auto findings = check::checkText("<JobOptions MaxDays='-1'/>");
    ASSERT_EQ(findings.size(), 1U);
    EXPECT_EQ(findings[0].text, "MaxDays of JobOptions: Unable to convert string [-1] to [unsigned long].");
    EXPECT_EQ(findings[0].sentences,
              (std::vector<std::string>{"BackupJobOptions: Converting from XML failed.",
                                        "BackupJobOptions: Converting KIV Job options from XML failed.",
                                        "Unable to convert string [-1] to [unsigned long]."}));
}

TEST(Refusals, GuessWhatWasMeantSoThatTheRestCanBeJudged)
{
    // Every January 31: a "no" means false, so that the full is off; "14x" means 14.
    const auto text = "<ScheduleOptions><Schedule Version='3' IsEnabled='true' WeekDayNumber='every' "
                      "DayOfMonth='31st' Type='1'>" +
                      zelmodel_test::masks(zelmodel_test::EveryDay, "...4........") +
                      "<Time Hours='1' Minutes='0'/></Schedule>\n<ActiveFullOptions IsEnabled='no' "
                      "WeekDayNumber='Every' DayOfMonth='0' Type='0'>" +
                      zelmodel_test::masks(".......") + "</ActiveFullOptions></ScheduleOptions>";
    EXPECT_EQ(idsOf(check::checkText(text)),
              (std::vector<std::string>{"1 refused-value", "1 day-never-comes", "5 refused-value"}));
}

TEST(Refusals, EndSomewhere)
{
    std::string text = "<DeletePointTransformSpec Id='' BackupId='' OperationType='0' TransformType='0' "
                       "EnableIntegrityChecks='1'><IncrementPointIds>";
    for (int i = 0; i < 100; ++i)
        text += "\n<Guid value='x'/>";
    const auto findings = check::checkText(text + "</IncrementPointIds></DeletePointTransformSpec>");
    ASSERT_EQ(findings.size(), 66U);
    EXPECT_EQ(findings[63].line, 65);
    EXPECT_EQ(findings[64].line, 66);
    EXPECT_STREQ(findings[65].rule->id, check::rule_id::RestNotChecked);
}

// Each repair reads the whole document again: one of a million elements is not repaired to its end.
TEST(Refusals, EndEarlierInALargeDocument)
{
    std::string text = "<JobOptions Compression='x'\nBlockSize='x'\nRetentionType='x'\nMaxPoints='x'\nMaxDays='x'\n"
                       "IsDedupEnabled='x'\nIsSnapshotRequired='x'\nRetryCount='x'\nRetryTimeOutMs='x'\n"
                       "SnapshotMode='x'\n>";
    const auto countRefused = [](const std::vector<check::Finding>& findings) {
        return std::count_if(findings.begin(), findings.end(), [](const check::Finding& finding) {
            return finding.rule->id == std::string(check::rule_id::RefusedValue);
        });
    };
    EXPECT_EQ(countRefused(check::checkText(text + "</JobOptions>")), 10);
    for (int i = 0; i < 1000000; ++i)
        text += "<a/>";
    std::vector<check::Finding> findings;
    zelmodel_test::expectQuick([&] { findings = check::checkText(text + "</JobOptions>"); });
    EXPECT_GE(countRefused(findings), 1);
    EXPECT_LT(countRefused(findings), 10);
    ASSERT_FALSE(findings.empty());
    EXPECT_STREQ(findings.back().rule->id, check::rule_id::RestNotChecked);
}

TEST(Rules, HaveUniqueIdsAndWordsAndCanBeFound)
{
    std::set<std::string> ids;
    for (const auto& rule : check::allRules())
    {
        EXPECT_TRUE(ids.insert(rule.id).second) << rule.id;
        EXPECT_EQ(check::findRule(rule.id), &rule);
        for (const std::string text : {rule.title, rule.cause, rule.cure})
            EXPECT_FALSE(text.empty()) << rule.id;
        EXPECT_EQ(std::string(rule.cause).back(), '.') << rule.id;
        EXPECT_EQ(std::string(rule.cure).back(), '.') << rule.id;
    }
    EXPECT_EQ(check::findRule("no-such-rule"), nullptr);
}

TEST(Rules, StandTheGravestFirst)
{
    const auto& rules = check::allRules();
    EXPECT_TRUE(std::is_sorted(rules.begin(), rules.end(), [](const check::Rule& a, const check::Rule& b) {
        return a.severity != b.severity ? a.severity < b.severity : std::string(a.id) < b.id;
    }));
}

} // namespace
