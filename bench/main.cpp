#include <cstdio>
#include <string>
#include <vector>

#include <benchmark/benchmark.h>

#include "load_figures.h"
#include "memory_figures.h"
#include "ratio_table.h"

// Runs every benchmark several times in random order, so that both sides of a ratio see the same machine, and ends with
// the table of ratios, the memory of key bundles and the figures of loading the library.
int main(int argc, char** argv)
{
    std::vector<std::string> arguments(argv, argv + argc);
    arguments.insert(arguments.begin() + 1, {"--benchmark_repetitions=9", "--benchmark_enable_random_interleaving=true",
                                             "--benchmark_report_aggregates_only=true", "--benchmark_min_time=0.05"});
    std::vector<char*> pointers;
    for (auto& argument : arguments)
        pointers.push_back(argument.data());
    int count = static_cast<int>(pointers.size());
    benchmark::Initialize(&count, pointers.data());
    if (benchmark::ReportUnrecognizedArguments(count, pointers.data()))
        return 2;

    zelmodel_bench::RatioReporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
    const bool isFastEnough = reporter.printTable();
    const bool isLeanEnough = zelmodel_bench::printMemoryFigures();
    const bool isSmallEnough = zelmodel_bench::printLoadFigures();
    std::printf("%s\n", isFastEnough && isLeanEnough && isSmallEnough ? "all figures within their bounds"
                                                                      : "figures above their bounds");
    return 0;
}
