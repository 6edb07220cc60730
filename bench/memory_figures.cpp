#include "memory_figures.h"

#include <cstdio>
#include <string>

#include "key_bundle_sample.h"

namespace zelmodel_bench
{
namespace
{

constexpr double Bound = 4;

bool runProbe(std::size_t keySize, double& bundle, double& writing, double& reading)
{
    const std::string command = ZELMODEL_MEMORY_PROBE " " + std::to_string(keySize);
    std::FILE* pipe = popen(command.c_str(), "r");
    if (pipe == nullptr)
        return false;
    const int fields = std::fscanf(pipe, "%lf %lf %lf", &bundle, &writing, &reading);
    return pclose(pipe) == 0 && fields == 3;
}

bool printFigure(const std::string& name, double peak, double bundle)
{
    const double ratio = peak / bundle;
    const bool isWithin = ratio <= Bound;
    std::printf("%-44s %12.0f %12.0f %8.2f %8.2f%s\n", name.c_str(), peak, bundle, ratio, Bound,
                isWithin ? "" : "  above the bound");
    return isWithin;
}

} // namespace

bool printMemoryFigures()
{
    bool isWithinBounds = true;
    std::printf("\n%-44s %12s %12s %8s %8s\n", "figure (bytes of heap at the peak)", "ours", "bundle", "ratio",
                "bound");
    for (const std::size_t keySize : {SymmetricKey, WrappedKey})
    {
        double bundle = 0;
        double writing = 0;
        double reading = 0;
        if (!runProbe(keySize, bundle, writing, reading))
        {
            std::printf("the memory probe failed\n");
            return false;
        }
        const std::string name = " a key bundle of 10000, " + std::to_string(keySize) + "-byte keys";
        isWithinBounds = printFigure("writing" + name, writing, bundle) && isWithinBounds;
        isWithinBounds = printFigure("reading" + name, reading, bundle) && isWithinBounds;
    }
    return isWithinBounds;
}

} // namespace zelmodel_bench
