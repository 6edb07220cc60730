#pragma once

#include <fstream>
#include <sstream>
#include <stdexcept>
#include <string>

namespace zelmodel_test
{

/// The bytes of a file.
inline std::string fileText(const std::string& path)
{
    std::ifstream file(path, std::ios::binary);
    if (!file)
        throw std::runtime_error("There is no file " + path + ".");
    std::ostringstream text;
    text << file.rdbuf();
    return text.str();
}

/// The text of a document below tests/golden, without the line break at its end.
inline std::string golden(const std::string& path)
{
    std::string result = fileText(std::string(ZELMODEL_GOLDEN_DIR) + "/" + path);
    if (!result.empty() && result.back() == '\n')
        result.pop_back();
    return result;
}

} // namespace zelmodel_test
