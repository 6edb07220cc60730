#include "outcome.h"

#include <exception>
#include <memory>

#include <zelplatform/exc/exc.h>

namespace readers
{

Outcome attempt(const Reader& reader, const std::string& input)
{
    try
    {
        return {reader.rewrite(input), {}};
    }
    catch (const std::exception& refusal)
    {
        return {std::nullopt, refusal.what()};
    }
    catch (const exc::CRuntimeExc* thrown)
    {
        return {std::nullopt, std::unique_ptr<const exc::CRuntimeExc>(thrown)->what()};
    }
}

std::string faultOf(const Reader& reader, const std::string& input)
{
    const auto first = attempt(reader, input);
    if (!first.written)
        return first.refusal.empty() ? "It is refused without a word." : "";

    // Words are told again from the same input; a text is read again.
    const bool isReadBack = reader.written == EWritten::ReadsBack;
    const auto second = attempt(reader, isReadBack ? *first.written : input);
    if (!second.written)
        return "What was written is refused: " + second.refusal + "\nwritten: " + *first.written;
    if (*second.written != *first.written)
        return "It changes when it is read again.\nfirst:  " + *first.written + "\nsecond: " + *second.written;
    return {};
}

} // namespace readers
