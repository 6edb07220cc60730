#include <zelplatform/datetime/time_span.h>

namespace datetime
{

void CTimeSpan::getDurationHMS(long& hours, long& minutes, long& seconds) const noexcept
{
    hours = m_seconds / 3600;
    minutes = m_seconds % 3600 / 60;
    seconds = m_seconds % 60;
}

} // namespace datetime
