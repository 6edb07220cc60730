#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdlib>
#include <ctime>
#include <iostream>
#include <map>
#include <optional>
#include <random>
#include <set>
#include <sstream>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include <zelmodel/structs/schedule/schedule_parser.h>

#include "describe/document.h"
#include "local_zone.h"
#include "tree.h"
#include "when/decision_tree.h"
#include "when/local_zone.h"
#include "when/next_days.h"

// The preview is the decision: what `next` prints is what the library's own tests say of every minute, and `why` says
// the same. Schedules, dates, windows and zones are drawn at random from a fixed seed. Each minute that is asked about
// is one question. The suite asks a sample; the variable ZELMODEL_PREVIEW_QUESTIONS asks for at least so many.
namespace
{

using datetime::CDateTime;
using datetime::EDayOfWeek;
using zelmodel_test::LocalZone;
using zelplatform::model::CDate;
using zelplatform::model::structs::BackupWindow;
using zelplatform::model::structs::CDayOfMonth;
using zelplatform::model::structs::CMonthMask;
using zelplatform::model::structs::CScheduleOptions;
using zelplatform::model::structs::CWeekMask;
using zelplatform::model::structs::DayHourMatrix;
using zelplatform::model::structs::EScheduleType;
using zelplatform::model::structs::EScheduleWindowKind;
using zelplatform::model::structs::EWeekDayNumber;

constexpr std::size_t QuestionsOfSuite = 20000;
constexpr long SecondsOfMinute = 60;
constexpr long MinutesOfDay = 1440;
constexpr long SecondsOfDay = SecondsOfMinute * MinutesOfDay;
constexpr long DaysOfCloseLook = 3;
constexpr std::array<const char*, 5> Zones{"UTC", "Europe/Berlin", "America/New_York", "Australia/Lord_Howe",
                                           "Asia/Kathmandu"};

/// Draws everything that a question needs.
class Draw
{
public:
    explicit Draw(unsigned seed) : m_engine(seed) {}

    /// 0 to the count minus 1.
    unsigned below(unsigned count) { return static_cast<unsigned>(m_engine() % count); }
    bool oneOf(unsigned count) { return below(count) == 0; }

    CWeekMask week()
    {
        CWeekMask mask(oneOf(4));
        for (int day = 0; day < 7; ++day)
        {
            if (oneOf(3))
                mask.SetDay(static_cast<EDayOfWeek::type>(day), true);
        }
        return mask;
    }

    CMonthMask months()
    {
        CMonthMask mask(!oneOf(3));
        for (int month = 0; month < 12; ++month)
        {
            if (oneOf(4))
                mask.SetMonth(static_cast<datetime::EMonth::type>(month), true);
        }
        // No setter takes a day in no month at all.
        mask.SetMonth(static_cast<datetime::EMonth::type>(below(12)), true);
        return mask;
    }

    CDayOfMonth dayOfMonth() { return CDayOfMonth(oneOf(4) ? CDayOfMonth::GetMagicLastDay() : 1 + below(31)); }
    EWeekDayNumber::type number() { return static_cast<EWeekDayNumber::type>(EWeekDayNumber::First + below(5)); }
    EDayOfWeek::type weekDay() { return static_cast<EDayOfWeek::type>(below(7)); }
    std::uint8_t hour() { return static_cast<std::uint8_t>(oneOf(3) ? 1 + below(3) : below(24)); }
    std::uint8_t minute() { return static_cast<std::uint8_t>(oneOf(3) ? 0 : below(60)); }

    void drawFull(zelplatform::model::structs::CFullBackupOptions& full)
    {
        if (oneOf(2))
            full.SetWeekly(week());
        else if (oneOf(2))
            full.SetMonthly(number(), weekDay(), months());
        else
            full.SetMonthlyOnDay(dayOfMonth(), months());
        full.SetEnabled(!oneOf(4));
    }

