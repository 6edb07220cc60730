#include "tree_diff.h"

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <utility>

#include "list_alignment.h"

namespace describe
{
namespace
{

/// The way from the root to a field.
struct Path
{
    std::vector<std::string> names;
    std::vector<std::string> labels;

    Path to(const Node& child) const
    {
        auto path = *this;
        path.names.push_back(child.name);
        path.labels.push_back(child.label);
        return path;
    }
};

// A field with a value and children tells the parts of its value in them.
bool isGroup(const Node& node)
{
    return node.isList || (!node.children.empty() && node.value.empty());
}

bool isSameValue(const Node& a, const Node& b)
{
    return a.isComparedByWords && b.isComparedByWords ? a.words == b.words : a.value == b.value;
}

bool tellAsWholes(const Node& a, const Node& b)
{
    return !a.words.empty() && !b.words.empty() && a.words != b.words;
}

Node withoutChildren(const Node& node)
{
    auto copy = node;
    copy.children.clear();
    return copy;
}

std::vector<std::string> keysOf(const Node& list)
{
    std::vector<std::string> keys;
    for (const auto& item : list.children)
        keys.push_back(item.value);
    return keys;
}

const Node* findChild(const Node& node, const std::string& name)
{
    const auto found =
        std::find_if(node.children.begin(), node.children.end(), [&](const Node& child) { return child.name == name; });
    return found == node.children.end() ? nullptr : &*found;
}

void append(std::vector<Difference>& to, std::vector<Difference> from)
{
    std::move(from.begin(), from.end(), std::back_inserter(to));
}

class Comparison
{
public:
    void compare(const Node& a, const Node& b, const Path& path, std::vector<Difference>& found);

    std::vector<std::string> notCarriedByFirst;
    std::vector<std::string> notCarriedBySecond;

private:
    void compareGroups(const Node& a, const Node& b, const Path& path, std::vector<Difference>& found);
    void compareFields(const Node& a, const Node& b, const Path& path, std::vector<Difference>& details,
                       std::vector<Difference>& others);
    void compareItems(const Node& a, const Node& b, const Path& path, std::vector<Difference>& found);
    void addOnly(EDifference kind, const Node& node, const Path& path, std::vector<Difference>& found);
};

void Comparison::addOnly(EDifference kind, const Node& node, const Path& path, std::vector<Difference>& found)
{
    if (isWorkedOut(node))
        return;
    if (isGroup(node) && node.words.empty())
    {
        for (const auto& child : node.children)
            addOnly(kind, child, path.to(child), found);
        return;
    }
    Difference difference{kind, path.names, path.labels, {}, {}, {}};
    (kind == EDifference::OnlyInFirst ? difference.first : difference.second) = node;
    found.push_back(std::move(difference));
}

void Comparison::compareItems(const Node& a, const Node& b, const Path& path, std::vector<Difference>& found)
{
    std::size_t nextOfA = 0;
    std::size_t nextOfB = 0;
    const auto addUpTo = [&](std::size_t endOfA, std::size_t endOfB) {
        for (; nextOfA < endOfA; ++nextOfA)
            addOnly(EDifference::OnlyInFirst, a.children[nextOfA], path.to(a.children[nextOfA]), found);
        for (; nextOfB < endOfB; ++nextOfB)
            addOnly(EDifference::OnlyInSecond, b.children[nextOfB], path.to(b.children[nextOfB]), found);
    };
    for (const auto& [inA, inB] : alignLists(keysOf(a), keysOf(b)))
    {
        addUpTo(inA, inB);
        compare(a.children[nextOfA], b.children[nextOfB], path.to(a.children[nextOfA]), found);
        ++nextOfA;
        ++nextOfB;
    }
    addUpTo(a.children.size(), b.children.size());
}

void Comparison::compareFields(const Node& a, const Node& b, const Path& path, std::vector<Difference>& details,
                               std::vector<Difference>& others)
{
    for (const auto& child : a.children)
    {
        auto& found = child.isDetail ? details : others;
        if (const auto* other = findChild(b, child.name))
            compare(child, *other, path.to(child), other->isDetail ? found : others);
        else
            addOnly(EDifference::OnlyInFirst, child, path.to(child), found);
    }
    for (const auto& child : b.children)
    {
        if (findChild(a, child.name) == nullptr)
            addOnly(EDifference::OnlyInSecond, child, path.to(child), child.isDetail ? details : others);
    }
}

void Comparison::compareGroups(const Node& a, const Node& b, const Path& path, std::vector<Difference>& found)
{
    // At the top the words tell the form of the document, which is no difference.
    const bool isTold = !path.names.empty() && tellAsWholes(a, b);
    std::vector<Difference> details;
    std::vector<Difference> others;
    if (a.isList && b.isList)
        compareItems(a, b, path, details);
    else
        compareFields(a, b, path, isTold ? details : others, others);
    if (isTold && !details.empty())
        found.push_back({EDifference::Changed, path.names, path.labels, withoutChildren(a), withoutChildren(b),
                         std::move(details)});
    else
        append(found, std::move(details));
    append(found, std::move(others));
}

void Comparison::compare(const Node& a, const Node& b, const Path& path, std::vector<Difference>& found)
{
    if (a.isNotCarried || b.isNotCarried)
    {
        if (!b.isNotCarried && !isWorkedOut(b))
            notCarriedByFirst.push_back(b.label);
        if (!a.isNotCarried && !isWorkedOut(a))
            notCarriedBySecond.push_back(a.label);
        return;
    }
    if (isWorkedOut(a) || isWorkedOut(b))
        return;
    // Where one side alone is a group, the words tell the whole of it, if it has any.
    const bool isWhole = isGroup(a) != isGroup(b) && tellAsWholes(a, b);
    if ((isGroup(a) || isGroup(b)) && !isWhole)
        return compareGroups(a, b, path, found);
    if (isWhole || !isSameValue(a, b))
        found.push_back({EDifference::Changed, path.names, path.labels, a, b, {}});
}

} // namespace

bool isWorkedOut(const Node& node)
{
    return (node.children.empty() || node.isList) && node.origin.kind == EOrigin::None;
}

TreeDiff compareTrees(const Node& first, const Node& second)
{
    Comparison comparison;
    TreeDiff diff;
    comparison.compare(first, second, Path(), diff.differences);
    diff.notCarriedByFirst = std::move(comparison.notCarriedByFirst);
    diff.notCarriedBySecond = std::move(comparison.notCarriedBySecond);
    return diff;
}

} // namespace describe
