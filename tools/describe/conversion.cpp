#include "conversion.h"

#include <algorithm>
#include <set>
#include <utility>

#include <zelplatform/exc/exc.h>

#include "document.h"
#include "rewrite.h"

namespace describe
{
namespace
{

using Places = std::set<std::pair<std::string, int>>;

/// Where the fields of a tree were read.
struct ReadPlaces
{
    Places all;
    Places ofFields; ///< without those of groups
};

void collectPlaces(const Node& node, ReadPlaces& places)
{
    if (isWorkedOut(node))
        return;
    if (node.origin.isThere())
        places.all.emplace(node.origin.name, node.origin.line);
    if (node.origin.isThere() && node.children.empty())
        places.ofFields.emplace(node.origin.name, node.origin.line);
    for (const auto& child : node.children)
        collectPlaces(child, places);
}

void collectPlaces(const std::vector<Difference>& differences, Places& places)
{
    for (const auto& difference : differences)
    {
        if (difference.first.children.empty() && difference.first.origin.isThere())
            places.emplace(difference.first.origin.name, difference.first.origin.line);
        collectPlaces(difference.details, places);
    }
}

bool isDefault(const Node& node)
{
    return node.origin.kind == EOrigin::Default || node.isNotCarried;
}

bool isRenamed(const Origin& before, const Origin& after)
{
    return before.isThere() && after.isThere() && (before.kind == EOrigin::Older || before.name != after.name);
}

bool isSamePlace(const Origin& a, const Origin& b)
{
    return a.line == b.line && a.name == b.name;
}

/// Follows the fields of both trees and notes how they are written.
class Writing
{
public:
    explicit Writing(Conversion& conversion) : m_conversion(conversion) {}

    void compareRoots(const Node& before, const Node& after)
    {
        m_labels = {before.label};
        note(Node(), before, after);
        m_labels.clear();
        compare(before, after);
    }

private:
    void compare(const Node& before, const Node& after)
    {
        for (const auto& child : before.children)
        {
            const auto written = std::find_if(after.children.begin(), after.children.end(),
                                              [&](const Node& other) { return other.name == child.name; });
            if (before.isList || written == after.children.end())
                continue;
            m_labels.push_back(child.label);
            note(before, child, *written);
            if (child.value.empty())
                compare(child, *written);
            m_labels.pop_back();
        }
    }

    // What a group and its fields were read from together is told once.
    void note(const Node& parent, const Node& before, const Node& after)
    {
        const bool isField = before.children.empty() || !before.value.empty();
        if (isField && isDefault(before) && after.origin.isThere())
            ++m_conversion.writtenDefaults;
        if (isRenamed(before.origin, after.origin) && !isSamePlace(parent.origin, before.origin))
            m_conversion.renamedFields.push_back({m_labels, before.origin, after.origin.name});
    }

    Conversion& m_conversion;
    std::vector<std::string> m_labels;
};

bool holdSecrets(const Node& node)
{
    return node.secret || std::any_of(node.children.begin(), node.children.end(), holdSecrets);
}

Node readAgain(const std::string& text)
try
{
    return Document(text).describe();
}
catch (const std::exception& cause)
{
    exc::RegenTraceExc("The converted document would be refused.", cause);
}

void dropTold(const Places& told, std::vector<MarkupPart>& parts)
{
    const auto isTold = [&](const MarkupPart& part) {
        return told.count({part.kind == EMarkup::Text ? part.owner : part.name, part.line}) != 0;
    };
    parts.erase(std::remove_if(parts.begin(), parts.end(), isTold), parts.end());
}

MarkupDiff compareMarkupOf(const std::string& text, const Node& tree, const Conversion& conversion)
{
    ReadPlaces read;
    collectPlaces(tree, read);
    auto markup = compareMarkup(text, conversion.text, [&](EMarkup kind, const std::string& name, int line) {
        return (kind == EMarkup::Text ? read.ofFields : read.all).count({name, line}) != 0;
    });
    Places told;
    collectPlaces(conversion.differences, told);
    dropTold(told, markup.lost);
    dropTold(told, markup.respelled);
    return markup;
}

} // namespace

Conversion convert(const std::string& text, EDocumentKind kind, const Node& tree)
{
    Conversion conversion;
    conversion.text = rewrite(text, kind, tree);
    if (conversion.text.empty() || conversion.text.back() != '\n')
        conversion.text += '\n';
    const auto written = readAgain(conversion.text);
    conversion.holdsSecrets = holdSecrets(written);
    conversion.differences = compareTrees(tree, written).differences;
    conversion.markup = compareMarkupOf(text, tree, conversion);
    Writing(conversion).compareRoots(tree, written);
    return conversion;
}

} // namespace describe
