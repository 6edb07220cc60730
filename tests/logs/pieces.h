#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "logs/byte_source.h"

namespace zelmodel_test
{

/// A source that gives the pieces one after the other.
class Pieces : public logs::ByteSource
{
public:
    explicit Pieces(std::vector<std::string> pieces) : m_pieces(std::move(pieces)) {}

    std::string_view next() override
    {
        if (m_next == m_pieces.size())
            return {};
        m_position += m_pieces[m_next].size();
        return m_pieces[m_next++];
    }

    std::uint64_t position() const noexcept override { return m_position; }

    void add(std::string piece) { m_pieces.push_back(std::move(piece)); }

private:
    std::vector<std::string> m_pieces;
    std::size_t m_next = 0;
    std::uint64_t m_position = 0;
};

/// All bytes that the source gives from here on.
inline std::string allOf(logs::ByteSource& source)
{
    std::string all;
    for (auto piece = source.next(); !piece.empty(); piece = source.next())
        all += piece;
    return all;
}

} // namespace zelmodel_test
