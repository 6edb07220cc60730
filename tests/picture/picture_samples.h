#pragma once

#include <memory>
#include <string>
#include <vector>

#include "describe/document.h"
#include "picture/schedule_picture.h"
#include "support/schedule_samples.h"
#include "tools/local_zone.h"
#include "when/evaluation.h"
#include "when/next_days.h"

namespace zelmodel_test
{

/// A schedule at 21:00, and the days of its full backups; every mask names days, none of them turns a part off.
struct SampleSchedule
{
    std::string days = "Mon,Fri";
    std::string activeDays;
    std::string syntheticDays;
};

inline zelplatform::model::structs::CScheduleOptions scheduleOf(const SampleSchedule& sample)
{
    using zelplatform::model::structs::CWeekMask;
    zelplatform::model::structs::CScheduleOptions schedule;
    schedule.GetJobStartOptions().SetWeekly(21, 0, CWeekMask::FromString(sample.days, ','));
    if (!sample.activeDays.empty())
        schedule.GetActiveFullOptions().SetWeekly(CWeekMask::FromString(sample.activeDays, ','));
    if (!sample.syntheticDays.empty())
        schedule.GetSyntheticFullOptions().SetWeekly(CWeekMask::FromString(sample.syntheticDays, ','));
    return schedule;
}

/// A document of the window that is closed on working days from 08:00 to 17:00, and else open.
constexpr const char* OfficeHoursClosed = R"(<ScheduleWindow Minutes="0" Kind="0"><Days>)"
                                          R"(<Monday Intervals="08-17"/><Tuesday Intervals="08-17"/>)"
                                          R"(<Wednesday Intervals="08-17"/><Thursday Intervals="08-17"/>)"
                                          R"(<Friday Intervals="08-17"/></Days></ScheduleWindow>)";

/// The picture of so many months from a first day "2026-01-01" on, in UTC. The window is a document, or empty.
inline picture::SchedulePicture pictureOf(const zelplatform::model::structs::CScheduleOptions& schedule,
                                          const char* first, std::size_t months, const std::string& window = {})
{
    const LocalZone zone("UTC");
    const zelplatform::model::CDate date(at(first));
    std::shared_ptr<zelplatform::model::structs::BackupWindow> hours;
    if (!window.empty())
        hours = describe::Document(window).readWindow();
    const when::Evaluation evaluation(schedule, hours.get(), date);
    picture::SchedulePicture picture{"job.xml", "a span", when::tellSchedule(evaluation, date), {}, {}, {}};
    picture.facts = picture::scheduleFacts(describe::Document(textOf(schedule)).describe());
    picture.months = when::planMonths(evaluation, date, months);
    if (hours)
        picture.window = picture::makeWindowPart("window.xml", describe::Document(window).describe(),
                                                 when::planWeek(*hours, picture.months));
    return picture;
}

/// The picture of a window alone.
inline picture::SchedulePicture pictureOfWindow(const std::string& window)
{
    const describe::Document document(window);
    picture::SchedulePicture picture;
    picture.name = "window.xml";
    picture.window =
        picture::makeWindowPart("window.xml", document.describe(), when::planWeek(*document.readWindow(), {}));
    return picture;
}

} // namespace zelmodel_test
