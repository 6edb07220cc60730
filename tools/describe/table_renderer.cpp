#include "text_renderer.h"

#include <algorithm>
#include <vector>

#include "terminal_text.h"
#include "text_layout.h"

namespace describe
{
namespace
{

/// Rows of fields under the labels of the first row. Columns that are empty in every row are left out; those that have
/// no room on the terminal stand below the row, each on a line of its own behind its label.
class Table
{
public:
    Table(const Node& node, const TextStyle& style) : m_style(style)
    {
        for (const auto& field : node.children.front().children)
            m_heads.push_back(printable(field.label));
        m_widths.resize(m_heads.size(), 0);
        for (const auto& row : node.children)
        {
            m_rows.emplace_back();
            for (std::size_t column = 0; column < m_heads.size(); ++column)
            {
                m_rows.back().push_back(shownWords(row.children.at(column), style));
                m_widths[column] = std::max(m_widths[column], columnsOf(m_rows.back().back()));
            }
        }
        for (std::size_t column = 0; column < m_heads.size(); ++column)
        {
            if (m_widths[column] > 0)
                m_widths[column] = std::max(m_widths[column], columnsOf(m_heads[column])) + Gap;
        }
    }

    std::string render() const
    {
        const auto beside = columnsBeside();
        auto text = line(m_heads, beside);
        for (const auto& row : m_rows)
        {
            text += line(row, beside);
            for (auto column = beside; column < row.size(); ++column)
                text += row[column].empty() ? "" : below(column, row[column]);
        }
        return text;
    }

private:
    std::size_t columnsBeside() const
    {
        std::size_t used = 0;
        for (std::size_t column = 0; column < m_widths.size(); ++column)
        {
            used += m_widths[column];
            if (m_style.width > 0 && m_widths[column] > 0 && used > m_style.width + Gap)
                return std::max(column, std::size_t{1});
        }
        return m_widths.size();
    }

    std::string line(const std::vector<std::string>& row, std::size_t beside) const
    {
        std::string text;
        for (std::size_t column = 0; column < beside; ++column)
            text += m_widths[column] > 0 ? paddedTo(row[column], m_widths[column]) : "";
        return withoutTrailingBlanks(text) + '\n';
    }

    std::string below(std::size_t column, const std::string& words) const
    {
        const auto label = std::string(2 * Indent, ' ') + m_heads[column] + ": ";
        return label + broken(words, columnsOf(label), m_style) + '\n';
    }

    const TextStyle& m_style;
    std::vector<std::string> m_heads;
    std::vector<std::vector<std::string>> m_rows;
    std::vector<std::size_t> m_widths;
};

} // namespace

std::string renderTable(const Node& node, const TextStyle& style)
{
    const auto title = renderTitle(node, style, 0);
    return node.children.empty() ? title : title + Table(node, style).render();
}

} // namespace describe
