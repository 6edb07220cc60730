#include "walk.h"

namespace dump
{

std::string Span::refusalIn(std::string_view bytes) const
{
    return isCut() || row->refusal == nullptr ? std::string() : row->refusal(contentIn(bytes));
}

bool Walk::add(const Row& row, std::size_t offset, std::uint64_t announced)
{
    if (m_isOver)
        return false;
    Span span;
    span.row = &row;
    span.offset = offset;
    span.content = m_device.position();
    span.announced = announced;
    m_isOver = announced > rest().size();
    span.end = m_isOver ? m_bytes.size() : span.content + announced;
    checkContent(span);
    parent().children.push_back(std::move(span));
    return !m_isOver;
}

void Walk::checkContent(const Span& span)
{
    if (!m_doubt && (span.announced > span.row->most || !span.refusalIn(m_bytes).empty()))
        m_doubt = span.offset;
}

void Walk::bytes(const Row& row, std::size_t size)
{
    if (add(row, m_device.position(), size))
        m_device.skip(size);
}

} // namespace dump