    CScheduleOptions schedule()
    {
        CScheduleOptions schedule;
        auto& start = schedule.GetJobStartOptions();
        switch (below(8))
        {
        case 0: start.SetContinuously(); break;
        case 1: start.SetPeriodically(static_cast<std::uint8_t>(below(25)), minute()); break;
        case 2:
        case 3: start.SetMonthly(hour(), minute(), number(), weekDay(), months()); break;
        case 4:
        case 5: start.SetMonthlyOnDay(hour(), minute(), dayOfMonth(), months()); break;
        default: start.SetWeekly(hour(), minute(), week()); break;
        }
        drawFull(schedule.GetActiveFullOptions());
        drawFull(schedule.GetSyntheticFullOptions());
        start.SetEnabled(!oneOf(16));
        return schedule;
    }

    BackupWindow window()
    {
        DayHourMatrix matrix(oneOf(2) ? EScheduleWindowKind::Enabled : EScheduleWindowKind::Disabled);
        for (int day = 0; day < 7; ++day)
        {
            for (int hour = 0; hour < 24; ++hour)
            {
                if (oneOf(3))
                    matrix(day, hour) = 1 - matrix(day, hour);
            }
        }
        return BackupWindow(matrix, 0);
    }

    /// Often close to a change of the clock.
    CDate date()
    {
        constexpr std::array<const char*, 7> Changes{"2024-02-27", "2026-03-07", "2026-03-28", "2026-04-04",
                                                     "2026-10-03", "2026-10-24", "2026-10-31"};
        if (oneOf(2))
            return CDate(CDateTime::fromString(Changes[below(Changes.size())], "%Y-%m-%d", false));
        return CDate(CDateTime(static_cast<long>(below(40000)) * SecondsOfDay, false));
    }

private:
    std::mt19937 m_engine;
};

/// What the document holds, without any word of the tools: the library's tests, and the time of the day beside them.
class Judge
{
public:
    Judge(const CScheduleOptions& schedule, const CDate& from) : m_schedule(schedule), m_from(from) {}

    bool isStart(const CDateTime& moment) const
    {
        return m_schedule.GetJobStartOptions().IsScheduledAt(moment) && isTime(moment);
    }

    bool isFull(const CDateTime& moment, const zelplatform::model::structs::CFullBackupOptions& full) const
    {
        return !m_schedule.GetJobStartOptions().GetCalendar().IsScheduleRecurrent() && full.IsScheduledAt(moment);
    }

private:
    bool isTime(const CDateTime& moment) const
    {
        const auto& calendar = m_schedule.GetJobStartOptions().GetCalendar();
        if (calendar.IsScheduleContinuously())
            return true;
        const auto minutes = static_cast<long>(calendar.GetTime().GetHours() * 60 + calendar.GetTime().GetMinutes());
        if (!calendar.IsSchedulePeriodically())
            return moment.hour() * 60 + moment.minute() == minutes;
        const long passed = (moment.toUnixTime() - m_from.toUnixTime()) / SecondsOfMinute;
        return passed % minutes == 0;
    }

    const CScheduleOptions& m_schedule;
    CDateTime m_from;
};

/// How often the wall clock shows the time, counted by looking at every quarter of an hour around it.
int countReadings(const CDateTime& local)
{
    int count = 0;
    for (long quarter = -64; quarter <= 64; ++quarter)
    {
        const auto instant = static_cast<std::time_t>(local.toUnixTime() + quarter * 900);
        std::tm shown{};
        ::localtime_r(&instant, &shown);
        count += shown.tm_hour == local.hour() && shown.tm_min == local.minute() &&
                         static_cast<unsigned>(shown.tm_mday) == local.day()
                     ? 1
                     : 0;
    }
    return count;
}

/// The rows that `next` prints, read back from their texts.
class Printed
{
public:
    explicit Printed(const describe::Node& next)
    {
        for (const auto& row : next.children)
        {
            const auto& date = zelmodel_test::at(row, "date").value;
            m_fulls[date] = zelmodel_test::at(row, "full").value;
            std::istringstream starts(zelmodel_test::at(row, "start").value);
            for (std::string time; starts >> time && time != "all";)
                m_starts.insert(date + ' ' + time);
            if (zelmodel_test::at(row, "start").value == "all day")
                m_wholeDays.insert(date);
        }
    }

