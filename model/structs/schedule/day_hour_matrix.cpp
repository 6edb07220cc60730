#include <zelmodel/structs/schedule/day_hour_matrix.h>

#include <zelplatform/exc/exc.h>

namespace zelplatform::model::structs
{
namespace
{

constexpr int DaysOfWeek = 7;
constexpr int HoursOfDay = 24;

std::size_t cellIndex(int day, int hour)
{
    if (day < 0 || day >= DaysOfWeek || hour < 0 || hour >= HoursOfDay)
        throw exc::CRuntimeExc("Backup window matrix indices out of range.");
    return static_cast<std::size_t>(day) * HoursOfDay + static_cast<std::size_t>(hour);
}

} // namespace

DayHourMatrix::DayHourMatrix(EScheduleWindowKind kind) : m_kind(kind)
{
    m_cells.assign(DaysOfWeek * HoursOfDay, getDefaultValue());
}

DayHourMatrix::~DayHourMatrix() = default;

// Thrown as a pointer and with empty brackets, kept on purpose: see the header.
unsigned DayHourMatrix::getDefaultValue() const
{
    switch (m_kind)
    {
    case Enabled: return 1;
    case Disabled: return 0;
    default: throw new exc::CRuntimeExc("An unsupported schedule window kind occurred: [%1].", "");
    }
}

unsigned& DayHourMatrix::operator()(int day, int hour)
{
    return m_cells[cellIndex(day, hour)];
}

unsigned DayHourMatrix::operator()(int day, int hour) const
{
    return m_cells[cellIndex(day, hour)];
}

} // namespace zelplatform::model::structs
