#include "attempt.h"

#include <exception>
#include <memory>

#include <zelplatform/exc/exc.h>

#include "describe/sentences.h"

namespace check
{
namespace
{

// Gives the sentences of what the work throws; none when it throws nothing.
template <class TWork>
std::vector<std::string> refusalOf(const TWork& work)
try
{
    work();
    return {};
}
catch (const exc::CRuntimeExc& refusal)
{
    return describe::sentencesOf(refusal.trace());
}
catch (const exc::CRuntimeExc* thrown)
{
    // An unknown window kind is thrown as a pointer, which is ours from here on.
    const std::unique_ptr<const exc::CRuntimeExc> refusal(thrown);
    return describe::sentencesOf(refusal->trace());
}
catch (const std::exception& refusal)
{
    return describe::sentencesOf({refusal.what()});
}

} // namespace

Attempt readDocument(const describe::Document& document)
{
    Attempt attempt;
    const xmlpp::CLookupRecord record;
    attempt.sentences = refusalOf([&] { attempt.tree = document.describeFields(); });
    attempt.line = document.lastReadLine();
    attempt.lookups = record.GetLookups();
    return attempt;
}

std::optional<describe::Document> parseDocument(const std::string& text, std::vector<std::string>& sentences)
{
    std::optional<describe::Document> document;
    sentences = refusalOf([&] { document.emplace(text); });
    return document;
}

} // namespace check