    bool has(const CDateTime& moment) const
    {
        return m_starts.count(moment.toStdString("%Y-%m-%d %H:%M")) != 0 ||
               m_wholeDays.count(moment.toStdString("%Y-%m-%d")) != 0;
    }

    std::string fullOf(const CDateTime& moment) const { return m_fulls.at(moment.toStdString("%Y-%m-%d")); }

private:
    std::set<std::string> m_starts;
    std::set<std::string> m_wholeDays;
    std::map<std::string, std::string> m_fulls;
};

std::string expectedFull(const Judge& judge, const CScheduleOptions& schedule, const CDateTime& moment)
{
    const bool isActive = judge.isFull(moment, schedule.GetActiveFullOptions());
    const bool isSynthetic = judge.isFull(moment, schedule.GetSyntheticFullOptions());
    if (isActive && isSynthetic)
        return "active full and synthetic full";
    return isActive ? "active full" : isSynthetic ? "synthetic full" : "";
}

/// One schedule with its days, and the questions about it.
class Preview
{
public:
    Preview(Draw& draw, std::size_t& questions)
        : m_draw(draw),
          m_questions(questions),
          m_schedule(draw.schedule()),
          m_window(draw.window()),
          m_from(draw.date()),
          m_days(10 + draw.below(60)),
          m_hasWindow(draw.oneOf(2)),
          m_evaluation(m_schedule, m_hasWindow ? &m_window : nullptr, m_from),
          m_judge(m_schedule, m_from),
          m_tree(describe::Document(m_schedule.ToXmlString()).describe()),
          m_windowTree(treeOfWindow())
    {
    }

    void ask()
    {
        const CDate until(dayAfter(m_days - 1));
        const Printed next(when::describeDays(m_evaluation, m_from, m_evaluation.daysFrom(m_from, 100000, until)));
        const auto& time = m_schedule.GetJobStartOptions().GetCalendar().TryGetTime();
        for (long day = 0; day < m_days; ++day)
        {
            const auto midnight = dayAfter(day);
            if (day < DaysOfCloseLook)
                askWithin(next, midnight);
            else
                askAt(next, minuteOf(midnight, m_draw.below(MinutesOfDay)));
            if (time)
                askAt(next, minuteOf(midnight, static_cast<long>(time->ToSeconds()) / SecondsOfMinute % MinutesOfDay));
        }
        askBackwards(CDate(dayAfter(m_days)));
    }

private:
    describe::Node treeOfWindow() const
    {
        xmlpp::CXmlDocument document;
        auto top = document.ToNode();
        m_window.toXml(top);
        return describe::Document(document.Serialize()).describe();
    }

    CDateTime dayAfter(long days) const { return when::later(m_from, days * SecondsOfDay); }
    static CDateTime minuteOf(const CDateTime& day, long minute) { return when::later(day, minute * SecondsOfMinute); }

    void askWithin(const Printed& next, const CDateTime& midnight)
    {
        // Every minute of some days, a look here and there into most.
        const long step = m_draw.oneOf(16) ? 1 : 30 + static_cast<long>(m_draw.below(120));
        for (long minute = 0; minute < MinutesOfDay; minute += step)
            askAt(next, minuteOf(midnight, minute));
    }

    void askAt(const Printed& next, const CDateTime& moment)
    {
        ++m_questions;
        const bool isStart = m_judge.isStart(moment);
        const bool isOpen = !m_hasWindow || m_window.isWindowOpen(moment);
        const auto decision = when::decide(m_evaluation, moment);
        ASSERT_EQ(next.has(moment), isStart) << tell(moment);
        ASSERT_EQ(decision.isStart, isStart && isOpen) << tell(moment);
        const auto full = isStart ? expectedFull(m_judge, m_schedule, moment) : std::string();
        ASSERT_EQ(isStart ? next.fullOf(moment) : full, full) << tell(moment);
        if (m_questions % 16 == 0 || decision.isStart)
            askWhy(moment, decision, full);
        if (m_questions % 16 == 0)
            askClock(moment);
    }

