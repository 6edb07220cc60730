#pragma once

#include <vector>

#include <zelmodel/export.h>
#include <zelmodel/structs/schedule/schedule_window_kind.h>

namespace zelplatform::model::structs
{

/// The week as 7 x 24 hour cells, Sunday first; 1 is open and 0 is closed.
class ZELMODEL_API DayHourMatrix
{
public:
    /// Every cell has the kind's default. A kind that is neither Enabled nor Disabled throws a pointer to a new
    /// exc::CRuntimeExc, which handlers of std::exception& do not catch: on purpose; whoever catches it deletes it.
    explicit DayHourMatrix(EScheduleWindowKind kind);
    DayHourMatrix(const DayHourMatrix&) = default;
    DayHourMatrix(DayHourMatrix&&) noexcept = default;
    DayHourMatrix& operator=(const DayHourMatrix&) = default;
    DayHourMatrix& operator=(DayHourMatrix&&) noexcept = default;
    virtual ~DayHourMatrix();

    /// The kind as it was given.
    EScheduleWindowKind getScheduleWindowKind() const noexcept { return m_kind; }

    /// The cell value of an hour that no text lists: 1 for Enabled, 0 for Disabled. Throws a pointer as the constructor
    /// does.
    unsigned getDefaultValue() const;

    /// The cell of a day 0..6 and an hour 0..23; "Backup window matrix indices out of range." otherwise.
    unsigned& operator()(int day, int hour);
    unsigned operator()(int day, int hour) const;

private:
    std::vector<unsigned> m_cells; ///< first: when copying them fails, the kind is not assigned either
    EScheduleWindowKind m_kind;
};

} // namespace zelplatform::model::structs
