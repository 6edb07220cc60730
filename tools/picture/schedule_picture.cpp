#include "schedule_picture.h"

#include <utility>

#include "describe/find_field.h"
#include "describe/text_renderer.h"

namespace picture
{
namespace
{

using describe::Node;

Fact factOf(const Node& field)
{
    return {field.label, describe::shownWords(field, {})};
}

} // namespace

std::vector<Fact> scheduleFacts(const Node& document)
{
    std::vector<Fact> facts;
    for (const auto* name : {"jobStart", "activeFull", "syntheticFull"})
    {
        if (const auto* field = describe::findField(document, name))
            facts.push_back(factOf(*field));
    }
    return facts;
}

WindowPart makeWindowPart(std::string name, const Node& document, when::PlannedWeek week)
{
    WindowPart part{std::move(name), describe::shownWords(document, {}), {}, std::move(week)};
    for (const auto& field : document.children)
    {
        if (!field.isDetail)
            part.facts.push_back(factOf(field));
    }
    return part;
}

} // namespace picture
