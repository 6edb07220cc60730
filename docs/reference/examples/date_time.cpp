#include <iostream>

#include <zelmodel/date_time.h>

using namespace zelplatform::model;
using datetime::CDateTime;

namespace
{

/// The clock that the answers depend on: the machine's in a program, a fixed one in a test.
class FixedClock : public ITimeManager
{
public:
    CDateTimeEx GetCurrentTime() const override
    {
        const auto utc = CDateTime::fromString("2024-03-07 23:30:00", "%Y-%m-%d %H:%M:%S");
        return CDateTimeEx(utc.toUnixTime(), 3600); // where it is already the next day
    }
};

} // namespace

int main()
{
    const auto now = FixedClock().GetCurrentTime();
    std::cout << "UTC " << CDate(now.getUtcTime()).toString() << ", here " << CDate(now.getLocalTime()).toString()
              << '\n';

    // How old a restore point is.
    const CDateTimeEx made(1709500000, 3600);
    const auto age = now - made;
    std::cout << "made " << made.getLocalTime().toStdString("%Y-%m-%d %H:%M") << ", " << age.getTotalSeconds() / 86400
              << " days old" << (age > CTimeSpanEx::fromDays(7) ? ": too old" : "") << '\n';

    // A month after the last day of January there is no such day.
    const auto january = CDateTime::fromString("31.01.2024", "%d.%m.%Y");
    const auto february = CDateTimeHelper::BasicDateAdvance(january, EDateUnit::Month, 1);
    std::cout << CDate(february).toString() << ", week " << CDateTimeHelper::getSennightOfMonth(february, false)
              << " of its month\n";
}
