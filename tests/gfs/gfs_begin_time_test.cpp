#include <memory>
#include <vector>

#include <gtest/gtest.h>

#include <support/expect_failure.h>
#include <zelmodel/backup_job_options.h>
#include <zelmodel/structs/gfs/gfs_policy_info.h>
#include <zelplatform/logging/logging.h>
#include <zelplatform/xmlpp/xmlpp.h>

namespace
{

using namespace zelplatform::model::structs::gfs;
using datetime::CDateTime;
using zelmodel_test::failureText;

/// Catches the log of one test.
class GfsBeginTime : public ::testing::Test
{
protected:
    void SetUp() override { logging::set_sink(m_sink); }
    void TearDown() override { logging::set_sink(nullptr); }

    std::vector<logging::Entry> entries() const { return m_sink->entries(); }

    static std::string policy(const std::string& beginTime, const std::string& desiredTime = "1")
    {
        return "<GfsPolicy IsEnabled=\"true\"><Weekly IsEnabled=\"true\" KeepBackupsForNumberOfWeeks=\"4\" "
               "BeginTimeUtc=\"" +
               beginTime + "\" DesiredTime=\"" + desiredTime + "\"/></GfsPolicy>";
    }

    static SGfsPolicyInfo read(const std::string& text, bool isShortNames = true)
    {
        return SGfsPolicyInfo::fromXml(xmlpp::CXmlDocument::Unserialize(text).ToNode(), isShortNames);
    }

