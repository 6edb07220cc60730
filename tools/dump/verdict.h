#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "form.h"

namespace dump
{

/// What the library says to some bytes.
struct Verdict
{
    std::size_t consumed = 0;           ///< bytes of its complete reads
    bool wasShort = false;              ///< its last read wanted more than there was
    std::vector<std::string> sentences; ///< the refusal, outermost first; empty when the bytes were read

    bool isRefused() const noexcept { return !sentences.empty(); }
};

/// Lets the library read the form.
Verdict judge(const Form& form, std::string_view bytes);

/// The field at which the library refused the form; nothing when it got to none.
const Span* findFault(const Span& root, const Verdict& verdict, std::string_view bytes);

} // namespace dump
