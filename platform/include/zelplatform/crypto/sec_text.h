#pragma once

#include <utility>

#include <zelplatform/util/unicode.h>

namespace crypto
{

/// A text that is erased when it is released: it is no secret itself, but a damaged form can put bytes of keys there.
class sec_text_t
{
public:
    /// Takes the text over.
    explicit sec_text_t(CUniString text) noexcept : m_text(std::move(text)) {}
    sec_text_t(const sec_text_t&) = default;
    sec_text_t(sec_text_t&&) noexcept = default;
    ~sec_text_t() { m_text.Erase(); }

    /// Exchanges the texts; the former one is erased with the argument.
    sec_text_t& operator=(sec_text_t other) noexcept
    {
        std::swap(m_text, other.m_text);
        return *this;
    }

    /// The text, as long as this object lives.
    const CUniString& get() const noexcept { return m_text; }

    /// The text, which the caller erases from now on.
    CUniString release() noexcept { return std::move(m_text); }

private:
    CUniString m_text;
};

} // namespace crypto
