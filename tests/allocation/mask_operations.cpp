#include "operation.h"
#include "samples.h"
#include "schedule_words.h"

namespace zelmodel_test
{
namespace
{

using namespace zelplatform::model::structs;

template <class TMask>
TMask longMask()
{
    return TMask(std::vector<bool>(1000, true));
}

template <class TMask>
std::vector<Change<TMask>> changes()
{
    return {
        {"Reset", [](TMask& mask) { mask.Reset(true); }},
        {"assignedCopy",
         [](TMask& mask) {
             const auto other = longMask<TMask>();
             mask = other;
         }},
        {"assignedMove", [](TMask& mask) { mask = longMask<TMask>(); }},
    };
}

template <class TMask>
std::vector<Question<TMask>> questions()
{
    return {
        {"ToStringVector", [](const TMask& mask) { return mask.ToStringVector(false).front(); }},
        {"ToString", [](const TMask& mask) { return mask.ToString(longText("; "), true); }},
        {"ToLogStr", [](const TMask& mask) { return mask.ToLogStr(false); }},
        {"IsTodayOn", [](const TMask& mask) { return util::toStr(mask.IsTodayOn() == mask.IsTodayOn()); }},
        {"equality", [](const TMask& mask) { return util::toStr(mask == TMask(true)); }},
        {"copy", [](const TMask& mask) { return tellFlags(TMask(mask).GetMask()); }},
    };
}

template <class TMask>
Operations operationsOf(const std::string& name, const Make<TMask>& make)
{
    const Tell<TMask> tell = [](const TMask& mask) { return tellFlags(mask.GetMask()); };
    return changing<TMask>(name, make, tell, changes<TMask>()) +
           changing<TMask>(
               name + ".withoutFlags", [] { return TMask(std::vector<bool>()); }, tell, changes<TMask>()) +
           changing<TMask>(
               name + ".short",
               [] {
                   return TMask({true, false});
               },
               tell, changes<TMask>()) +
           asking<TMask>(name, make, questions<TMask>());
}

std::vector<Question<CMonthMask>> monthQuestions()
{
    return {
        {"operatorNot", [](const CMonthMask& mask) { return tellFlags((!mask).GetMask()); }},
        {"operatorAnd", [](const CMonthMask& mask) { return tellFlags((mask && CMonthMask(true)).GetMask()); }},
        {"GetDayNotFitMonths",
         [](const CMonthMask& mask) {
             return tellFlags(CDayOfMonth::GetDayNotFitMonths(CDayOfMonth(31), mask).GetMask());
         }},
    };
}

std::vector<Question<CWeekMask>> weekQuestions()
{
    return {
        {"ToWeekDays", [](const CWeekMask& mask) { return util::toStr(mask.ToWeekDays().size()); }},
        {"IsAllWeekdaysOn", [](const CWeekMask& mask) { return util::toStr(mask.IsAllWeekdaysOn()); }},
        {"SetDay",
         [](const CWeekMask& mask) {
             auto changed = mask;
             changed.SetDay(datetime::EDayOfWeek::Monday, true);
             return tellFlags(changed.GetMask());
         }},
    };
}

std::vector<Question<Nothing>> dayQuestions()
{
    return {
        {"GetMonthDayStrList", [](const Nothing&) { return CDayOfMonth::GetMonthDayStrList().back(); }},
        {"CheckAndGet", [](const Nothing&) { return util::toStr(CDayOfMonth(15).CheckAndGet(false)); }},
        {"ToTimeStr", [](const Nothing&) { return CScheduleTime(1234567890123, 9876543210987).ToTimeStr(); }},
        {"ToUserFriendlyStr", [](const Nothing&) { return CScheduleTime(12, 34).ToUserFriendlyStr(); }},
        {"Validate",
         [](const Nothing&) {
             CScheduleTime(12, 34).Validate(false);
             return std::string();
         }},
    };
}

} // namespace

Operations maskOperations()
{
    return operationsOf<CWeekMask>("CWeekMask", weekend) + operationsOf<CMonthMask>("CMonthMask", summer) +
           asking<CMonthMask>("CMonthMask", summer, monthQuestions()) +
           asking<CWeekMask>("CWeekMask", weekend, weekQuestions()) + asking("CDayOfMonth", dayQuestions());
}

} // namespace zelmodel_test
