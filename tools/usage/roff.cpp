#include "roff.h"

#include <sstream>

namespace usage
{
namespace
{

constexpr std::size_t LongestLine = 78;

std::string roffOf(char c)
{
    switch (c)
    {
    case '\\': return "\\e";
    case '-': return "\\-";
    case '\'': return "\\(aq";
    case '`': return "\\(ga";
    case '"': return "\\(dq";
    case '^': return "\\(ha";
    case '~': return "\\(ti";
    default: return {c};
    }
}

bool endsSentence(const std::string& word)
{
    return std::string(".?!").find(word.back()) != std::string::npos;
}

} // namespace

std::string roffEscaped(const std::string& text)
{
    std::string escaped;
    for (const char c : text)
        escaped += roffOf(c);
    return escaped;
}

std::string roffLines(const std::string& text)
{
    std::string lines;
    std::string line;
    const auto end = [&lines, &line] {
        if (line.empty())
            return;
        lines += (line.front() == '.' ? "\\&" : "") + line + '\n';
        line.clear();
    };
    std::istringstream words(text);
    for (std::string word; words >> word;)
    {
        const auto escaped = roffEscaped(word);
        if (line.size() + 1 + escaped.size() > LongestLine)
            end();
        line += (line.empty() ? "" : " ") + escaped;
        if (endsSentence(word))
            end();
    }
    end();
    return lines;
}

} // namespace usage
