#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include <zelmodel/export.h>

namespace zelplatform::model::structs::gfs
{

/// The GFS periods that a restore point can stand for, as bits. The value 4 is no period, on purpose.
struct ZELMODEL_API EGfsFlags
{
    enum type : std::uint32_t
    {
        None = 0,
        Weekly = 1,
        Monthly = 2,
        Yearly = 8
    };

    /// "Weekly" or, short, "W"; throws "Unable to convert value [%1] to [%2] string.".
    static std::string toString(type value, bool isShort);
};

/// A set of GFS periods. The bits are kept as given, unknown ones too.
class ZELMODEL_API CGfsFlags
{
public:
    /// The set of these bits.
    explicit CGfsFlags(unsigned bits = 0) noexcept : m_bits(bits) {}

    /// All bits.
    operator unsigned() const noexcept { return m_bits; }

    /// Adds the flag's bits or takes them out.
    void set(EGfsFlags::type flag) noexcept { m_bits |= flag; }
    void clear(EGfsFlags::type flag) noexcept { m_bits &= ~static_cast<unsigned>(flag); }

    /// True when the bits equal the flag or have a bit in common with it; None is set when no bit is.
    bool isSet(EGfsFlags::type flag) const noexcept { return hasCommonBit(flag); }

    /// True for equal sets and for sets with a common bit; not all bits need to be there.
    bool isSet(const CGfsFlags& other) const noexcept { return hasCommonBit(other.m_bits); }

    /// True when any bit is set, an unknown one too.
    bool isAnySet() const noexcept { return !isSet(EGfsFlags::None); }

    /// The known flags that are set: weekly, monthly, yearly.
    std::vector<EGfsFlags::type> enumerate() const;

    /// The names of the known flags that are set, joined with ", ".
    std::string toString() const;

private:
    bool hasCommonBit(unsigned bits) const noexcept { return m_bits == bits || (m_bits & bits) != 0; }

    unsigned m_bits;
};

} // namespace zelplatform::model::structs::gfs
