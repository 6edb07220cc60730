#include <zelmodel/structs/postgresql_auth_type.h>

#include <zelplatform/exc/exc.h>
#include <zelplatform/util/util.h>

#include "detail/enum_rows.h"

namespace zelplatform::model::structs
{
namespace
{

constexpr auto Names = detail::enumRows<EPostgreSqlAuthType::type>({
    {EPostgreSqlAuthType::Password, "password"},
    {EPostgreSqlAuthType::File, "file"},
    {EPostgreSqlAuthType::Peer, "peer"},
});

} // namespace

// The capital letter stands in this message and not in the one of reading, kept on purpose.
std::string EPostgreSqlAuthType::ToStr(type value)
try
{
    if (const auto text = detail::findText(Names, value))
        return std::string(*text);
    throw exc::CRuntimeExc("Unknown PostgreSql Authentication type");
}
catch (std::exception& cause)
{
    exc::RegenTraceExc("Unable to convert EPostgreSqlAuthType(%1) to str", util::toStr(value), cause);
}

EPostgreSqlAuthType::type EPostgreSqlAuthType::FromStr(const std::string& text)
try
{
    if (const auto value = detail::findValue(Names, text))
        return *value;
    throw exc::CRuntimeExc("Unknown PostgreSql authentication type");
}
catch (std::exception& cause)
{
    exc::RegenTraceExc("Unable to convert string(%1) to EPostgreSqlAuthType", text, cause);
}

} // namespace zelplatform::model::structs
