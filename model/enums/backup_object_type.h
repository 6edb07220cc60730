#pragma once

#include <cstdint>
#include <string>

#include <zelmodel/export.h>

namespace zelplatform::model
{

/// The kind of a backed-up object. Any 32-bit number is legal: 100 to 199 are custom values that foreign platforms give
/// out, other numbers without a name are carried as they are.
enum EBObjectType : std::int32_t
{
    VM = 1
};

/// "VM", "ExternalPlatformValue" with the number for a custom value, the bare decimal number for any other.
ZELMODEL_API std::string ToString(EBObjectType value);

/// Reads every text that ToString writes, case-sensitively. The prefix is accepted with custom values only; any other
/// text must be a 32-bit decimal number as a whole, else it throws.
ZELMODEL_API EBObjectType ParseBObjectType(const std::string& text);

/// True for 100 <= value < 200.
ZELMODEL_API bool IsCustomValue(EBObjectType value) noexcept;

} // namespace zelplatform::model
