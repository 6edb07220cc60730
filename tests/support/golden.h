#pragma once

#include <fstream>
#include <sstream>
#include <stdexcept>
#include <string>

namespace zelmodel_test
{

/// The text of a document below tests/golden, without the line break at its end.
inline std::string golden(const std::string& path)
{
    std::ifstream file(std::string(ZELMODEL_GOLDEN_DIR) + "/" + path, std::ios::binary);
    if (!file)
        throw std::runtime_error("There is no golden document " + path + ".");
    std::ostringstream text;
    text << file.rdbuf();
    std::string result = text.str();
    if (!result.empty() && result.back() == '\n')
        result.pop_back();
    return result;
}

} // namespace zelmodel_test
