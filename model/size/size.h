#pragma once

#include <string>
#include <type_traits>

#include <zelmodel/export.h>
#include <zelmodel/size/data_size_unit.h>

/// What not only the model uses.
namespace zelplatform
{

/// A number of bytes that reads as a plain number wherever one is wanted. Its arithmetic is plain unsigned 64-bit
/// arithmetic: it wraps, and dividing by a size of 0 is the caller's mistake.
class ZELMODEL_API CSize
{
    // Arithmetic takes two sizes exactly. With a plain number the size converts to its own number instead, or the
    // built-in operators and these would be equally good.
    template <class T>
    using IfSize = std::enable_if_t<std::is_same_v<T, CSize>, CSize>;

public:
    /// So many bytes.
    CSize(unsigned long bytes) noexcept : m_bytes(bytes) {}

    /// Reads a whole number of bytes, "10", or a number with a unit, "1.5 k" or "10GB", in any letter case. The
    /// fraction of a byte is dropped. Throws for a number or a unit that is none, and for sizes of 16 EB and more.
    static CSize FromStr(const std::string& text);

    /// The bytes as a plain number.
    operator unsigned long&() noexcept { return m_bytes; }
    operator const unsigned long&() const noexcept { return m_bytes; }

    /// Of two sizes; with a plain number the result is a plain number.
    template <class T>
    friend IfSize<T> operator+(const CSize& a, const T& b) noexcept
    {
        return CSize(a.m_bytes + b.m_bytes);
    }

    /// Of two sizes; wraps below 0.
    template <class T>
    friend IfSize<T> operator-(const CSize& a, const T& b) noexcept
    {
        return CSize(a.m_bytes - b.m_bytes);
    }

    /// Of two sizes; wraps above 64 bits.
    template <class T>
    friend IfSize<T> operator*(const CSize& a, const T& b) noexcept
    {
        return CSize(a.m_bytes * b.m_bytes);
    }

    /// Of two sizes, rounded down; the second must not be 0.
    template <class T>
    friend IfSize<T> operator/(const CSize& a, const T& b) noexcept
    {
        return CSize(a.m_bytes / b.m_bytes);
    }

    /// The size in the greatest unit that leaves at least 1 (or in bytes), which it names. Always below 1024.
    double ToNBytes(EDataSizeUnit::type& unit) const;

    /// One digit after the point and the long unit: "1.5 KB", "100.0 B".
    std::string ToNBytesStr() const;

    /// The compact form, "1.5G": at most two decimals, cut rather than rounded, and the short unit. The number is cut
    /// to what the unit leaves of maxLength bytes; the unit itself is always written. A size of 0 is empty unless
    /// showZero asks for "0B".
    std::string ToStr(unsigned maxLength, bool showZero) const;

private:
    unsigned long m_bytes;
};

} // namespace zelplatform
