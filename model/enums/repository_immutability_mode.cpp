#include <zelmodel/enums/repository_immutability_mode.h>

#include <zelplatform/exc/exc.h>
#include <zelplatform/util/util.h>

#include "detail/enum_rows.h"

namespace zelplatform::model
{
namespace
{

constexpr auto Names = detail::enumRows<ERepositoryImmutabilityMode::type>({
    {ERepositoryImmutabilityMode::ByRepositorySettings, "ByRepositorySettings"},
    {ERepositoryImmutabilityMode::ByRetentionSettings, "ByRetentionSettings"},
});

} // namespace

std::string ERepositoryImmutabilityMode::ToStr(type value)
{
    if (const auto text = detail::findText(Names, value))
        return std::string(*text);
    throw exc::CRuntimeExc("Unexpected repository immutability mode: [%1]", util::toStr(value));
}

ERepositoryImmutabilityMode::type ERepositoryImmutabilityMode::FromStr(const std::string& text)
{
    if (const auto value = detail::findValue(Names, text))
        return *value;
    throw exc::CRuntimeExc("Unknown repository immutability mode string: [%1].", text);
}

ERepositoryImmutabilityMode::type ERepositoryImmutabilityMode::Default() noexcept
{
    return ByRepositorySettings;
}

} // namespace zelplatform::model
