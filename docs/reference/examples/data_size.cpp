#include <iomanip>
#include <iostream>

#include <zelmodel/data_size.h>

using zelplatform::CSize;
using zelplatform::EDataSizeUnit;

int main()
{
    // What people write, and what a program counts.
    const auto quota = CSize::FromStr("1.5 TB");
    const CSize used(1'234'567'890'123UL);
    const CSize left = quota - used;
    std::cout << quota.ToNBytesStr() << " allowed, " << used.ToNBytesStr() << " used, " << left.ToNBytesStr()
              << " left\n";

    // A size is its number of bytes wherever one is wanted.
    const unsigned long percent = used * 100 / static_cast<unsigned long>(quota);
    std::cout << percent << " % of " << quota << " bytes\n";

    // In a column of six characters, and as a number with its unit.
    auto unit = EDataSizeUnit::B;
    const double number = used.ToNBytes(unit);
    std::cout << '[' << used.ToStr(6, true) << "] " << std::fixed << std::setprecision(3) << number << ' '
              << EDataSizeUnit::toStr(unit) << '\n';

    try
    {
        CSize::FromStr("10 parsecs");
    }
    catch (const std::exception& refusal)
    {
        std::cout << refusal.what() << '\n';
    }
}
