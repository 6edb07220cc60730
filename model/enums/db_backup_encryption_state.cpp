#include <zelmodel/enums/db_backup_encryption_state.h>

#include <zelplatform/exc/exc.h>
#include <zelplatform/util/util.h>

#include "detail/enum_rows.h"

namespace zelplatform::model
{
namespace
{

using Rows = EDbBackupEncryptionState;

constexpr auto StoredNames = detail::enumRows<Rows::type>({
    {Rows::Unencrypted, "Unencrypted"},
    {Rows::Encrypted, "Encrypted"},
    {Rows::Decrypted, "Decrypted"},
});

} // namespace

std::string EDbBackupEncryptionState::ToStr(type value)
try
{
    if (const auto text = detail::findText(StoredNames, value))
        return std::string(*text);
    throw exc::CRuntimeExc("Unknown EDbBackupEncryptionState: %1", util::toStr(value));
}
catch (std::exception& cause)
{
    exc::RegenTraceExc("Failed to convert EDbBackupEncryptionState[%1] to string", util::toStr(value), cause);
}

EDbBackupEncryptionState::type EDbBackupEncryptionState::FromStr(const std::string& text)
try
{
    if (const auto value = detail::findValue(StoredNames, text))
        return *value;
    throw exc::CRuntimeExc("Unknown string: %1", text);
}
catch (std::exception& cause)
{
    exc::RegenTraceExc("Failed to convert string[%1] to EDbBackupEncryptionState.", text, cause);
}

} // namespace zelplatform::model
