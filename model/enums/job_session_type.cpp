#include <zelmodel/enums/job_session_type.h>

#include <zelplatform/exc/exc.h>
#include <zelplatform/util/util.h>

#include "detail/enum_rows.h"

namespace zelplatform::model
{
namespace
{

using Rows = JobSessionType;

constexpr auto StoredNames = detail::enumRows<Rows::type>({
    {Rows::Unknown, "Unknown"},
    {Rows::Backup, "Backup"},
    {Rows::Restore, "Restore"},
    {Rows::Mount, "Mount"},
    {Rows::Import, "Import"},
    {Rows::Export, "Export"},
    {Rows::System, "System"},
    {Rows::Transform, "Transform"},
    {Rows::Archive, "Archive"},
});

constexpr auto LogFolderNames = detail::enumRows<Rows::type>({
    {Rows::Unknown, "Unknown"},
    {Rows::Backup, "Backup"},
    {Rows::Restore, "Restore"},
    {Rows::Mount, "Mount"},
    {Rows::Import, "Import"},
    {Rows::Export, "Export"},
    {Rows::System, "_system"},
    {Rows::Transform, "Transform"},
    {Rows::Archive, "Archive"},
});

constexpr auto FriendlyNames = detail::enumRows<Rows::type>({
    {Rows::Unknown, "Unknown job"},
    {Rows::Backup, "Backup job"},
    {Rows::Restore, "Volumes restore"},
    {Rows::Mount, "Files restore"},
    {Rows::Import, "Backup import"},
    {Rows::Export, "Virtual disks export"},
    {Rows::System, "System job"},
    {Rows::Transform, "Backup retention"},
    {Rows::Archive, "Backup archiving"},
});

template <std::size_t N>
std::string textOf(const detail::EnumRows<Rows::type, N>& rows, Rows::type value)
try
{
    if (const auto text = detail::findText(rows, value))
        return std::string(*text);
    throw exc::CRuntimeExc("Unknown state: [%1].", util::toStr(value));
}
catch (std::exception& cause)
{
    exc::RegenTraceExc("Unable to convert SessionType to string.", cause);
}

} // namespace

std::string JobSessionType::toStr(type value)
{
    return textOf(StoredNames, value);
}

JobSessionType::type JobSessionType::fromStr(const std::string& text)
try
{
    if (const auto value = detail::findValue(StoredNames, text))
        return *value;
    throw exc::CRuntimeExc("Unknown input string: [%1].", text);
}
catch (std::exception& cause)
{
    exc::RegenTraceExc("Unable to convert string [%1] to SessionType.", text, cause);
}

std::string JobSessionType::toLogFolderName(type value)
{
    return textOf(LogFolderNames, value);
}

std::string JobSessionType::toUserFriendlyStr(type value)
{
    return textOf(FriendlyNames, value);
}

} // namespace zelplatform::model
