#include "sweep_case.h"

#include <zelmodel/structs/schedule/week_day_number.h>

namespace sweep
{

using zelplatform::model::structs::EWeekDayNumber;

std::vector<Case> scheduleCases()
{
    return {
        {"EWeekDayNumber",
         writer(&EWeekDayNumber::ToStr),
         reader(&EWeekDayNumber::FromStr),
         Letters::Any,
         {{1, "First"}, {2, "Second"}, {3, "Third"}, {4, "Fourth"}, {5, "Last"}, {6, "Every"}},
         {},
         "Unable to convert EWeekDayNumber::type [%1] to string.",
         "Value [%1] is not a valid week number."},
    };
}

} // namespace sweep
