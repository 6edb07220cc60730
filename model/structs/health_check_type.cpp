#include <zelmodel/structs/health_check_type.h>

#include <zelplatform/exc/exc.h>
#include <zelplatform/util/util.h>

#include "detail/enum_rows.h"

namespace zelplatform::model::structs
{
namespace
{

constexpr auto Names = detail::enumRows<EHealthCheckType::type>({
    {EHealthCheckType::Disabled, "Disabled"},
    {EHealthCheckType::Light, "Light"},
});

} // namespace

std::string EHealthCheckType::ToStr(type value)
{
    if (const auto text = detail::findText(Names, value))
        return std::string(*text);
    throw exc::CRuntimeExc("Unable to convert health-check type [%1] to string.", util::toStr(value));
}

EHealthCheckType::type EHealthCheckType::FromStr(const std::string& text)
{
    if (const auto value = detail::findValue(Names, text))
        return *value;
    throw exc::CRuntimeExc("Unable to convert string [%1] to health-check type.", text);
}

} // namespace zelplatform::model::structs
