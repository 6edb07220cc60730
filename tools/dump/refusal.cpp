#include "refusal.h"

#include <utility>

#include <zelplatform/util/util.h>

#include "describe/words.h"

namespace dump
{
namespace
{

/// "Password hint of key set 1" for the last of the spans.
std::string pathOfLast(const Span& root)
{
    std::string path;
    const auto* list = &root;
    for (const auto* span = &root; !span->children.empty();)
    {
        const bool isItem = span->isList;
        list = span;
        span = &span->children.back();
        if (span->isList)
            continue;
        auto label = std::string(span->row->label) + (isItem ? ' ' + util::toStr(list->children.size()) : "");
        if (!path.empty())
            label += " of " + util::tolower(path.substr(0, 1)) + path.substr(1);
        path = label;
    }
    return path;
}

const Span& lastOf(const Span& span)
{
    return span.children.empty() ? span : lastOf(span.children.back());
}

/// Where a sentence of the library quotes the value that it refuses, it stands between square brackets. The value is
/// not copied, as it may be of a key.
std::string withoutQuote(std::string sentence, std::string_view hidden)
{
    for (auto at = sentence.find('['); at != std::string::npos; at = sentence.find('[', at + 1))
    {
        const auto end = at + 1 + hidden.size();
        if (end < sentence.size() && sentence[end] == ']' && sentence.compare(at + 1, hidden.size(), hidden) == 0)
            return sentence.replace(at + 1, hidden.size(), hiddenBytes(hidden.size()));
    }
    return sentence;
}

} // namespace

bool endAt(const Span& fault, Span& span)
{
    if (&span == &fault)
        return true;
    for (auto child = span.children.begin(); child != span.children.end(); ++child)
    {
        if (!endAt(fault, *child))
            continue;
        span.children.erase(child + 1, span.children.end());
        span.end = child->end;
        return true;
    }
    return false;
}

Refusal refusalAt(const Span& root, std::string_view bytes, const Verdict& verdict, const Visibility& visibility)
{
    const auto& fault = lastOf(root);
    Refusal refusal{fault.offset, pathOfLast(root), verdict.sentences};
    if (fault.row == nullptr)
        return refusal;
    if (!fault.isCut() && !isShown(fault, bytes, visibility))
    {
        for (auto& sentence : refusal.sentences)
            sentence = withoutQuote(std::move(sentence), fault.contentIn(bytes));
    }
    std::string where = '"' + refusal.field + '"';
    if (fault.isCut())
    {
        refusal.offset = fault.content;
        const auto left = bytes.size() - fault.content;
        where += (fault.content > fault.offset ? " announces " : " takes ") +
                 describe::countOf(fault.announced, "byte") + ", " + util::toStr(left) +
                 (left == 1 ? " is left" : " are left");
    }
    refusal.sentences.push_back("At offset " + util::toStr(refusal.offset) + ": " + where + '.');
    return refusal;
}

} // namespace dump
