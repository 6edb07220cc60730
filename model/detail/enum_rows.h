#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include <zelplatform/util/text.h>

namespace zelplatform::model::detail
{

/// In which direction a row converts.
enum class ERowUse
{
    Both,
    ReadOnly,  ///< an alias: read, never written
    WriteOnly, ///< written, never read back
};

/// One row of an enumeration: the value and its stored text, which is never empty. Every enumeration is a constexpr
/// array of rows; texts are compared in the order of the rows.
template <class TEnum>
struct EnumRow
{
    TEnum value;
    std::string_view text;
    ERowUse use = ERowUse::Both;
};

template <class TEnum, std::size_t N>
using EnumRows = std::array<EnumRow<TEnum>, N>;

// coverage: cannot be reached from here: the compiler runs it, and leaves its result
template <class TEnum, std::size_t N, std::size_t... I>
constexpr EnumRows<TEnum, N> enumRowsOf(const EnumRow<TEnum> (&rows)[N], std::index_sequence<I...> /*all*/) noexcept
{
    return {{rows[I]...}};
}

/// The rows as they are listed. Nobody counts them: a count that is too high would add a row without a text.
template <class TEnum, std::size_t N>
constexpr EnumRows<TEnum, N> enumRows(const EnumRow<TEnum> (&rows)[N]) noexcept
{
    return enumRowsOf(rows, std::make_index_sequence<N>());
}
// coverage: to here

template <class TEnum, std::size_t N, class TMatch, std::size_t... I>
constexpr const EnumRow<TEnum>* firstRowOf(const EnumRows<TEnum, N>& rows, const TMatch& isMatch,
                                           std::index_sequence<I...> /*all*/) noexcept
{
    const EnumRow<TEnum>* found = nullptr;
    // coverage: cannot be reached: what stands behind the comma is always true
    static_cast<void>(((isMatch(rows[I]) && (found = &rows[I], true)) || ...));
    return found;
}

/// The first row that matches, or none. The walk is unrolled, so that values and texts are constants in it.
template <class TEnum, std::size_t N, class TMatch>
constexpr const EnumRow<TEnum>* firstRow(const EnumRows<TEnum, N>& rows, const TMatch& isMatch) noexcept
{
    return firstRowOf(rows, isMatch, std::make_index_sequence<N>());
}

/// The text of a value, or nothing when it has none. Each conversion throws its own message then.
template <class TEnum, std::size_t N>
const std::string_view* findText(const EnumRows<TEnum, N>& rows, TEnum value) noexcept
{
    const auto* row =
        firstRow(rows, [&](const auto& each) { return each.value == value && each.use != ERowUse::ReadOnly; });
    return row != nullptr ? &row->text : nullptr;
}

/// The value of a text compared exactly, or nothing. The last letters are compared first: the names of an enumeration
/// begin alike rather than end alike.
template <class TEnum, std::size_t N>
const TEnum* findValue(const EnumRows<TEnum, N>& rows, std::string_view text) noexcept
{
    const auto* row = firstRow(rows, [&](const auto& each) {
        return each.text.size() == text.size() && each.text.back() == text.back() && each.text == text &&
               each.use != ERowUse::WriteOnly;
    });
    return row != nullptr ? &row->value : nullptr;
}

/// The value of a text compared in any letter case (ASCII), or nothing.
template <class TEnum, std::size_t N>
const TEnum* findValueIgnoringCase(const EnumRows<TEnum, N>& rows, std::string_view text) noexcept
{
    const auto* row = firstRow(rows, [&](const auto& each) {
        return util::str_is_equal_nocase(each.text, text) && each.use != ERowUse::WriteOnly;
    });
    return row != nullptr ? &row->value : nullptr;
}

/// The texts that are written, in the order of the rows.
template <class TEnum, std::size_t N>
std::vector<std::string> listTexts(const EnumRows<TEnum, N>& rows)
{
    std::vector<std::string> texts;
    texts.reserve(N);
    for (const auto& row : rows)
    {
        if (row.use != ERowUse::ReadOnly)
            texts.emplace_back(row.text);
    }
    return texts;
}

} // namespace zelplatform::model::detail
