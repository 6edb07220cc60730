#include "sentences.h"

#include <cstddef>

namespace describe
{
namespace
{

bool endsSentence(const std::string& text, std::size_t at)
{
    return text.compare(at, 2, ". ") == 0 && at + 2 < text.size() && text[at + 2] >= 'A' && text[at + 2] <= 'Z';
}

void addSentences(const std::string& text, std::vector<std::string>& sentences)
{
    std::size_t start = 0;
    std::size_t depth = 0;
    for (std::size_t at = 0; at < text.size(); ++at)
    {
        if (text[at] == '[')
            ++depth;
        else if (text[at] == ']' && depth > 0)
            --depth;
        else if (depth == 0 && endsSentence(text, at))
        {
            sentences.push_back(text.substr(start, at + 1 - start));
            start = at + 2;
        }
    }
    sentences.push_back(text.substr(start));
}

} // namespace

std::vector<std::string> sentencesOf(const std::vector<std::string>& trace)
{
    std::vector<std::string> sentences;
    for (const auto& entry : trace)
        addSentences(entry, sentences);
    return sentences;
}

} // namespace describe
