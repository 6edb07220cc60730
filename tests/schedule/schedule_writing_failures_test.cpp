#include <string>

#include <gtest/gtest.h>

#include <zelmodel/structs/schedule/schedule_options.h>
#include <zelplatform/xmlpp/xmlpp.h>

#include "support/expect_failure.h"

using namespace zelplatform::model::structs;
using zelmodel_test::failureText;

namespace
{

/// No week-day number of the calendar; its setter takes any.
constexpr auto Unnamed = static_cast<EWeekDayNumber::type>(0);

CStartJobScheduleOptions unwritableStart()
{
    CStartJobScheduleOptions options;
    options.SetMonthly(22, 0, EWeekDayNumber::First, datetime::EDayOfWeek::Monday, CMonthMask(true));
    options.SetWeekDayNumber(Unnamed);
    return options;
}

CFullBackupOptions unwritableFull(EFullBackupType type)
{
    CFullBackupOptions options(type);
    options.SetWeekDayNumber(Unnamed);
    return options;
}

template <class TOptions>
std::string writingFailure(const TOptions& options)
{
    xmlpp::CXmlDocument document;
    auto root = document.AddRootNode("Job");
    return failureText([&] { options.ToXml(root); });
}

} // namespace

TEST(ScheduleWritingFailures, EveryRecordAroundTheCalendarAddsItsSentence)
{
    const std::string calendar =
        "ScheduleCalendar: Failed to serialize to Xml. Unable to convert EWeekDayNumber::type [0] to string.";
    const std::string start = "CStartJobScheduleOptions: Failed to serialize to Xml. " + calendar;
    const std::string full = "ActiveFullOptions: Failed to serialize to Xml. " + calendar;
    const std::string options = "ScheduleOptions: Failed to serialize to Xml. ";

    EXPECT_EQ(start, writingFailure(unwritableStart()));
    // The sentence names the active full for the synthetic one too, on purpose.
    for (const auto type : {EFullBackupType::ActiveFull, EFullBackupType::SyntheticFull})
        EXPECT_EQ(full, writingFailure(unwritableFull(type)));

    CScheduleOptions withStart;
    withStart.SetJobStartOptions(unwritableStart());
    EXPECT_EQ(options + start, writingFailure(withStart));
    CScheduleOptions withActive;
    withActive.SetActiveFullOptions(unwritableFull(EFullBackupType::ActiveFull));
    EXPECT_EQ(options + full, writingFailure(withActive));
    CScheduleOptions withSynthetic;
    withSynthetic.SetSyntheticFullOptions(unwritableFull(EFullBackupType::SyntheticFull));
    EXPECT_EQ(options + full, writingFailure(withSynthetic));
    EXPECT_EQ("ScheduleOptions: Failed to ToXmlString. " + options + full,
              failureText([&] { withSynthetic.ToXmlString(); }));
}
