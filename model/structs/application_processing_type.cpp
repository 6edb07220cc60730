#include <zelmodel/structs/application_processing_type.h>

#include <zelplatform/exc/exc.h>
#include <zelplatform/util/util.h>

#include "detail/enum_rows.h"

namespace zelplatform::model::structs
{
namespace
{

constexpr const char* UnknownType = "Unknown application processing type";

constexpr auto Names = detail::enumRows<EApplicationProcessingType::type>({
    {EApplicationProcessingType::Disabled, "disabled"},
    {EApplicationProcessingType::Try, "try"},
    {EApplicationProcessingType::Required, "required"},
});

} // namespace

std::string EApplicationProcessingType::ToStr(type value)
try
{
    if (const auto text = detail::findText(Names, value))
        return std::string(*text);
    throw exc::CRuntimeExc(UnknownType);
}
catch (std::exception& cause)
{
    exc::RegenTraceExc("Failed to convert EApplicationProcessingType(%1) to str", util::toStr(value), cause);
}

EApplicationProcessingType::type EApplicationProcessingType::FromStr(const std::string& text)
try
{
    if (const auto value = detail::findValue(Names, text))
        return *value;
    throw exc::CRuntimeExc(UnknownType);
}
catch (std::exception& cause)
{
    exc::RegenTraceExc("Failed to convert string(%1) to EApplicationProcessingType", text, cause);
}

} // namespace zelplatform::model::structs
