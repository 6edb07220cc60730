#pragma once

#include <exception>
#include <memory>
#include <string>
#include <vector>

#include <zelplatform/exc/exc.h>

#include "sentences.h"

namespace describe
{

/// Gives the sentences of what the work throws, outermost first; none when it throws nothing.
template <class TWork>
std::vector<std::string> refusalOf(const TWork& work)
try
{
    work();
    return {};
}
catch (const exc::CRuntimeExc& refusal)
{
    return sentencesOf(refusal.trace());
}
catch (const exc::CRuntimeExc* thrown)
{
    // An unknown window kind is thrown as a pointer, which is ours from here on.
    const std::unique_ptr<const exc::CRuntimeExc> refusal(thrown);
    return sentencesOf(refusal->trace());
}
catch (const std::exception& refusal)
{
    return sentencesOf({refusal.what()});
}

} // namespace describe
