#pragma once

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <ostream>
#include <sstream>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "support/run_command.h"

namespace zelmodel_test
{

/// The text of an example.
inline std::string example(const std::string& name)
{
    std::ifstream file(std::string(ZELMODEL_EXAMPLES_DIR) + "/" + name, std::ios::binary);
    std::ostringstream text;
    text << file.rdbuf();
    return text.str();
}

/// The XML documents among the examples that are accepted.
inline std::vector<std::string> acceptedExamples()
{
    std::vector<std::string> paths;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(ZELMODEL_EXAMPLES_DIR))
    {
        const auto folder = entry.path().parent_path().filename();
        if (entry.path().extension() == ".xml" && folder != "refused" && folder != "binary")
            paths.push_back(entry.path().string());
    }
    return paths;
}

/// An example and everything that is shown of it.
struct ShowCase
{
    const char* file;
    const char* output;
};

inline std::ostream& operator<<(std::ostream& stream, const ShowCase& test)
{
    return stream << test.file;
}

/// The lines without the margin, which tells where each field came from.
inline std::string withoutMargin(const std::string& output)
{
    constexpr std::size_t margin = 9;
    std::istringstream lines(output);
    std::string text;
    for (std::string line; std::getline(lines, line);)
        text += line.substr(std::min(line.size(), margin)) + '\n';
    return text;
}

/// The same is shown of the file and of its text on standard input.
inline void expectShown(const ShowCase& test)
{
    for (const auto& result : {runCommand({"show", test.file}), runCommand({"show", "-"}, example(test.file))})
    {
        EXPECT_EQ(result.exitCode, 0);
        EXPECT_EQ(result.messages, "");
        EXPECT_EQ(withoutMargin(result.output), test.output);
    }
}

} // namespace zelmodel_test
