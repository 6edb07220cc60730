#include <algorithm>
#include <new>
#include <ostream>
#include <set>
#include <stdexcept>
#include <string>

#include <gtest/gtest.h>

#include <zelplatform/exc/exc.h>

#include "operation.h"
#include "tries.h"

namespace zelmodel_test
{
namespace
{

/// An operation that nothing can make fail but a lack of memory, and its own words for that.
struct Words
{
    const char* operation;
    const char* message;
};

std::ostream& operator<<(std::ostream& stream, const Words& words)
{
    return stream << words.operation;
}

constexpr Words AllWords[] = {
    {"CStartJobScheduleOptions.SetWeekly", "CStartJobScheduleOptions: Failed set weekly schedule."},
    {"CStartJobScheduleOptions.SetMonthly", "CStartJobScheduleOptions: Failed set monthly schedule."},
    {"CStartJobScheduleOptions.SetMonthlyOnDay", "CStartJobScheduleOptions: Failed set monthly schedule on day [15]."},
    {"CStartJobScheduleOptions.SetPeriodically", "CStartJobScheduleOptions: Failed set periodically at [0:30]."},
    {"CStartJobScheduleOptions.SetContinuously", "CStartJobScheduleOptions: Failed set continuously."},
    {"CStartJobScheduleOptions.SetDefaultWeekly", "CStartJobScheduleOptions: Failed to set default weekly."},
    {"CStartJobScheduleOptions.ToLogStr", "CStartJobScheduleOptions: Failed to convert to log string."},
    {"CStartJobScheduleOptions.ToXml.intoAnElement", "CStartJobScheduleOptions: Failed to serialize to Xml."},
    {"CFullBackupOptions.SetWeekly", "ActiveFullOptions: Failed set weekly schedule."},
    {"CFullBackupOptions.SetMonthly", "ActiveFullOptions: Failed set monthly schedule."},
    {"CFullBackupOptions.SetMonthlyOnDay", "ActiveFullOptions: Failed set monthly schedule on day [1]."},
    {"CFullBackupOptions.SetDefaultWeekly", "ActiveFullOptions: Failed set default weekly."},
    {"CFullBackupOptions.SetDefaultMonthly", "ActiveFullOptions: Failed set default monthly."},
    {"CFullBackupOptions.Reset", "ActiveFullOptions: Failed to reset."},
    {"CFullBackupOptions.ToXml.intoAnElement", "ActiveFullOptions: Failed to serialize to Xml."},
    {"CScheduleOptions.SetDefault", "ScheduleOptions: Failed to set default weekly."},
    {"CScheduleOptions.ResetBoth", "ScheduleOptions: Failed to reset."},
    {"CScheduleCalendar.weekly.SetWeekly", "ScheduleCalendar: Failed to set weekly schedule."},
    {"CScheduleCalendar.weekly.SetPeriodically", "ScheduleCalendar: Failed to set periodical schedule."},
    {"CScheduleCalendar.weekly.SetContinuously", "ScheduleCalendar: Failed to set continuous schedule."},
    {"CScheduleCalendar.weekly.SetDefaultWeekly", "ScheduleCalendar: Failed to set default weekly."},
    {"CScheduleCalendar.weekly.SetDefaultMonthly", "ScheduleCalendar: Failed to set default monthly."},
    {"CScheduleCalendar.ToXml.intoAnElement", "ScheduleCalendar: Failed to serialize to Xml."},
    {"CScheduleTime.ToXml.intoAnElement", "ScheduleTime: Failed to serialize to Xml."},
    {"CWeekMask.ToXml.intoAnElement", "WeekMask: Failed to serialize to Xml."},
    {"CMonthMask.ToXml.intoAnElement", "MonthMask: Failed to serialize to Xml."},
    {"BackupWindow.toXml.intoAnElement", "Backup Window: Failed to serialize to Xml."},
    {"SIndexingOptions.ToXml.intoAnElement", "IndexingOptions: Failed to serialize to Xml."},
    {"sessions.SBackupJobState.ToXmlString", "Failed to serialize SBackupJobState."},
};

const Operation& named(const std::string& name)
{
    const auto& all = everyOperation();
    const auto found =
        std::find_if(all.begin(), all.end(), [&](const Operation& operation) { return operation.name == name; });
    if (found == all.end())
        throw std::invalid_argument("There is no operation " + name + '.');
    return *found;
}

/// The outermost message of every failure that a single allocation can lead to.
std::set<std::string> outermostMessages(const Operation& operation)
{
    std::set<std::string> messages;
    for (std::size_t number = 0;; ++number)
    {
        const auto subject = operation.make();
        try
        {
            if (!tryWith(EFailure::One, number, [&] { subject->run(); }).hasFailed)
                return messages;
        }
        catch (const exc::CRuntimeExc& refusal)
        {
            messages.insert(refusal.trace().front());
        }
        catch (const std::bad_alloc&)
        {
            // An argument of the call.
        }
    }
}

class FailingWords : public testing::TestWithParam<Words>
{
};

TEST_P(FailingWords, NameTheOperation)
{
    const auto messages = outermostMessages(named(GetParam().operation));
    EXPECT_EQ(1U, messages.count(GetParam().message)) << testing::PrintToString(messages);
}

std::string wordsName(const testing::TestParamInfo<Words>& info)
{
    std::string name = info.param.operation;
    std::replace(name.begin(), name.end(), '.', '_');
    return name;
}

INSTANTIATE_TEST_SUITE_P(All, FailingWords, testing::ValuesIn(AllWords), wordsName);

} // namespace
} // namespace zelmodel_test