    /// The tree that `why` prints.
    void askWhy(const CDateTime& moment, const when::Decision& decision, const std::string& full)
    {
        const std::string name = "window";
        const auto why = when::describeDecision(m_evaluation, moment, decision, {m_tree, m_windowTree, name});
        ASSERT_EQ(why.value, decision.isStart ? "true" : "false") << tell(moment);
        bool allHold = true;
        int pointers = 0;
        for (const auto& condition : why.children)
        {
            const bool isFull = condition.name == "activeFull" || condition.name == "syntheticFull";
            if (isFull || condition.name == "clock")
                continue;
            allHold = allHold && condition.value == "true";
            pointers += condition.words.rfind("NO", 0) == 0 ? 1 : 0;
        }
        ASSERT_EQ(allHold, decision.isStart) << tell(moment);
        ASSERT_EQ(pointers, decision.isStart ? 0 : 1) << tell(moment);
        const bool isActive = full.find("active full") != std::string::npos;
        const bool isSynthetic = full.find("synthetic full") != std::string::npos;
        ASSERT_EQ(zelmodel_test::at(why, "activeFull").value == "true", decision.isStart && isActive) << tell(moment);
        ASSERT_EQ(zelmodel_test::at(why, "syntheticFull").value == "true", decision.isStart && isSynthetic)
            << tell(moment);
    }

    void askClock(const CDateTime& moment) const
    {
        const auto reading = when::readingOf(moment);
        const int count = reading == when::EReading::Never ? 0 : reading == when::EReading::Once ? 1 : 2;
        ASSERT_EQ(count, countReadings(moment)) << tell(moment);
    }

    /// The days of --previous are those of the decision, and the first of them the library's own, where it looks.
    void askBackwards(const CDate& before)
    {
        const auto days = m_evaluation.daysBefore(before, 3);
        const auto& start = m_schedule.GetJobStartOptions();
        const auto& calendar = start.GetCalendar();
        if (start.IsDisabled())
        {
            ASSERT_TRUE(days.empty());
            return;
        }
        if (calendar.IsScheduleRecurrent() || days.empty() || calendar.GetWeekMask().IsAllDaysOff())
            return;
        const CDateTime day = days.front().date;
        ASSERT_TRUE(start.IsScheduledAt(day)) << tell(day);
        if (CDateTime(before).toUnixTime() - day.toUnixTime() < 300 * SecondsOfDay)
        {
            ++m_questions;
            const CDate eve(when::later(before, -SecondsOfDay));
            ASSERT_EQ(CDateTime(calendar.GetPrevScheduleDateFromDate(eve)), day) << tell(day);
        }
    }

    std::string tell(const CDateTime& moment) const
    {
        return moment.toStdString("%Y-%m-%d %H:%M") + " TZ=" + std::getenv("TZ") + '\n' + m_schedule.ToXmlString();
    }

    Draw& m_draw;
    std::size_t& m_questions;
    CScheduleOptions m_schedule;
    BackupWindow m_window;
    CDate m_from;
    long m_days;
    bool m_hasWindow;
    when::Evaluation m_evaluation;
    Judge m_judge;
    describe::Node m_tree;
    describe::Node m_windowTree;
};

std::size_t wantedQuestions()
{
    const char* variable = std::getenv("ZELMODEL_PREVIEW_QUESTIONS");
    return variable == nullptr ? QuestionsOfSuite : std::stoul(variable);
}

TEST(Preview, IsTheDecision)
{
    Draw draw(20260302);
    std::size_t questions = 0;
    std::size_t schedules = 0;
    for (const auto wanted = wantedQuestions(); questions < wanted && !HasFatalFailure(); ++schedules)
    {
        const LocalZone zone(Zones[schedules % Zones.size()]);
        Preview(draw, questions).ask();
    }
    std::cout << questions << " questions about " << schedules << " schedules, "
              << (HasFailure() ? "with mismatches" : "0 mismatches") << '\n';
}

} // namespace
