#pragma once

#include <string>

namespace zelmodel_test
{

/// What a binary stream says when a device gives less than it must.
inline std::string shortRead(const std::string& received, const std::string& expected)
{
    return "Failed to retrieve value from the binary stream: received less bytes (" + received + ") than expected (" +
           expected + ").";
}

inline std::string shortRead(unsigned long received, unsigned long expected)
{
    return shortRead(std::to_string(received), std::to_string(expected));
}

/// What a binary stream says when a device takes less than it must.
inline std::string shortWrite(const std::string& written, const std::string& expected)
{
    return "Failed to write value to the binary stream: written less bytes (" + written + ") than expected (" +
           expected + ").";
}

inline std::string shortWrite(long written, unsigned long expected)
{
    return shortWrite(std::to_string(written), std::to_string(expected));
}

} // namespace zelmodel_test
