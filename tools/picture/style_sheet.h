#pragma once

#include <string>

namespace picture
{

/// The style sheets: shapes and sizes, and the colours of the palette for each scheme. They name no other file.
std::string svgStyle();
std::string htmlStyle();

} // namespace picture
