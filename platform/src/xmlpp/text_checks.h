#pragma once

#include <cstddef>
#include <string_view>

namespace xmlpp::detail
{

/// Why a text is refused before it is parsed, and where; an empty reason when nothing is wrong with it.
struct TextFault
{
    const char* reason = nullptr;
    std::size_t offset = 0;
};

/// Looks for what the parser would pass over in silence or spend quadratic time on: NUL and other control characters,
/// references to characters that XML does not have, foreign encodings, texts that are too long, elements with too many
/// attributes.
TextFault findTextFault(std::string_view text);

/// True when every byte may stand in XML: no control character but tab, CR and LF.
bool isCarriedByXml(std::string_view value) noexcept;

} // namespace xmlpp::detail
