#include <zelmodel/enums/crypto_key_type.h>

#include <zelplatform/exc/exc.h>
#include <zelplatform/util/util.h>

#include "detail/enum_rows.h"

namespace zelplatform::model
{
namespace
{

using Key = ECryptoKeyType;
using crypto::EKeySetUsageRole;

constexpr auto LogNames = detail::enumRows<Key::type>({
    {Key::Password, "Password"},
    {Key::Session, "Session"},
    {Key::Storage, "Storage"},
    {Key::Meta, "Meta"},
    {Key::Enterprise, "Enterprise"},
    {Key::DB, "DB"},
    {Key::Archive, "Archive"},
    {Key::History, "History"},
    {Key::PublicPolicy, "PublicPolicy"},
    {Key::PrivatePolicy, "PrivatePolicy"},
    {Key::SymmetricRndAgent, "SymmetricRndAgent"},
    {Key::KmsMasterPublic, "KmsMasterPublic"},
});

struct RoleRow
{
    Key::type type;
    EKeySetUsageRole role;
};

// Of two types with one role the first of the rows comes back.
constexpr RoleRow Roles[] = {
    {Key::Password, EKeySetUsageRole::Password},
    {Key::Session, EKeySetUsageRole::Session},
    {Key::Storage, EKeySetUsageRole::Storage},
    {Key::Meta, EKeySetUsageRole::Meta},
    {Key::DB, EKeySetUsageRole::Meta},
    {Key::Enterprise, EKeySetUsageRole::Enterprise},
    {Key::Archive, EKeySetUsageRole::Archive},
    {Key::History, EKeySetUsageRole::History},
    {Key::PrivatePolicy, EKeySetUsageRole::Policy},
    {Key::PublicPolicy, EKeySetUsageRole::Policy},
    {Key::SymmetricRndAgent, EKeySetUsageRole::SymmetricRndAgent},
    {Key::KmsMasterPublic, EKeySetUsageRole::KmsMasterPublic},
};

} // namespace

std::string ECryptoKeyType::ToLogString(type value)
{
    if (const auto text = detail::findText(LogNames, value))
        return std::string(*text);
    return util::str_format("Unknown (%1)", util::toStr(value));
}

EKeySetUsageRole ECryptoKeyType::ToCryptoKeyRole(type value)
{
    for (const auto& row : Roles)
    {
        if (row.type == value)
            return row.role;
    }
    throw exc::CRuntimeExc("Unable to convert ECryptoKeyType %1 to EKeySetUsageRole", util::toStr(value));
}

ECryptoKeyType::type ECryptoKeyType::FromCryptoKeyRole(EKeySetUsageRole role)
{
    for (const auto& row : Roles)
    {
        if (row.role == role)
            return row.type;
    }
    throw exc::CRuntimeExc("Unable to convert EKeySetUsageRole %1 to ECryptoKeyType", util::toStr(role));
}

} // namespace zelplatform::model
