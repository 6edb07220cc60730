#include "field.h"

#include <string>

#include <zelplatform/util/util.h>

#include "describe/words.h"
#include "tellers.h"

namespace dump
{
namespace
{

Field tellValue(const Span& span, std::string_view bytes, const Visibility& visibility)
{
    Field field;
    field.node = describe::makeField(span.row->name, span.row->label, "", "");
    const auto content = span.contentIn(bytes);
    field.missing = span.announced - content.size();
    const bool shows = isShown(span, bytes, visibility);
    if (span.isCut())
        field.node.words =
            "(" + util::toStr(content.size()) + " of " + describe::countOf(span.announced, "byte") + " are there)";
    else if (shows)
        span.row->tell(content, field.node);
    else
        field.node.words = hiddenBytes(content.size());
    field.node.secret = !span.isCut() && span.announced != 0 && (!shows || span.row->shown == EShown::Secret);
    if (span.row->document != nullptr && visibility.isRead)
        field.document = span.row->document(std::string(content));
    return field;
}

Field tellGroup(const Span& span, std::string_view bytes, const Visibility& visibility)
{
    Field field;
    field.node = describe::makeField(span.row->name, span.row->label, "", "");
    field.node.isList = span.isList;
    field.fields = tellSpans(span.children, bytes, visibility);
    std::size_t number = 0;
    for (auto& item : field.fields)
    {
        if (span.isList)
            item.node.label += ' ' + util::toStr(++number);
    }
    return field;
}

} // namespace

bool isShown(const Span& span, std::string_view bytes, const Visibility& visibility)
{
    if (visibility.showsSecrets || span.announced == 0)
        return true;
    switch (span.row->shown)
    {
    case EShown::Always: return true;
    case EShown::Known: return visibility.isSure || canBeGuid(span.contentIn(bytes));
    case EShown::WhenSure: return visibility.isSure;
    case EShown::Secret: break;
    }
    return false;
}

std::string hiddenBytes(std::size_t count)
{
    return "(hidden, " + describe::countOf(count, "byte") + ')';
}

std::vector<Field> tellSpans(const std::vector<Span>& spans, std::string_view bytes, const Visibility& visibility)
{
    std::vector<Field> fields;
    fields.reserve(spans.size());
    for (std::size_t at = 0; at < spans.size(); ++at)
    {
        const auto& span = spans[at];
        auto within = visibility;
        if (!span.isValue() && !span.isList)
            within.isSure = visibility.isSure || at < visibility.sureItems;
        fields.push_back(span.isValue() ? tellValue(span, bytes, within) : tellGroup(span, bytes, within));
        fields.back().offset = span.offset;
        fields.back().length = span.end - span.offset;
    }
    return fields;
}

} // namespace dump
