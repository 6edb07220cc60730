#pragma once

#include <initializer_list>
#include <string>

namespace zelmodel_test
{

inline std::string bytesOf(std::initializer_list<std::string> pieces)
{
    std::string bytes;
    for (const auto& piece : pieces)
        bytes += piece;
    return bytes;
}

/// A text with its length in front; at most 255 bytes.
inline std::string counted(const std::string& text)
{
    return std::string(1, static_cast<char>(text.size())) + std::string(3, '\0') + text;
}

} // namespace zelmodel_test
