#include <memory>
#include <utility>

#include <gtest/gtest.h>

#include <zelmodel/structs/schedule/schedule_options.h>

#include "together.h"

using namespace zelplatform::model::structs;

namespace
{

using zelmodel_test::repeatTogether;
using zelmodel_test::roundCount;

std::shared_ptr<BackupWindow> window(int number)
{
    return std::make_shared<BackupWindow>(DayHourMatrix(EScheduleWindowKind::Disabled), number);
}

/// The number of a window; one that is in use is whole and closed.
int numberOf(const std::shared_ptr<BackupWindow>& window)
{
    if (!window)
        return 0;
    EXPECT_EQ(0U, window->getMatrix()(6, 23));
    return window->getHourlyOffsetMinutes();
}

/// A thread that looks at windows sees none again that was replaced before.
class Numbers
{
public:
    void see(const std::shared_ptr<BackupWindow>& window)
    {
        const int number = numberOf(window);
        if (number == 0)
            return;
        EXPECT_LE(m_last, number);
        m_last = number;
    }

private:
    int m_last = 0;
};

/// The first thread replaces the window of the options in each round, the windows numbered by their offset and every
/// tenth empty; the others work on the options, with the numbers of their thread and round.
template <class F>
void whileTheWindowIsReplaced(CScheduleOptions& options, F&& work)
{
    repeatTogether([&](int thread, int round) {
        const int number = round + 1;
        if (thread == 0)
            options.setBackupWindow(number % 10 == 0 ? nullptr : window(number));
        else
            work(thread, round);
    });
}

} // namespace

TEST(CScheduleOptionsThreads, TheWindowIsReadWhileItIsReplaced)
{
    CScheduleOptions options;
    Numbers numbers[zelmodel_test::ThreadCount];
    whileTheWindowIsReplaced(options, [&](int thread, int) { numbers[thread].see(options.getBackupWindow()); });
    EXPECT_EQ(roundCount() % 10 == 0 ? 0 : roundCount(), numberOf(options.getBackupWindow()));
}

TEST(CScheduleOptionsThreads, CopiesAreMadeWhileTheWindowIsReplaced)
{
    CScheduleOptions options;
    options.SetDefault();
    CScheduleOptions assigned[zelmodel_test::ThreadCount];
    Numbers numbers[zelmodel_test::ThreadCount];
    whileTheWindowIsReplaced(options, [&](int thread, int) {
        const CScheduleOptions copy(options);
        numbers[thread].see(copy.getBackupWindow());
        assigned[thread] = copy;
        numbers[thread].see(assigned[thread].getBackupWindow());
        assigned[thread] = options;
        numbers[thread].see(assigned[thread].getBackupWindow());
        EXPECT_TRUE(copy == options);
        EXPECT_TRUE(assigned[thread] == options);
    });
}

TEST(CScheduleOptionsThreads, DocumentsAreWrittenWhileTheWindowIsReplaced)
{
    CScheduleOptions options;
    options.SetDefault();
    whileTheWindowIsReplaced(options, [&](int, int round) {
        if (round % 20 == 0)
        {
            EXPECT_NE("", options.ToXmlString());
        }
    });
}

TEST(CScheduleOptionsThreads, ACopyKeepsItsWindow)
{
    CScheduleOptions options;
    options.setBackupWindow(window(-1));
    const CScheduleOptions copy(options);
    whileTheWindowIsReplaced(options, [&](int, int) {
        ASSERT_NE(nullptr, copy.getBackupWindow());
        EXPECT_EQ(-1, copy.getBackupWindow()->getHourlyOffsetMinutes());
    });
}

TEST(CScheduleOptionsThreads, AllThreadsReplaceTheWindow)
{
    CScheduleOptions options;
    repeatTogether([&](int thread, int round) {
        options.setBackupWindow(window(1 + thread * roundCount() + round));
        EXPECT_NE(0, numberOf(options.getBackupWindow()));
        EXPECT_NE(0, numberOf(CScheduleOptions(options).getBackupWindow()));
    });
    EXPECT_NE(0, numberOf(options.getBackupWindow()));
}

TEST(CScheduleOptionsThreads, TheWindowIsReadWhileOptionsAreMovedIn)
{
    CScheduleOptions options;
    repeatTogether([&](int thread, int round) {
        if (thread != 0)
        {
            (void)numberOf(options.getBackupWindow());
            return;
        }
        CScheduleOptions next;
        next.setBackupWindow(window(round + 1));
        if (round % 2 == 0)
            options = next;
        else
            options = std::move(next);
    });
    EXPECT_EQ(roundCount(), numberOf(options.getBackupWindow()));
}
