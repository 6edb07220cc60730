#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "field.h"
#include "form.h"

namespace dump
{

/// Why and where the library could not read a form.
struct Refusal
{
    std::size_t offset = 0;             ///< of the first byte that is missing, or of the field that was refused
    std::string field;                  ///< "Password hint of key set 1"; empty when there is none
    std::vector<std::string> sentences; ///< the library's, then where it was
};

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
