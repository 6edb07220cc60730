#include "load_figures.h"

#include <algorithm>
#include <cstdio>
#include <sstream>
#include <string>
#include <vector>

namespace zelmodel_bench
{
namespace
{

constexpr int Processes = 21;
constexpr double TimeBoundUs = 150;
constexpr double MemoryBoundKib = 64;

double median(std::vector<double> values)
{
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

// The probe prints microseconds and kibibytes.
bool runProbe(double& microseconds, double& kibibytes)
{
    std::FILE* pipe = popen(ZELMODEL_LOAD_PROBE, "r");
    if (pipe == nullptr)
        return false;
    const int fields = std::fscanf(pipe, "%lf %lf", &microseconds, &kibibytes);
    return pclose(pipe) == 0 && fields == 2;
}

} // namespace

bool printLoadFigures()
{
    std::vector<double> times;
    std::vector<double> sizes;
    for (int i = 0; i < Processes; ++i)
    {
        double microseconds = 0;
        double kibibytes = 0;
        if (!runProbe(microseconds, kibibytes))
        {
            std::printf("the load probe failed\n");
            return false;
        }
        times.push_back(microseconds);
        sizes.push_back(kibibytes);
    }
    std::printf("%-44s %12.1f us                     %8.0f\n", "loading the library, time", median(times), TimeBoundUs);
    std::printf("%-44s %12.1f KiB private            %8.0f\n", "loading the library, memory", median(sizes),
                MemoryBoundKib);
    return median(times) <= TimeBoundUs && median(sizes) <= MemoryBoundKib;
}

} // namespace zelmodel_bench
