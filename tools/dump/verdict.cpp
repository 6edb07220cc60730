#include "verdict.h"

#include <exception>

#include <zelplatform/exc/exc.h>

#include "describe/sentences.h"

namespace dump
{
namespace
{

void collectValues(const Span& span, std::vector<const Span*>& values)
{
    if (span.isValue())
        values.push_back(&span);
    for (const auto& child : span.children)
        collectValues(child, values);
}

} // namespace

Verdict judge(const Form& form, std::string_view bytes)
{
    BytesDevice device(bytes);
    Verdict verdict;
    try
    {
        io::binary_stream_tt stream(device);
        form.read(stream);
    }
    catch (const exc::CRuntimeExc& refusal)
    {
        verdict.sentences = describe::sentencesOf(refusal.trace());
    }
    catch (const std::exception& refusal)
    {
        verdict.sentences = {refusal.what()};
    }
    verdict.consumed = device.position();
    verdict.wasShort = device.wasShort();
    return verdict;
}

// A reader takes some fields in one piece and checks them afterwards: such a field tells by itself what the library
// would say to it. Identifiers are checked at once, so what is none is the fault. Else the refusal is about what was
// read last, or about what could not be read.
const Span* findFault(const Span& root, const Verdict& verdict, std::string_view bytes)
{
    std::vector<const Span*> values;
    collectValues(root, values);
    if (values.empty())
        return nullptr;
    const Span* last = values.front();
    for (const auto* span : values)
    {
        if (span->offset >= verdict.consumed)
            break;
        last = span;
        const auto refusal = span->refusalIn(bytes);
        if (!refusal.empty() && (span->row->shown == EShown::Known || refusal == verdict.sentences.back()))
            return span;
    }
    return verdict.wasShort ? values.back() : last;
}

} // namespace dump
