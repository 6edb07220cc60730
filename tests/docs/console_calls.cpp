#include "console_calls.h"

#include <algorithm>
#include <iomanip>
#include <sstream>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "markdown.h"
#include "support/run_command.h"

namespace zelmodel_test
{
namespace
{

constexpr const char* Ellipsis = "...";
constexpr const char* Prompt = "$ ";

std::vector<std::string> linesOf(const std::string& text)
{
    std::vector<std::string> lines;
    std::istringstream stream(text);
    for (std::string line; std::getline(stream, line);)
        lines.push_back(line);
    return lines;
}

/// In a block empty lines set calls apart, so that those of an answer do not count.
std::vector<std::string> filledLinesOf(const std::string& text)
{
    auto lines = linesOf(text);
    lines.erase(std::remove(lines.begin(), lines.end(), std::string()), lines.end());
    return lines;
}

/// A call of the command and what the page shows of its answer.
struct Call
{
    std::vector<std::string> arguments;
    std::vector<std::string> shown;
};

/// The command runs in the folder of the examples.
std::string withoutFolder(std::string text)
{
    const std::string folder = "examples/";
    for (auto at = text.find(folder); at != std::string::npos; at = text.find(folder))
        text.erase(at, folder.size());
    return text;
}

/// The words of a shell's line; double quotes hold blanks together.
std::vector<std::string> wordsOf(const std::string& line)
{
    std::vector<std::string> words;
    std::istringstream stream(line);
    for (std::string word; stream >> std::quoted(word);)
        words.push_back(word);
    return words;
}

std::vector<Call> callsIn(const std::string& path)
{
    std::vector<Call> calls;
    for (const auto& part : partsOf(path))
    {
        if (part.info != "console")
            continue;
        bool isOurs = false;
        for (const auto& line : linesOf(withoutFolder(part.text)))
        {
            if (line.rfind(Prompt, 0) == 0)
            {
                auto words = wordsOf(line.substr(2));
                isOurs = !words.empty() && words.front() == "zelmodel";
                if (!isOurs)
                    continue;
                words.erase(words.begin());
                calls.push_back({std::move(words), {}});
            }
            else if (isOurs && !line.empty())
                calls.back().shown.push_back(line);
        }
    }
    return calls;
}

/// Whether the lines are the pattern's, where an ellipsis stands for one line or more.
bool matches(const std::vector<std::string>& pattern, const std::vector<std::string>& lines, std::size_t at = 0,
             std::size_t from = 0)
{
    if (at == pattern.size())
        return from == lines.size();
    if (pattern[at] != Ellipsis)
        return from < lines.size() && pattern[at] == lines[from] && matches(pattern, lines, at + 1, from + 1);
    for (std::size_t next = from + 1; next <= lines.size(); ++next)
    {
        if (matches(pattern, lines, at + 1, next))
            return true;
    }
    return false;
}

std::string joined(const std::vector<std::string>& items, char separator)
{
    std::string text;
    for (const auto& item : items)
        text += item + separator;
    return text;
}

} // namespace

std::size_t expectAnswersAsShown(const std::string& page)
{
    const auto calls = callsIn(page);
    for (const auto& call : calls)
    {
        const auto result = runCommand(call.arguments);
        auto lines = filledLinesOf(result.output + result.messages);
        if (!call.shown.empty() && call.shown.back().rfind("(exit status", 0) == 0)
            lines.push_back("(exit status " + std::to_string(result.exitCode) + ")");
        EXPECT_TRUE(matches(call.shown, lines)) << joined(call.arguments, ' ') << "\nshown:\n"
                                                << joined(call.shown, '\n') << "answered:\n"
                                                << joined(lines, '\n');
    }
    return calls.size();
}

} // namespace zelmodel_test
