#pragma once

#include <string>
#include <vector>

#include "node.h"

namespace describe
{

enum class EDifference
{
    Changed,
    OnlyInFirst,
    OnlyInSecond,
};

/// A field in which two trees differ.
struct Difference
{
    EDifference kind = EDifference::Changed;

    /// The names of the fields from below the root down to this one, and their labels.
    std::vector<std::string> names;
    std::vector<std::string> labels;

    /// The field in both trees; one of them is empty when the other tree alone has it.
    Node first;
    Node second;

    /// Of a group whose words tell a change as a whole: what exactly changed.
    std::vector<Difference> details;
};

struct TreeDiff
{
    std::vector<Difference> differences;

    /// The labels of fields that only the other document's form can carry. They are no differences.
    std::vector<std::string> notCarriedByFirst;
    std::vector<std::string> notCarriedBySecond;

    bool isSame() const noexcept { return differences.empty(); }
};

/// Whether the field stands nowhere in the document: it was worked out from others, or lists what was not read.
bool isWorkedOut(const Node& node);

/// Compares two trees of one kind of record field by field. Fields are found by their names, items of lists by what
/// they hold (see alignLists); what counts is the value, so that neither the layout nor the spelling plays a part.
/// What was worked out from other fields is left out. Secrets are compared and stay secrets.
TreeDiff compareTrees(const Node& first, const Node& second);

} // namespace describe
