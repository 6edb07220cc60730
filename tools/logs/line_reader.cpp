#include "line_reader.h"

namespace logs
{
namespace
{

constexpr std::size_t MostKept = LineReader::LongestLine + 1; // with the CR of the line end

} // namespace

bool LineReader::next()
{
    begin();
    for (;;)
    {
        if (m_piece.empty())
            m_piece = m_source.next();
        if (m_piece.empty())
            return false;
        const auto end = m_piece.find('\n');
        add(m_piece.substr(0, end));
        if (end == std::string_view::npos)
        {
            m_piece = {};
            continue;
        }
        m_piece.remove_prefix(end + 1);
        complete();
        return true;
    }
}

bool LineReader::finish()
{
    begin();
    if (m_size == 0)
        return false;
    complete();
    return true;
}

void LineReader::begin()
{
    if (!m_isComplete)
        return;
    m_isComplete = false;
    m_text.clear();
    m_size = 0;
}

void LineReader::add(std::string_view part)
{
    m_size += part.size();
    m_text.append(part.substr(0, MostKept - m_text.size()));
}

void LineReader::complete()
{
    m_isComplete = true;
    ++m_number;
    if (m_size > MostKept || m_text.empty() || m_text.back() != '\r')
        return;
    m_text.pop_back();
    --m_size;
}

} // namespace logs
