#include "document_diff.h"

#include <algorithm>
#include <array>
#include <optional>

namespace describe
{
namespace
{

/// A kind whose record is a field of another kind's record.
struct PartRow
{
    EDocumentKind whole;
    EDocumentKind part;
    const char* field;
    const char* words;
};

using Kind = EDocumentKind;

// The managing server's form of a job carries none of its parts.
constexpr std::array<PartRow, 4> Parts{{
    {Kind::AgentJobOptions, Kind::ScheduleOptions, "schedule", "schedule"},
    {Kind::AgentJobOptions, Kind::LoneSchedule, "schedule", "schedule"},
    {Kind::AgentJobOptions, Kind::GfsPolicy, "gfsPolicy", "GFS policy"},
    {Kind::DirectImmutability, Kind::Immutability, "immutabilitySettings", "immutability of backups"},
}};

const PartRow* findPart(Kind whole, Kind part)
{
    const auto* const row = std::find_if(Parts.begin(), Parts.end(),
                                         [&](const PartRow& each) { return each.whole == whole && each.part == part; });
    return row == Parts.end() ? nullptr : row;
}

// Both forms of a job, and both of a schedule, are one record.
Kind recordOf(Kind kind)
{
    switch (kind)
    {
    case Kind::ServerJobOptions: return Kind::AgentJobOptions;
    case Kind::LoneSchedule: return Kind::ScheduleOptions;
    default: return kind;
    }
}

const Node& partOf(const Node& tree, const PartRow& row)
{
    return *std::find_if(tree.children.begin(), tree.children.end(),
                         [&](const Node& child) { return child.name == row.field; });
}

} // namespace

DocumentDiff compareDocuments(const DocumentSide& first, const DocumentSide& second)
{
    if (recordOf(first.kind) == recordOf(second.kind))
        return {true, {}, compareTrees(first.tree, second.tree)};
    if (const auto* row = findPart(first.kind, second.kind))
        return {true, row->words, compareTrees(partOf(first.tree, *row), second.tree)};
    if (const auto* row = findPart(second.kind, first.kind))
        return {true, row->words, compareTrees(first.tree, partOf(second.tree, *row))};
    return {};
}

} // namespace describe
