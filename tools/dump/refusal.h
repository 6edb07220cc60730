#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "field.h"
#include "verdict.h"

namespace dump
{

/// Why and where the library could not read a form.
struct Refusal
{
    std::size_t offset = 0;             ///< of the first byte that is missing, or of the field that was refused
    std::string field;                  ///< "Password hint of key set 1"; empty when there is none
    std::vector<std::string> sentences; ///< the library's, then where it was
};

/// Drops the spans behind the fault; false when it is not in this one.
bool endAt(const Span& fault, Span& span);

/// The refusal of a form whose last span is the fault. A value that is hidden is not quoted.
Refusal refusalAt(const Span& root, std::string_view bytes, const Verdict& verdict, const Visibility& visibility);

} // namespace dump
