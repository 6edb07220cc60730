#include "dump.h"

#include <map>

#include <zelplatform/exc/exc.h>
#include <zelplatform/guid/guid.h>
#include <zelplatform/util/util.h>

#include "describe/words.h"
#include "recognition.h"

namespace dump
{
namespace
{

constexpr const char* LeftOverName = "leftOver";
constexpr const char* LeftOverLabel = "Left over";

std::string bytesOf(std::uint64_t count)
{
    return describe::countOf(count, "byte");
}

/// Drops the spans behind the fault; false when it is not in this one.
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

/// The items of the form's list that something after them confirms. What is wrong with an item may show in the first
/// field of the next one only.
std::size_t confirmedItems(const Span& root, bool isFaultInside)
{
    if (root.children.empty() || !root.children.back().isList || root.children.back().children.empty())
        return 0;
    const auto& items = root.children.back().children;
    const bool isFirstField = isFaultInside && items.back().children.size() == 1;
    const auto unsure = isFirstField ? 2U : 1U;
    return items.size() > unsure ? items.size() - unsure : 0;
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
        where += (fault.content > fault.offset ? " announces " : " takes ") + bytesOf(fault.announced) + ", " +
                 util::toStr(left) + (left == 1 ? " is left" : " are left");
    }
    refusal.sentences.push_back("At offset " + util::toStr(refusal.offset) + ": " + where + '.');
    return refusal;
}

Field leftOver(std::size_t offset, std::size_t size)
{
    Field field;
    field.node =
        describe::makeField(LeftOverName, LeftOverLabel, "", bytesOf(size - offset) + " that the reader passes over");
    field.offset = offset;
    field.length = size - offset;
    return field;
}

std::string guessed(const Form& form)
{
    return "No binary form reads the whole of it; the form " + std::string(form.name) + " comes nearest.";
}

/// Of items with one identifier the library keeps the last; the others are marked.
void markReplaced(std::vector<Field>& items)
{
    std::map<guid::guid_t, std::string> last;
    for (auto item = items.rbegin(); item != items.rend(); ++item)
    {
        const auto id = guid::guid_t::FromAStr(item->fields.front().node.value);
        const auto [kept, isLast] = last.try_emplace(id, item->node.label);
        if (!isLast)
            item->node.words = "passed over: " + kept->second + " has the same identifier";
    }
}

/// What the library refused: the fields up to there.
void tellRefused(Recognised& found, bool showsSecrets, Dump& result)
{
    auto& root = found.chosen.walk.root();
    const auto& verdict = found.chosen.verdict;
    if (const auto* fault = findFault(root, verdict, found.bytes))
        endAt(*fault, root);
    Visibility visibility;
    visibility.showsSecrets = showsSecrets;
    visibility.isSure = found.isNamed && !result.form->holdsKeys;
    visibility.sureItems = result.form->holdsKeys ? confirmedItems(root, true) : 0;
    result.refusal = refusalAt(root, found.bytes, verdict, visibility);
    result.fields = tellSpans(root.children, found.bytes, visibility);
}

/// What the library read, with bytes left over or not.
void tellRead(Recognised& found, bool showsSecrets, Dump& result)
{
    auto& root = found.chosen.walk.root();
    Visibility visibility;
    visibility.showsSecrets = showsSecrets;
    visibility.isRead = true;
    visibility.isSure = found.isRead;
    visibility.sureItems = result.form->holdsKeys ? confirmedItems(root, false) : 0;
    result.fields = tellSpans(root.children, found.bytes, visibility);
    for (auto& list : result.fields)
    {
        if (list.node.isList && !list.fields.empty() && !list.fields.front().fields.empty())
            markReplaced(list.fields);
    }
    const auto end = found.chosen.verdict.consumed;
    if (end < found.bytes.size())
        result.fields.push_back(leftOver(end, found.bytes.size()));
    if (!found.isRead)
        result.refusal = Refusal{
            end,
            LeftOverLabel,
            {"It ends at offset " + util::toStr(end) + "; " + bytesOf(found.bytes.size() - end) + " too many follow."}};
}

// The layout only names what the library reads: where the two do not end at the same byte, the names are wrong.
void checkAgainstLibrary(const Recognised& found)
{
    const auto& chosen = found.chosen;
    const auto end = found.bytes.size() - chosen.walk.rest().size();
    if (!chosen.verdict.isRefused() && (!chosen.walk.goesOn() || chosen.verdict.consumed != end))
        throw exc::CRuntimeExc("The layout of the form %1 does not follow its reader.", chosen.form->name);
}

} // namespace

Dump tell(std::string_view input, const Form* named, bool showsSecrets)
{
    auto found = recognise(input, named);
    checkAgainstLibrary(found);
    Dump result;
    result.form = found.chosen.form;
    result.isBase64 = found.isBase64;
    result.size = found.bytes.size();
    result.others = found.others;
    if (found.chosen.verdict.isRefused())
        tellRefused(found, showsSecrets, result);
    else
        tellRead(found, showsSecrets, result);
    if (result.refusal && !found.isNamed)
        result.refusal->sentences.insert(result.refusal->sentences.begin(), guessed(*result.form));
    return result;
}

} // namespace dump
