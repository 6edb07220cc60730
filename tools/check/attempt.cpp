#include "attempt.h"

#include "describe/refusal.h"

namespace check
{

Attempt readDocument(const describe::Document& document)
{
    Attempt attempt;
    const xmlpp::CLookupRecord record;
    attempt.sentences = describe::refusalOf([&] { attempt.tree = document.describeFields(); });
    attempt.line = document.lastReadLine();
    attempt.lookups = record.GetLookups();
    return attempt;
}

std::optional<describe::Document> parseDocument(const std::string& text, std::vector<std::string>& sentences)
{
    std::optional<describe::Document> document;
    sentences = describe::refusalOf([&] { document.emplace(text); });
    return document;
}

} // namespace check
