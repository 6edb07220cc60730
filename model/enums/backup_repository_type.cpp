#include <zelmodel/enums/backup_repository_type.h>

#include <zelplatform/exc/exc.h>
#include <zelplatform/util/util.h>

#include "detail/enum_rows.h"

namespace zelplatform::model
{
namespace
{

using Rows = BackupRepositoryType;

constexpr auto StoredNames = detail::enumRows<Rows::type>({
    {Rows::LocalDrive, "LocalDrive"},
    {Rows::QorServer, "QorServer"},
    {Rows::Share, "Share"},
    {Rows::Cloud, "Cloud"},
    {Rows::ExternalRepository, "ExternalRepository"},
    {Rows::ExternalRepository, "S3Bucket", detail::ERowUse::ReadOnly},
    {Rows::ObjectStorage, "ObjectStorage"},
    // Read but never written, kept on purpose: a repository of unknown kind is not stored.
    {Rows::Unknown, "Unknown", detail::ERowUse::ReadOnly},
});

constexpr auto DisplayNames = detail::enumRows<Rows::type>({
    {Rows::LocalDrive, "local"},
    {Rows::QorServer, "backup server"},
    {Rows::Share, "on share"},
    {Rows::Cloud, "cloud"},
    {Rows::ExternalRepository, "external repository"},
    {Rows::ObjectStorage, "object storage"},
});

} // namespace

std::string BackupRepositoryType::toStr(type value)
{
    if (const auto text = detail::findText(StoredNames, value))
        return std::string(*text);
    throw exc::CRuntimeExc("Unable to convert BackupRepositoryType::type [%1] to string.", util::toStr(value));
}

BackupRepositoryType::type BackupRepositoryType::fromStr(const std::string& text)
{
    if (const auto value = detail::findValueIgnoringCase(StoredNames, text))
        return *value;
    throw exc::CRuntimeExc("Unable to convert string [%1] to BackupRepositoryType::type.", text);
}

std::string BackupRepositoryType::getDisplayName(type value)
{
    if (const auto text = detail::findText(DisplayNames, value))
        return std::string(*text);
    throw exc::CRuntimeExc("Unable to convert BackupRepositoryType::type [%1] to display name.", util::toStr(value));
}

std::vector<std::string> BackupRepositoryType::toStringList()
{
    return detail::listTexts(StoredNames);
}

} // namespace zelplatform::model
