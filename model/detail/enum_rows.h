#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace zelplatform::model::detail
{

/// In which direction a row converts.
enum class ERowUse
{
    Both,
    ReadOnly,  ///< an alias: read, never written
    WriteOnly, ///< written, never read back
};

/// One row of an enumeration: the value and its stored text. Every enumeration is a constexpr array of rows; texts are
/// compared in the order of the rows.
template <class TEnum>
struct EnumRow
{
    TEnum value;
    std::string_view text;
    ERowUse use = ERowUse::Both;
};

template <class TEnum, std::size_t N>
using EnumRows = std::array<EnumRow<TEnum>, N>;

/// The text of a value, or nothing when it has none. Each conversion throws its own message then.
template <class TEnum, std::size_t N>
std::optional<std::string_view> findText(const EnumRows<TEnum, N>& rows, TEnum value) noexcept
{
    for (const auto& row : rows)
    {
        if (row.value == value && row.use != ERowUse::ReadOnly)
            return row.text;
    }
    return std::nullopt;
}

/// The value of a text compared exactly, or nothing.
template <class TEnum, std::size_t N>
std::optional<TEnum> findValue(const EnumRows<TEnum, N>& rows, std::string_view text) noexcept
{
    for (const auto& row : rows)
    {
        if (row.text == text && row.use != ERowUse::WriteOnly)
            return row.value;
    }
    return std::nullopt;
}

constexpr char toLowerAscii(char c) noexcept
{
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

constexpr bool equalsIgnoringCase(std::string_view a, std::string_view b) noexcept
{
    if (a.size() != b.size())
        return false;
    for (std::size_t i = 0; i < a.size(); ++i)
    {
        if (toLowerAscii(a[i]) != toLowerAscii(b[i]))
            return false;
    }
    return true;
}

/// The value of a text compared in any letter case (ASCII), or nothing.
template <class TEnum, std::size_t N>
std::optional<TEnum> findValueIgnoringCase(const EnumRows<TEnum, N>& rows, std::string_view text) noexcept
{
    for (const auto& row : rows)
    {
        if (equalsIgnoringCase(row.text, text) && row.use != ERowUse::WriteOnly)
            return row.value;
    }
    return std::nullopt;
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
