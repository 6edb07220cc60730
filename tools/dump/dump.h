#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "field.h"
#include "form.h"
#include "refusal.h"

namespace dump
{

/// A binary form, told byte by byte.
struct Dump
{
    const Form* form = nullptr;
    bool isBase64 = false;
    std::size_t size = 0;            ///< bytes, when it is base64 those that the text stands for
    std::vector<const Form*> others; ///< that fit the bytes too
    std::vector<Field> fields;       ///< up to the fault when there is one
    std::optional<Refusal> refusal;
};

/// Tells the input, raw bytes or base64, as the named form or as the one that it is recognised as. Throws
/// exc::CRuntimeExc for a text that is neither. Without secrets no byte of a key is in the result, also not of a key
/// that a damaged form shows in a false place.
Dump tell(std::string_view input, const Form* named, bool showsSecrets);

} // namespace dump
