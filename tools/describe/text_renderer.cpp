#include "text_renderer.h"

#include <algorithm>
#include <string_view>
#include <vector>

#include <zelplatform/util/util.h>

#include "terminal_text.h"
#include "text_layout.h"
#include "words.h"

namespace describe
{
namespace
{

struct Line
{
    std::string origin;
    std::string label;
    std::string words;
};

std::string originOf(const Node& node)
{
    switch (node.origin.kind)
    {
    case EOrigin::None: return {};
    case EOrigin::Default: return "default";
    case EOrigin::Document:
    case EOrigin::Older: break;
    }
    return util::toStr(node.origin.line);
}

std::string withOlderName(const std::string& words, const Origin& origin)
{
    if (origin.kind != EOrigin::Older)
        return words;
    return words + (words.empty() ? "" : " ") + "(older form: " + printable(origin.name) + ')';
}

void collectLines(const std::vector<Node>& nodes, std::size_t depth, const TextStyle& style, std::vector<Line>& lines)
{
    for (const auto& node : nodes)
    {
        if (node.isDetail)
            continue;
        lines.push_back({originOf(node), std::string(depth * Indent, ' ') + printable(node.label),
                         withOlderName(shownWords(node, style), node.origin)});
        collectLines(node.children, depth + 1, style, lines);
    }
}

bool hasOrigin(const Node& node)
{
    return node.origin.kind != EOrigin::None || std::any_of(node.children.begin(), node.children.end(), hasOrigin);
}

/// The column left of the fields, right-aligned. A tree that came from no document has none.
class Margin
{
public:
    explicit Margin(const Node& root) : m_width(hasOrigin(root) ? std::string("default").size() : 0) {}

    std::size_t width() const noexcept { return m_width == 0 ? 0 : m_width + Gap; }

    std::string with(const std::string& text) const
    {
        if (m_width == 0)
            return {};
        return std::string(m_width - std::min(m_width, text.size()), ' ') + text + std::string(Gap, ' ');
    }

private:
    std::size_t m_width;
};

} // namespace

std::string hiddenWords(const Node& node)
{
    return "(hidden, " + countOf(columnsOf(node.words), "character") + ')';
}

std::string shownWords(const Node& node, const TextStyle& style)
{
    if (node.secret && !style.showsSecrets)
        return hiddenWords(node);
    return printable(shortened(node.words, style.longestWords));
}

std::string broken(const std::string& text, std::size_t column, const TextStyle& style)
{
    if (style.width == 0)
        return text;
    const auto room = std::max(style.width > column ? style.width - column : 0, style.narrowestWords);
    std::string lines;
    std::size_t used = 0;
    for (std::size_t from = 0; from < text.size();)
    {
        const auto end = std::min(text.find(' ', from), text.size());
        const auto word = text.substr(from, end - from);
        if (used > 0 && used + 1 + columnsOf(word) > room)
        {
            lines += '\n' + std::string(column, ' ');
            used = 0;
        }
        lines += (used > 0 ? " " : "") + word;
        used += (used > 0 ? 1 : 0) + columnsOf(word);
        from = end + 1;
    }
    return lines;
}

std::string renderTitle(const Node& node, const TextStyle& style, std::size_t column)
{
    auto title = printable(node.label);
    const auto words = shownWords(node, style);
    if (!words.empty())
        title += (title.empty() ? "" : ": ") + words;
    title = broken(title, column, style);
    return (style.isBold ? "\x1b[1m" + title + "\x1b[0m" : title) + '\n';
}

std::string renderText(const Node& node, const TextStyle& style)
{
    std::vector<Line> lines;
    collectLines(node.children, 1, style, lines);
    const Margin margin(node);
    std::size_t labels = 0;
    for (const auto& line : lines)
        labels = std::max(labels, columnsOf(line.label) + Gap);
    auto text = margin.with("line") + renderTitle(node, style, margin.width());
    for (const auto& line : lines)
    {
        const auto start = margin.width() + labels;
        text += withoutTrailingBlanks(margin.with(line.origin) + paddedTo(line.label, labels) +
                                      broken(line.words, start, style)) +
                '\n';
    }
    return text;
}

} // namespace describe