    std::shared_ptr<logging::memory_sink> m_sink = std::make_shared<logging::memory_sink>();
};

void expectEntry(const logging::Entry& entry, const std::string& section, const std::string& text)
{
    EXPECT_EQ(section, entry.section);
    EXPECT_EQ(logging::ELevel::Warn, entry.level);
    EXPECT_EQ(text, entry.text);
}

TEST_F(GfsBeginTime, DateThatIsReadIsNotLogged)
{
    EXPECT_EQ("02/29/2024 23:59:59",
              read(policy("02/29/2024 23:59:59")).weekly->beginTimeUtc.toStdString(CDateTime::QorDateFormat));
    EXPECT_EQ(0, read(policy("01/01/1970 00:00:00")).weekly->beginTimeUtc.toUnixTime());
    EXPECT_EQ("01/01/1400 00:00:00",
              read(policy("01/01/1400 00:00:00")).weekly->beginTimeUtc.toStdString(CDateTime::QorDateFormat));
    EXPECT_TRUE(entries().empty());
}

TEST_F(GfsBeginTime, YearOneIsTreatedAsTheDefault)
{
    const SGfsPolicyInfo info = read(policy("01/01/0001 00:00:00"));
    EXPECT_EQ(0, info.weekly->beginTimeUtc.toUnixTime());
    EXPECT_TRUE(info.weekly->beginTimeUtc.isUtcTime());
    EXPECT_EQ(4, info.weekly->keepCount);
    ASSERT_EQ(1U, entries().size());
    expectEntry(entries()[0], "zelmodel",
                "[Weekly] effective datetime 01/01/0001 00:00:00 is treated as 01/01/1970 00:00:00");
}

TEST_F(GfsBeginTime, EachRuleWarnsWithItsOwnName)
{
    const std::string year1 = " BeginTimeUtc=\"01/01/0001 00:00:00\" DesiredTime=\"1\"/>";
    read("<GfsPolicy IsEnabled=\"true\">"
         "<GfsYearlyPolicy IsEnabled=\"true\" NumberOfYears=\"1\"" +
             year1 + "<GfsMonthlyPolicy IsEnabled=\"true\" NumberOfMonths=\"1\"" + year1 +
             "<GfsWeeklyPolicy IsEnabled=\"true\" NumberOfWeeks=\"1\"" + year1 + "</GfsPolicy>",
         false);
    const std::string rest = " effective datetime 01/01/0001 00:00:00 is treated as 01/01/1970 00:00:00";
    ASSERT_EQ(3U, entries().size());
    expectEntry(entries()[0], "zelmodel", "[GfsWeeklyPolicy]" + rest);
    expectEntry(entries()[1], "zelmodel", "[GfsMonthlyPolicy]" + rest);
    expectEntry(entries()[2], "zelmodel", "[GfsYearlyPolicy]" + rest);
}

TEST_F(GfsBeginTime, EveryOtherTextThatIsNoDateIsLoggedWithTheReason)
{
    for (const std::string text :
         {"", "never", "01/01/0001", "01/01/0001 00:00:00 ", "1/1/0001 0:0:0", "01/01/0001 00:00:01",
          "02/30/2024 00:00:00", "02/29/2023 00:00:00", "13/01/2024 00:00:00", "03/01/2024 24:00:00",
          "03/01/2024 00:00:60", "03/01/2024", "2024-03-01 00:00:00", "03/01/24 00:00:00", "12/31/1399 23:59:59",
          "03/01/10000 00:00:00", " 03/01/2024 00:00:00", "03/01/2024T00:00:00", "%1 %2"})
    {
        m_sink->clear();
        const std::string reason = failureText([&] { CDateTime::fromString(text, CDateTime::QorDateFormat); });
        const SGfsPolicyInfo info = read(policy(text, "6"));
        EXPECT_EQ(0, info.weekly->beginTimeUtc.toUnixTime()) << text;
        EXPECT_EQ(6, info.weekly->desiredTime) << text;
        ASSERT_EQ(1U, entries().size()) << text;
        expectEntry(entries()[0], "SGfsPolicyInfoBase::FromXml", "At " + reason);
    }
}

TEST_F(GfsBeginTime, MissingBeginTimeIsAFailureAndNotLogged)
{
    EXPECT_EQ("Unable to parse [Weekly]. Attribute [BeginTimeUtc] is not found in [Weekly].", failureText([] {
                  read("<GfsPolicy IsEnabled=\"true\"><Weekly IsEnabled=\"true\" "
                       "KeepBackupsForNumberOfWeeks=\"4\" DesiredTime=\"1\"/></GfsPolicy>");
              }));
    EXPECT_TRUE(entries().empty());
}

TEST_F(GfsBeginTime, FaultBehindTheDateIsStillAFailure)
{
    EXPECT_EQ("Unable to parse [Weekly]. Unable to convert string [x] to [long].",
              failureText([] { read(policy("01/01/0001 00:00:00", "x")); }));
    EXPECT_EQ(1U, entries().size());
}

TEST_F(GfsBeginTime, WritingLogsNothing)
{
    SGfsPolicyInfo info;
    info.weekly.emplace();
    EXPECT_NE("", info.toXmlString(true));
    EXPECT_TRUE(entries().empty());
}

TEST_F(GfsBeginTime, WholeJobWarnsOncePerRule)
{
    const auto job = zelplatform::model::SBackupJobOptions::fromStr("<JobOptions>" + policy("01/01/0001 00:00:00") +
                                                                    "</JobOptions>");
    EXPECT_EQ(0, job.gfsPolicy.weekly->beginTimeUtc.toUnixTime());
    ASSERT_EQ(1U, entries().size());
    expectEntry(entries()[0], "zelmodel",
                "[Weekly] effective datetime 01/01/0001 00:00:00 is treated as 01/01/1970 00:00:00");
    EXPECT_EQ("01/01/1970 00:00:00", zelplatform::model::SBackupJobOptions::fromStr(job.toString())
                                         .gfsPolicy.weekly->beginTimeUtc.toStdString(CDateTime::QorDateFormat));
    EXPECT_EQ(1U, entries().size());
}

TEST_F(GfsBeginTime, WithoutASinkTheReadGoesOn)
{
    logging::set_sink(nullptr);
    EXPECT_EQ(4, read(policy("never")).weekly->keepCount);
    EXPECT_EQ(4, read(policy("01/01/0001 00:00:00")).weekly->keepCount);
    EXPECT_TRUE(entries().empty());
}

} // namespace
