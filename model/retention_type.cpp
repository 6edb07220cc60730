#include <zelmodel/retention_type.h>

#include "detail/enum_names.h"

#include <zelplatform/exc/exc.h>

namespace zelplatform::model
{

std::string ERetentionType::ToStr(type value)
{
    const auto name = magic_enum::enum_name(value);
    if (name.empty())
        throw exc::CRuntimeExc("Failed to convert retention type to string.");
    return std::string(name);
}

ERetentionType::type ERetentionType::FromStr(const std::string& text)
{
    if (const auto value = magic_enum::enum_cast<type>(text))
        return *value;
    throw exc::CRuntimeExc("Failed to convert retention type from string.");
}

} // namespace zelplatform::model
