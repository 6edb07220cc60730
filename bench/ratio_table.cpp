#include "ratio_table.h"

#include <cstdio>
#include <utility>

namespace zelmodel_bench
{
namespace
{

std::vector<Figure>& figures()
{
    static std::vector<Figure> all;
    return all;
}

} // namespace

bool addFigure(Figure figure)
{
    figures().push_back(std::move(figure));
    return true;
}

RatioReporter::RatioReporter() : ConsoleReporter(OO_Tabular) {}

void RatioReporter::ReportRuns(const std::vector<Run>& runs)
{
    ConsoleReporter::ReportRuns(runs);
    for (const auto& run : runs)
    {
        if (run.run_type == Run::RT_Aggregate && run.aggregate_name == "median")
            m_medians[run.run_name.function_name + (run.run_name.args.empty() ? "" : "/" + run.run_name.args)] =
                run.GetAdjustedCPUTime();
    }
}

bool RatioReporter::printTable() const
{
    bool isWithinBounds = true;
    std::printf("\n%-44s %12s %12s %8s %8s\n", "figure (median CPU time, ns)", "ours", "peer", "ratio", "bound");
    for (const auto& figure : figures())
    {
        const auto ours = m_medians.find(figure.ours);
        const auto peer = m_medians.find(figure.peer);
        if (ours == m_medians.end() || peer == m_medians.end())
            continue;
        const double ratio = ours->second / peer->second;
        const bool isWithin = ratio <= figure.bound;
        isWithinBounds = isWithinBounds && isWithin;
        std::printf("%-44s %12.1f %12.1f %8.2f %8.2f%s\n", figure.name.c_str(), ours->second, peer->second, ratio,
                    figure.bound, isWithin ? "" : "  above the bound");
    }
    return isWithinBounds;
}

} // namespace zelmodel_bench
