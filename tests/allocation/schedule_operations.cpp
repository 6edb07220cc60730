#include <zelplatform/xmlpp/xmlpp.h>

#include "operation.h"
#include "samples.h"
#include "schedule_words.h"

namespace zelmodel_test
{
namespace
{

using namespace zelplatform::model::structs;
using datetime::EDayOfWeek;

template <class TOptions>
TOptions withoutMasks(TOptions options)
{
    options.GetCalendar().GetWeekMask() = CWeekMask(std::vector<bool>());
    options.GetCalendar().GetMonthMask() = CMonthMask(std::vector<bool>());
    options.Disable();
    return options;
}

CStartJobScheduleOptions start()
{
    return withoutMasks(fullSchedule().GetJobStartOptions());
}

CFullBackupOptions full()
{
    return withoutMasks(fullSchedule().GetSyntheticFullOptions());
}

CScheduleOptions schedule()
{
    auto made = fullSchedule();
    made.SetJobStartOptions(start());
    made.SetActiveFullOptions(full());
    return made;
}

const CScheduleOptions& otherSchedule()
{
    static const CScheduleOptions options = fullSchedule();
    return options;
}

template <class TOptions>
std::vector<Change<TOptions>> commonChanges()
{
    return {
        {"SetDayOfMonth", [](TOptions& options) { options.SetDayOfMonth(7); }},
        {"SetDayOfMonthLast", [](TOptions& options) { options.SetDayOfMonthLast(); }},
        {"SetWeekDayNumber", [](TOptions& options) { options.SetWeekDayNumber(EWeekDayNumber::First); }},
        {"ResetWeekDayNumber", [](TOptions& options) { options.ResetWeekDayNumber(); }},
        {"Reset", [](TOptions& options) { options.Reset(); }},
        {"SetDefaultWeekly", [](TOptions& options) { options.SetDefaultWeekly(); }},
    };
}

std::vector<Change<CStartJobScheduleOptions>> startChanges()
{
    using Start = CStartJobScheduleOptions;
    return {
        {"SetWeekly", [](Start& options) { options.SetWeekly(22, 30, weekend()); }},
        {"SetMonthly",
         [](Start& options) { options.SetMonthly(22, 30, EWeekDayNumber::Third, EDayOfWeek::Friday, summer()); }},
        {"SetMonthlyOnDay", [](Start& options) { options.SetMonthlyOnDay(22, 30, CDayOfMonth(15), summer()); }},
        {"SetPeriodically", [](Start& options) { options.SetPeriodically(0, 30); }},
        {"SetContinuously", [](Start& options) { options.SetContinuously(); }},
        {"assignedCopy", [](Start& options) { options = otherSchedule().GetJobStartOptions(); }},
    };
}

std::vector<Change<CFullBackupOptions>> fullChanges()
{
    using Full = CFullBackupOptions;
    return {
        {"SetWeekly", [](Full& options) { options.SetWeekly(weekend()); }},
        {"SetMonthly", [](Full& options) { options.SetMonthly(EWeekDayNumber::Third, EDayOfWeek::Friday, summer()); }},
        {"SetMonthlyOnDay", [](Full& options) { options.SetMonthlyOnDay(CDayOfMonth(1), summer()); }},
        {"SetDefaultMonthly", [](Full& options) { options.SetDefaultMonthly(); }},
        {"assignedCopy", [](Full& options) { options = otherSchedule().GetActiveFullOptions(); }},
    };
}

std::vector<Change<CScheduleOptions>> scheduleChanges()
{
    using Schedule = CScheduleOptions;
    const auto root = xmlpp::CXmlDocument::Unserialize(fullSchedule().ToXmlString()).GetRootNode();
    return {
        {"SetDefault", [](Schedule& options) { options.SetDefault(); }},
        {"ResetBoth", [](Schedule& options) { options.ResetBoth(); }},
        {"SetJobStartOptions",
         [](Schedule& options) { options.SetJobStartOptions(otherSchedule().GetJobStartOptions()); }},
        {"SetActiveFullOptions",
         [](Schedule& options) { options.SetActiveFullOptions(otherSchedule().GetActiveFullOptions()); }},
        {"SetSyntheticFullOptions",
         [](Schedule& options) { options.SetSyntheticFullOptions(otherSchedule().GetActiveFullOptions()); }},
        {"setBackupWindow",
         [](Schedule& options) { options.setBackupWindow(std::make_shared<BackupWindow>(DayHourMatrix(Enabled), 7)); }},
        {"ReadXml", [root](Schedule& options) { options.ReadXml(root); }},
        {"assignedCopy", [](Schedule& options) { options = otherSchedule(); }},
        {"assignedMove", [](Schedule& options) { options = fullSchedule(); }},
    };
}

template <class TOptions>
std::vector<Question<TOptions>> questions()
{
    return {
        {"ToLogStr", [](const TOptions& options) { return options.ToLogStr(false); }},
        {"IsScheduledAt",
         [](const TOptions& options) { return util::toStr(options.IsScheduledAt(datetime::CDateTime(7, true))); }},
        {"equality", [](const TOptions& options) { return util::toStr(options == TOptions(options)); }},
        {"copy", [](const TOptions& options) { return tellOptions(TOptions(options)); }},
    };
}

std::vector<Question<CScheduleOptions>> scheduleQuestions()
{
    using Schedule = CScheduleOptions;
    return {
        {"ToXmlString", [](const Schedule& options) { return options.ToXmlString(); }},
        {"copy", [](const Schedule& options) { return tellSchedule(Schedule(options)); }},
        {"equality", [](const Schedule& options) { return util::toStr(options == otherSchedule()); }},
        {"default", [](const Schedule&) { return tellSchedule(Schedule()); }},
        {"GetRootNodeName", [](const Schedule&) { return CFullBackupOptions::GetRootNodeName(SyntheticFull); }},
    };
}

Operations startOperations()
{
    const Tell<CStartJobScheduleOptions> tell = tellOptions<CStartJobScheduleOptions>;
    const Make<CStartJobScheduleOptions> usual = [] { return otherSchedule().GetJobStartOptions(); };
    const std::string name = "CStartJobScheduleOptions";
    return changing<CStartJobScheduleOptions>(name, start, tell, startChanges()) +
           changing<CStartJobScheduleOptions>(name, start, tell, commonChanges<CStartJobScheduleOptions>()) +
           changing<CStartJobScheduleOptions>(name + ".usual", usual, tell, startChanges()) +
           asking<CStartJobScheduleOptions>(name, usual, questions<CStartJobScheduleOptions>());
}

Operations fullOperations()
{
    const Tell<CFullBackupOptions> tell = tellOptions<CFullBackupOptions>;
    const Make<CFullBackupOptions> usual = [] { return otherSchedule().GetSyntheticFullOptions(); };
    const std::string name = "CFullBackupOptions";
    return changing<CFullBackupOptions>(name, full, tell, fullChanges()) +
           changing<CFullBackupOptions>(name, full, tell, commonChanges<CFullBackupOptions>()) +
           changing<CFullBackupOptions>(name + ".usual", usual, tell, fullChanges()) +
           asking<CFullBackupOptions>(name, usual, questions<CFullBackupOptions>());
}

} // namespace

Operations scheduleOperations()
{
    return startOperations() + fullOperations() +
           changing<CScheduleOptions>("CScheduleOptions", schedule, tellSchedule, scheduleChanges()) +
           asking<CScheduleOptions>("CScheduleOptions", fullSchedule, scheduleQuestions());
}

} // namespace zelmodel_test
