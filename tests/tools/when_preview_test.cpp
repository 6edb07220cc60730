#include <array>
#include <cstddef>
#include <cstdlib>
#include <iostream>
#include <string>

#include <gtest/gtest.h>

#include "describe/document.h"
#include "local_zone.h"
#include "preview_draw.h"
#include "preview_judge.h"
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
using zelmodel_test::countReadings;
using zelmodel_test::Draw;
using zelmodel_test::expectedFull;
using zelmodel_test::Judge;
using zelmodel_test::LocalZone;
using zelmodel_test::Printed;
using zelplatform::model::CDate;
using zelplatform::model::structs::BackupWindow;
using zelplatform::model::structs::CScheduleOptions;

constexpr std::size_t QuestionsOfSuite = 20000;
constexpr long SecondsOfMinute = 60;
constexpr long MinutesOfDay = 1440;
constexpr long SecondsOfDay = SecondsOfMinute * MinutesOfDay;
constexpr long DaysOfCloseLook = 3;
constexpr std::array<const char*, 5> Zones{"UTC", "Europe/Berlin", "America/New_York", "Australia/Lord_Howe",
                                           "Asia/Kathmandu"};

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
