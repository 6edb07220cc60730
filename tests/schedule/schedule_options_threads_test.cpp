#include <atomic>
#include <memory>
#include <thread>
#include <utility>

#include <gtest/gtest.h>

#include <zelmodel/structs/schedule/schedule_options.h>

using namespace zelplatform::model::structs;

namespace
{

constexpr int replacements = 3000;

/// One thread replaces the window of the options, the windows numbered by their offset, while this one works on them.
template <class F>
void whileTheWindowIsReplaced(CScheduleOptions& options, F&& work)
{
    std::atomic<bool> done{false};
    std::thread writer([&] {
        for (int number = 1; number <= replacements; ++number)
            options.setBackupWindow(number % 10 == 0 ? nullptr
                                                     : std::make_shared<BackupWindow>(
                                                           DayHourMatrix(EScheduleWindowKind::Disabled), number));
        done = true;
    });
    do
        work();
    while (!done);
    writer.join();
}

/// The number of a window; one that is in use is whole and closed.
int numberOf(const std::shared_ptr<BackupWindow>& window)
{
    if (!window)
        return 0;
    EXPECT_EQ(0U, window->getMatrix()(6, 23));
    return window->getHourlyOffsetMinutes();
}

} // namespace

TEST(CScheduleOptionsThreads, TheWindowIsReadWhileItIsReplaced)
{
    CScheduleOptions options;
    int last = 0;
    whileTheWindowIsReplaced(options, [&] {
        const int number = numberOf(options.getBackupWindow());
        if (number != 0)
        {
            EXPECT_LE(last, number);
            last = number;
        }
    });
    EXPECT_EQ(nullptr, options.getBackupWindow());
}

TEST(CScheduleOptionsThreads, CopiesAreMadeWhileTheWindowIsReplaced)
{
    CScheduleOptions options;
    options.SetDefault();
    CScheduleOptions assigned;
    int last = 0;
    whileTheWindowIsReplaced(options, [&] {
        const CScheduleOptions copy(options);
        assigned = options;
        EXPECT_TRUE(copy == options);
        EXPECT_TRUE(assigned == options);
        for (const auto& window : {copy.getBackupWindow(), assigned.getBackupWindow()})
        {
            const int number = numberOf(window);
            if (number != 0)
            {
                EXPECT_LE(last, number);
                last = number;
            }
        }
    });
}

TEST(CScheduleOptionsThreads, ACopyKeepsItsWindow)
{
    CScheduleOptions options;
    options.setBackupWindow(std::make_shared<BackupWindow>(DayHourMatrix(EScheduleWindowKind::Disabled), -1));
    const CScheduleOptions copy(options);
    whileTheWindowIsReplaced(options, [&] {
        ASSERT_NE(nullptr, copy.getBackupWindow());
        EXPECT_EQ(-1, copy.getBackupWindow()->getHourlyOffsetMinutes());
    });
}

TEST(CScheduleOptionsThreads, TheWindowIsReadWhileOptionsAreMovedIn)
{
    CScheduleOptions options;
    std::atomic<bool> done{false};
    std::thread reader([&] {
        while (!done)
            (void)numberOf(options.getBackupWindow());
    });
    for (int number = 1; number <= replacements / 10; ++number)
    {
        CScheduleOptions next;
        next.setBackupWindow(std::make_shared<BackupWindow>(DayHourMatrix(EScheduleWindowKind::Disabled), number));
        if (number % 2 == 0)
            options = next;
        else
            options = std::move(next);
    }
    done = true;
    reader.join();
    EXPECT_EQ(replacements / 10, numberOf(options.getBackupWindow()));
}
