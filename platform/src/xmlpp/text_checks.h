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
/// references to characters that XML does not have, foreign encodings, texts that are too long, too many elements, and
/// too many attributes of one.
TextFault findTextFault(std::string_view text);

/// How often "</" stands in the text: at least as often as there are end tags.
std::size_t countEndTags(std::string_view text) noexcept;

/// Where an end tag stands that ends no element, or the size of the text. The parser stops there in silence.
std::size_t findStrayEndTag(std::string_view text) noexcept;

/// True when every byte may stand in XML: no control character but tab, CR and LF.
bool isCarriedByXml(std::string_view value) noexcept;

} // namespace xmlpp::detail
