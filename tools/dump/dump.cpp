#include "dump.h"

#include <map>

#include <zelplatform/exc/exc.h>
#include <zelplatform/guid/guid.h>
#include <zelplatform/util/util.h>

#include "describe/words.h"
#include "recognition.h"
#include "refusal.h"

namespace dump
{
namespace
{

constexpr const char* LeftOverName = "leftOver";
constexpr const char* LeftOverLabel = "Left over";

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

Field leftOver(std::size_t offset, std::size_t size)
{
    Field field;
    field.node = describe::makeField(LeftOverName, LeftOverLabel, "",
                                     describe::countOf(size - offset, "byte") + " that the reader passes over");
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
        result.refusal = Refusal{end,
                                 LeftOverLabel,
                                 {"It ends at offset " + util::toStr(end) + "; " +
                                  describe::countOf(found.bytes.size() - end, "byte") + " too many follow."}};
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
