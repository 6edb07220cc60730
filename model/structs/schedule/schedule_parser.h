#pragma once

#include <string>

#include <zelmodel/export.h>
#include <zelmodel/structs/schedule/day_hour_matrix.h>

namespace zelplatform::model::structs
{

/// Fills a window's matrix from interval texts such as "08-17, 20-24", which list the hours that differ from the kind's
/// default.
class ZELMODEL_API ScheduleParser
{
public:
    /// Between the first hour and the one after the last.
    static constexpr const char* RangeSeparator = "-";

    /// A comma and one blank; a comma alone does not separate.
    static constexpr const char* IntervalSeparator = ", ";

    /// Throws a pointer for an unknown kind, as DayHourMatrix does.
    explicit ScheduleParser(EScheduleWindowKind kind);
    ScheduleParser(const ScheduleParser&) = default;
    ScheduleParser(ScheduleParser&&) noexcept = default;
    ScheduleParser& operator=(const ScheduleParser&) = default;
    ScheduleParser& operator=(ScheduleParser&&) noexcept = default;
    virtual ~ScheduleParser();

    /// The value of a listed hour: the kind's own number. Throws a pointer to a new exc::CRuntimeExc for an unknown
    /// kind.
    static unsigned getParsingValue(EScheduleWindowKind kind);

    /// Lists the hours of the intervals on the day, 0..6. The end hour is exclusive, at most 24; an interval that ends
    /// before it starts lists nothing. Throws "Cannot parse a date time interval from the string [%1]." and for numbers
    /// out of range; what was listed before stays listed.
    void parseDay(int day, const std::string& intervals);

    /// A copy of the matrix so far.
    DayHourMatrix getMatrix() const { return m_matrix; }

private:
    DayHourMatrix m_matrix;
    unsigned m_parsingValue;
};

} // namespace zelplatform::model::structs
