#include <zelmodel/sessions/job_filter_type.h>

#include <zelplatform/exc/exc.h>
#include <zelplatform/util/util.h>

#include "detail/enum_rows.h"

namespace zelplatform::model
{
namespace
{

constexpr auto Names = detail::enumRows<EJobFilterType::type>({
    {EJobFilterType::Include, "Include"},
    {EJobFilterType::Exclude, "Exclude"},
    {EJobFilterType::Unknown, "Unknown"},
});

} // namespace

std::string EJobFilterType::toStr(type value)
{
    if (const auto text = detail::findText(Names, value))
        return std::string(*text);
    throw exc::CRuntimeExc("Cannot convert job filter type to string: unknown record type [%1]", util::toStr(value));
}

EJobFilterType::type EJobFilterType::fromStr(const std::string& text)
{
    if (const auto value = detail::findValue(Names, text))
        return *value;
    throw exc::CRuntimeExc("Cannot convert string to job filter record type: unknown record type [%1]", text);
}

std::string EJobFilterType::toUserFriendlyStr(type value)
{
    return toStr(value);
}

} // namespace zelplatform::model
