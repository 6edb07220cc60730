#pragma once

#include <string_view>
#include <vector>

#include <zelplatform/crypto/sec_buffer.h>

#include "verdict.h"

namespace dump
{

/// Some bytes as one form.
struct Candidate
{
    const Form* form;
    Walk walk;
    Verdict verdict; ///< of the one that was chosen
};

/// An input and the form that it was taken for.
struct Recognised
{
    std::string_view bytes;
    crypto::sec_buffer_t decoded; ///< holds the bytes of a base64 text
    bool isBase64 = false;
    bool isNamed = false; ///< the user named the form
    bool isRead = false;  ///< the library read it, and all of it unless the form was named
    Candidate chosen;
    std::vector<const Form*> others; ///< whose fields fit the bytes too
};

/// Takes the input, raw bytes or the base64 text of them, for the named form, or without a name for the most specific
/// one that the library reads as a whole, or for the one that explains the most bytes when it reads none so. The fields
/// are walked first, so that the library sees bytes only where they may be of the form: it reads texts into ordinary
/// memory, and no byte of a key shall get there. Refuses (exc::CRuntimeExc) a text that is neither a form nor base64.
/// The input must outlive the result.
Recognised recognise(std::string_view input, const Form* named);

} // namespace dump
