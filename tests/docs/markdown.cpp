#include "markdown.h"

#include <fstream>
#include <sstream>
#include <stdexcept>

namespace zelmodel_test
{
namespace
{

constexpr const char* Fence = "```";

std::string trimmed(const std::string& text)
{
    const auto first = text.find_first_not_of(' ');
    return first == std::string::npos ? std::string() : text.substr(first, text.find_last_not_of(' ') - first + 1);
}

bool startsWith(const std::string& text, const std::string& start)
{
    return text.compare(0, start.size(), start) == 0;
}

std::vector<std::string> cellsOf(const std::string& line)
{
    std::vector<std::string> cells;
    for (std::size_t from = 1, end = line.find('|', from); end != std::string::npos; end = line.find('|', from))
    {
        cells.push_back(trimmed(line.substr(from, end - from)));
        from = end + 1;
    }
    return cells;
}

class Pages
{
public:
    explicit Pages(const std::string& path) : m_path(path), m_lines(projectFile(path)) {}

    std::vector<Part> read()
    {
        for (std::string line; std::getline(m_lines, line);)
        {
            ++m_number;
            if (startsWith(line, Fence))
                readBlock(line.substr(3));
            else if (startsWith(line, "|"))
                addRow(line);
            else if (line.empty())
                m_isOpen = false;
            else
                addToParagraph(line);
        }
        return std::move(m_parts);
    }

private:
    Part& newPart(EPart kind)
    {
        m_parts.push_back({kind, {}, {}, {}, m_path + ":" + std::to_string(m_number)});
        return m_parts.back();
    }

    bool continues(EPart kind) const { return m_isOpen && m_parts.back().kind == kind; }

    void readBlock(const std::string& info)
    {
        auto& block = newPart(EPart::Block);
        block.info = info;
        for (std::string line; std::getline(m_lines, line) && !startsWith(line, Fence);)
        {
            ++m_number;
            block.text += line + '\n';
        }
        ++m_number;
        m_isOpen = false;
    }

    void addRow(const std::string& line)
    {
        auto& table = continues(EPart::Table) ? m_parts.back() : newPart(EPart::Table);
        m_isOpen = true;
        if (!startsWith(line, "|---"))
            table.rows.push_back(cellsOf(line));
    }

    void addToParagraph(const std::string& line)
    {
        auto& paragraph = continues(EPart::Paragraph) ? m_parts.back() : newPart(EPart::Paragraph);
        m_isOpen = true;
        paragraph.text += (paragraph.text.empty() ? "" : " ") + line;
    }

    std::string m_path;
    std::istringstream m_lines;
    std::vector<Part> m_parts;
    int m_number = 0;
    bool m_isOpen = false;
};

} // namespace

std::string projectFile(const std::string& path)
{
    std::ifstream file(std::string(ZELMODEL_EXAMPLES_DIR) + "/../" + path, std::ios::binary);
    if (!file)
        throw std::runtime_error("There is no file " + path + ".");
    std::ostringstream text;
    text << file.rdbuf();
    return text.str();
}

std::vector<Part> partsOf(const std::string& path)
{
    return Pages(path).read();
}

const Part& partOf(const std::vector<Part>& parts, EPart kind, const std::string& start)
{
    for (const auto& part : parts)
    {
        const auto& begin = kind == EPart::Table && !part.rows.empty() ? part.rows.front().at(1) : part.info;
        if (part.kind == kind && begin == start)
            return part;
    }
    throw std::runtime_error("The page has no part " + start);
}

std::string bytesIn(const Part& block)
{
    std::string bytes;
    std::istringstream lines(block.text);
    for (std::string line; std::getline(lines, line);)
    {
        std::istringstream numbers(line.substr(0, line.find(';')));
        for (unsigned value = 0; numbers >> std::hex >> value;)
            bytes.push_back(static_cast<char>(value));
    }
    return bytes;
}

std::vector<std::string> codesOf(const std::string& text)
{
    std::vector<std::string> codes;
    for (auto open = text.find('`'); open != std::string::npos;)
    {
        const auto close = text.find('`', open + 1);
        if (close == std::string::npos)
            break;
        codes.push_back(text.substr(open + 1, close - open - 1));
        open = text.find('`', close + 1);
    }
    return codes;
}

std::string onlyCodeOf(const std::string& cell)
{
    const auto codes = codesOf(cell);
    return codes.size() == 1 && cell == '`' + codes.front() + '`' ? codes.front() : std::string();
}

} // namespace zelmodel_test
