#include "ignored.h"

#include <algorithm>
#include <string_view>
#include <unordered_map>
#include <utility>

#include "document_names.h"
#include "nearest_name.h"
#include "words.h"

namespace describe
{
namespace
{

using xmlpp::CXmlNode;
using xmlpp::ELookup;
using xmlpp::SLookup;

using Names = std::vector<std::string>;

/// What was asked of one element.
struct Asked
{
    Names attributes;
    Names firstChildren; ///< names of which the first child counts
    Names allChildren;   ///< names of which every child counts
    Names missingAttributes;
    Names missingChildren;
    bool isEveryChild = false;
    bool isText = false;
};

/// A part that belongs to a form and that its readers do not look at.
struct UnreadRow
{
    const char* owner;
    EPart part;
    const char* name;
};

constexpr UnreadRow UnreadParts[] = {
    {job_names::JobOptions, EPart::Attribute, job_names::Version},
    {job_names::JobOptions, EPart::Attribute, job_names::Schedule},
    {job_names::JobOptions, EPart::Attribute, job_names::IndexAll},
    {job_names::JobOptions, EPart::Attribute, job_names::IndexOnly},
    {job_names::JobOptions, EPart::Attribute, job_names::IndexExcept},
    {job_names::JobOptions, EPart::Element, job_names::EnableDeletedVmDataRetention},
    {job_names::JobOptionsRoot, EPart::Element, job_names::RetainDays},
    {repository_names::CloudContainerRoot, EPart::Attribute, repository_names::ContainerName},
    {transform_names::FullTransformSpec, EPart::Attribute, transform_names::OperationType},
    {"Record", EPart::Attribute, "style"},
    {"Record", EPart::Attribute, "visibility"},
};

bool holds(const Names& names, std::string_view name)
{
    return std::find(names.begin(), names.end(), name) != names.end();
}

void add(Names& names, const std::string& name)
{
    if (!holds(names, name))
        names.push_back(name);
}

bool isNamespace(std::string_view attribute)
{
    return attribute == "xmlns" || attribute.substr(0, 6) == "xmlns:";
}

bool isUnreadPart(EPart part, std::string_view owner, std::string_view name)
{
    return std::any_of(std::begin(UnreadParts), std::end(UnreadParts), [&](const UnreadRow& row) {
        return row.part == part && owner == row.owner && name == row.name;
    });
}

/// Walks the document beside the questions.
class Search
{
public:
    explicit Search(const std::vector<SLookup>& lookups)
    {
        for (const auto& lookup : lookups)
            take(lookup);
    }

    void visit(const CXmlNode& node)
    {
        if (isFull())
            return;
        const auto& asked = m_asked[node.GetId()];
        const auto owner = node.GetName();
        visitAttributes(node, asked, owner);
        if (!asked.isText && node.GetTextLine() != 0)
            keep({EPart::Text, "", owner, node.GetTextLine(), ""});
        visitChildren(node, asked, owner);
    }

    std::vector<IgnoredPart> parts() && { return std::move(m_parts); }

private:
    void take(const SLookup& lookup)
    {
        auto& asked = m_asked[lookup.node.GetId()];
        switch (lookup.kind)
        {
        case ELookup::Attribute: add(lookup.isFound ? asked.attributes : asked.missingAttributes, lookup.name); break;
        case ELookup::FirstChild: add(lookup.isFound ? asked.firstChildren : asked.missingChildren, lookup.name); break;
        case ELookup::NamedChildren: add(asked.allChildren, lookup.name); break;
        case ELookup::AllChildren: asked.isEveryChild = true; break;
        case ELookup::Text: asked.isText = true; break;
        case ELookup::Visit: break;
        }
    }

    void visitAttributes(const CXmlNode& node, const Asked& asked, const std::string& owner)
    {
        for (const auto& attribute : node.GetAttributes())
        {
            if (isFull() || holds(asked.attributes, attribute.name) || isNamespace(attribute.name) ||
                isUnreadPart(EPart::Attribute, owner, attribute.name))
                continue;
            const std::string name(attribute.name);
            keep({EPart::Attribute, name, owner, attribute.line, nearestName(name, asked.missingAttributes)});
        }
    }

    void visitChildren(const CXmlNode& node, const Asked& asked, const std::string& owner)
    {
        Names taken;
        for (const auto& child : node.GetChildNodes())
        {
            if (isFull())
                return;
            const auto name = child.GetName();
            const bool isFirst = holds(asked.firstChildren, name) && !holds(taken, name);
            // What a program hands to a reader was not asked of the node above it.
            if (isFirst || asked.isEveryChild || holds(asked.allChildren, name) || m_asked.count(child.GetId()) != 0)
            {
                add(taken, name);
                visit(child);
            }
            else if (!isUnreadPart(EPart::Element, owner, name))
                keepElement(child, asked, owner);
        }
    }

    void keepElement(const CXmlNode& child, const Asked& asked, const std::string& owner)
    {
        const auto name = child.GetName();
        IgnoredPart part{EPart::Element, name, owner, child.GetLine(), ""};
        part.isRepeated = holds(asked.firstChildren, name);
        if (!part.isRepeated)
            part.nearest = nearestName(name, asked.missingChildren);
        keep(std::move(part));
    }

    void keep(IgnoredPart part)
    {
        if (!isFull())
            m_parts.push_back(std::move(part));
    }

    // No more parts are listed then: they need not be found, nor names that are near theirs.
    bool isFull() const noexcept { return m_parts.size() == MostIgnoredParts; }

    std::unordered_map<const void*, Asked> m_asked;
    std::vector<IgnoredPart> m_parts;
};

const char* kindOf(EPart part)
{
    switch (part)
    {
    case EPart::Attribute: return "attribute";
    case EPart::Element: return "element";
    case EPart::Text: break;
    }
    return "text";
}

Node describePart(const IgnoredPart& part)
{
    const auto remedy = tellRemedy(part);
    auto node = makeField("part", "", part.name, tellPart(part) + (remedy.empty() ? "" : ": " + remedy),
                          {EOrigin::Document, part.line, part.name, ""});
    node.children.push_back(makeDetail("kind", "Kind", kindOf(part.part), kindOf(part.part)));
    node.children.push_back(makeDetail("owner", "Owner", part.owner, textOr(part.owner, "none")));
    node.children.push_back(makeDetail("nearest", "Nearest name", part.nearest, textOr(part.nearest, "none")));
    return node;
}

} // namespace

std::vector<IgnoredPart> findIgnored(const CXmlNode& scope, const std::vector<SLookup>& lookups)
{
    const xmlpp::CLookupPause pause;
    Search search(lookups);
    search.visit(scope);
    return std::move(search).parts();
}

std::string tellPart(const IgnoredPart& part)
{
    return kindOf(part.part) + (part.name.empty() ? "" : ' ' + part.name) +
           (part.owner.empty() ? " at the top" : " of " + part.owner);
}

std::string tellRemedy(const IgnoredPart& part)
{
    if (part.isRepeated)
        return "only the first one counts";
    return part.nearest.empty() ? "" : "did you mean " + part.nearest + '?';
}

Node describeIgnored(const std::vector<IgnoredPart>& parts)
{
    const auto count = parts.size() < MostIgnoredParts ? countOf(parts.size(), "part")
                                                       : countOf(parts.size(), "part") + ", more are not listed";
    auto node = makeField("ignored", "Ignored by the reader", "", count);
    node.isList = true;
    for (const auto& part : parts)
        node.children.push_back(describePart(part));
    return node;
}

} // namespace describe
