#pragma once

#include <ctime>

namespace zelmodel_test
{

/// Processor time of this process since the object was made: what else the machine does plays no part in it.
class ProcessorTime
{
public:
    double seconds() const noexcept { return static_cast<double>(std::clock() - m_begin) / CLOCKS_PER_SEC; }

private:
    std::clock_t m_begin = std::clock();
};

} // namespace zelmodel_test
