#include <functional>
#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include <zelmodel/data_size.h>
#include <zelmodel/sessions/job_session_progress_details.h>
#include <zelmodel/structs/schedule/schedule_options.h>

#include "failing_new.h"

namespace zelmodel_test
{
namespace
{

using namespace zelplatform::model::structs;
using zelplatform::CSize;
using zelplatform::model::SJobSessionProgressDetails;

/// A change or a conversion that no value makes fail: only memory can.
struct Operation
{
    std::string sentence; ///< what the failure begins with
    std::function<void()> prepare;
    std::function<void()> run;
};

/// Records whose content was moved away take memory for their masks again when they are set.
template <class T>
Operation onEmptied(T& record, std::string sentence, void (T::*change)())
{
    return {std::move(sentence), [&record] { const T taken(std::move(record)); },
            [&record, change] { (record.*change)(); }};
}

/// What the operation says when its allocations fail one after the other, each in a run of its own.
std::vector<std::string> failuresOf(const Operation& operation)
{
    std::vector<std::string> failures;
    for (bool hasFailed = true; hasFailed;)
    {
        operation.prepare();
        const FailingNew failing(EFailure::One, failures.size());
        std::string failure;
        try
        {
            operation.run();
        }
        catch (const std::exception& error)
        {
            failure = error.what();
        }
        hasFailed = FailingNew::hasFailed();
        if (hasFailed)
            failures.push_back(failure);
    }
    return failures;
}

void expectSentence(const std::string& sentence, const std::vector<std::string>& failures)
{
    EXPECT_FALSE(failures.empty()) << sentence;
    for (const auto& failure : failures)
    {
        EXPECT_EQ(failure.rfind(sentence, 0), 0U) << sentence << ": " << failure;
        EXPECT_NE(failure.find("std::bad_alloc"), std::string::npos) << failure;
    }
}

void expectFailures(const Operation& operation)
{
    expectSentence(operation.sentence, failuresOf(operation));
}

TEST(FailingChange, OfACalendarIsTold)
{
    CScheduleCalendar calendar;
    expectFailures(onEmptied(calendar, "ScheduleCalendar: Failed to set continuous schedule. ",
                             &CScheduleCalendar::SetContinuously));
}

TEST(FailingChange, OfFullBackupsIsTold)
{
    CFullBackupOptions options(EFullBackupType::SyntheticFull);
    // The sentences name the active full for the synthetic one too, on purpose.
    const std::string failed = "ActiveFullOptions: Failed ";
    const CWeekMask week(true);
    expectFailures({failed + "set weekly schedule. ", [&] { const CFullBackupOptions taken(std::move(options)); },
                    [&] { options.SetWeekly(week); }});
    expectFailures(onEmptied(options, failed + "set default weekly. ", &CFullBackupOptions::SetDefaultWeekly));
    expectFailures(onEmptied(options, failed + "set default monthly. ", &CFullBackupOptions::SetDefaultMonthly));
    expectFailures(onEmptied(options, failed + "to reset. ", &CFullBackupOptions::Reset));
}

TEST(FailingChange, OfTheStartIsTold)
{
    CStartJobScheduleOptions options;
    const std::string failed = "CStartJobScheduleOptions: Failed ";
    expectFailures(onEmptied(options, failed + "set continuously. ", &CStartJobScheduleOptions::SetContinuously));
    expectFailures(onEmptied(options, failed + "to set default weekly. ", &CStartJobScheduleOptions::SetDefaultWeekly));
}

TEST(FailingChange, OfTheWholeScheduleIsTold)
{
    CScheduleOptions options;
    const std::string failed = "ScheduleOptions: Failed to ";
    expectFailures(onEmptied(options, failed + "set default weekly. ", &CScheduleOptions::SetDefault));
    expectFailures(onEmptied(options, failed + "reset. ", &CScheduleOptions::ResetBoth));
}

TEST(FailingChange, OfTheEmptyProgressDocumentIsTold)
{
    // It is built at the first use, again after a failure, and once in a process.
    [[maybe_unused]] static const bool isBuilt = [] {
        const std::string sentence = "Failed to create empty xml. ";
        auto failures = failuresOf({sentence, [] {}, [] { SJobSessionProgressDetails::CreateEmptyXml(); }});
        // The copy that is handed out is no part of building it.
        EXPECT_EQ("std::bad_alloc", failures.at(failures.size() - 1));
        failures.pop_back();
        expectSentence(sentence, failures);
        return true;
    }();
    EXPECT_EQ(SJobSessionProgressDetails().ToXml(), SJobSessionProgressDetails::CreateEmptyXml());
}

TEST(FailingChange, OfASizeIntoWordsIsTold)
{
    // One byte more than a terabyte takes all digits.
    const CSize size((1UL << 40U) + 1);
    const auto nothing = [] {};
    expectFailures({"CSize: Failed to convert to NBytes string. ", nothing, [&] { size.ToNBytesStr(); }});
    expectFailures({"CSize: Failed to convert to user-friendly string. ", nothing, [&] { size.ToStr(5, true); }});
}

} // namespace
} // namespace zelmodel_test
