#pragma once

#include <map>
#include <string>
#include <vector>

#include <benchmark/benchmark.h>

namespace zelmodel_bench
{

/// A figure of ours beside its peer: two benchmarks of one run, and the ratio of their times that is not to be
/// exceeded.
struct Figure
{
    std::string name;
    std::string ours;
    std::string peer;
    double bound;
};

/// Registers a figure; both benchmarks are registered under their names elsewhere.
bool addFigure(Figure figure);

/// Prints what the console reporter prints and keeps the medians for the table of ratios.
class RatioReporter : public benchmark::ConsoleReporter
{
public:
    RatioReporter();

    void ReportRuns(const std::vector<Run>& runs) override;

    /// Prints one line for each figure and tells whether all are within their bounds.
    bool printTable() const;

private:
    std::map<std::string, double> m_medians;
};

} // namespace zelmodel_bench
