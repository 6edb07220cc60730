#include "operation.h"
#include "samples.h"
#include "schedule_words.h"

namespace zelmodel_test
{
namespace
{

using namespace zelplatform::model::structs;

DayHourMatrix office()
{
    return officeHours().getMatrix();
}

DayHourMatrix givenAway()
{
    auto matrix = office();
    const auto taken = std::move(matrix);
    return matrix;
}

ScheduleParser parser()
{
    ScheduleParser made(Disabled);
    made.parseDay(1, "01-02");
    return made;
}

// Hours of intervals before the failure stay listed, on purpose; listing them again is no change.
Operations parserOperations()
{
    const Tell<ScheduleParser> tell = [](const ScheduleParser& made) { return tellMatrix(made.getMatrix()); };
    return changing<ScheduleParser>(
               "ScheduleParser", parser, tell,
               {{"parseDay", [](ScheduleParser& made) { made.parseDay(2, "08-12, 13-17, 20-24"); }}},
               EGuarantee::Valid) +
           changing<ScheduleParser>("ScheduleParser", parser, tell, {{"assignedCopy", [](ScheduleParser& made) {
                                                                          const ScheduleParser other(Enabled);
                                                                          made = other;
                                                                      }}});
}

Operations matrixOperations()
{
    const std::vector<Change<DayHourMatrix>> changes{
        {"assignedCopy",
         [](DayHourMatrix& matrix) {
             const DayHourMatrix other(Enabled);
             matrix = other;
         }},
    };
    return changing<DayHourMatrix>("DayHourMatrix", office, tellMatrix, changes) +
           changing<DayHourMatrix>(
               "DayHourMatrix.givenAway", givenAway,
               [](const DayHourMatrix& matrix) { return util::toStr(matrix.getScheduleWindowKind()); }, changes);
}

std::vector<Question<BackupWindow>> questions()
{
    const datetime::CDateTime monday(1710147600, true); // 2024-03-11 09:00:00
    return {
        {"isWindowOpen", [monday](const BackupWindow& window) { return util::toStr(window.isWindowOpen(monday)); }},
        {"getWindowClosingTime",
         [monday](const BackupWindow& window) {
             return util::toStr(window.getWindowClosingTime(monday).value().toUnixTime());
         }},
        {"getIntervals", [](const BackupWindow& window) { return window.getIntervals(1); }},
        {"copy", [](const BackupWindow& window) { return tellWindow(BackupWindow(window)); }},
        {"constructed", [](const BackupWindow&) { return tellWindow(BackupWindow(DayHourMatrix(Enabled), 7)); }},
    };
}

} // namespace

Operations windowOperations()
{
    return parserOperations() + matrixOperations() +
           changing<BackupWindow>("BackupWindow", officeHours, tellWindow,
                                  {{"assignedCopy",
                                    [](BackupWindow& window) {
                                        const BackupWindow other(DayHourMatrix(Enabled), 7);
                                        window = other;
                                    }}}) +
           asking<BackupWindow>("BackupWindow", officeHours, questions());
}

} // namespace zelmodel_test
