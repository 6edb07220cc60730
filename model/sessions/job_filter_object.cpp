#include <zelmodel/sessions/job_filter_object.h>

#include <zelplatform/exc/exc.h>
#include <zelplatform/util/util.h>

#include "detail/enum_rows.h"

namespace zelplatform::model
{
namespace
{

using Object = EJobFilterObject;

constexpr const char* UnknownType = "Unknown filter type: [%1].";

constexpr auto StoredNames = detail::enumRows<Object::type>({
    {Object::Unknown, "Unknown"},
    {Object::SimpleDisk, "SimpleDisk"},
    {Object::SimpleDisk, "LVMObject", detail::ERowUse::ReadOnly},
    {Object::AllSystem, "AllSystem"},
    {Object::FileMask, "FileMask"},
    {Object::Directory, "Directory"},
    {Object::MountPoint, "MountPoint"},
    {Object::Device, "SimpleDisk", detail::ERowUse::WriteOnly},
    {Object::UserProfile, "UserProfile"},
    {Object::UsbDrive, "UsbDrive"},
});

constexpr auto FriendlyNames = detail::enumRows<Object::type>({
    {Object::Unknown, "Unknown object"},
    {Object::SimpleDisk, "Disk"},
    {Object::AllSystem, "All System"},
    {Object::FileMask, "File mask"},
    {Object::Directory, "Directory"},
    {Object::MountPoint, "Mount point"},
    {Object::Device, "Disk"},
    {Object::UserProfile, "User profile"},
    {Object::UsbDrive, "USB drive"},
});

} // namespace

std::string EJobFilterObject::toStr(type value)
try
{
    if (const auto text = detail::findText(StoredNames, value))
        return std::string(*text);
    throw exc::CRuntimeExc(UnknownType, util::toStr(value));
}
catch (std::exception& cause)
{
    exc::RegenTraceExc("Unable to convert filter to string.", cause);
}

EJobFilterObject::type EJobFilterObject::fromStr(const std::string& text)
try
{
    if (const auto value = detail::findValue(StoredNames, text))
        return *value;
    throw exc::CRuntimeExc("Unknown filter type string: [%1].", text);
}
catch (std::exception& cause)
{
    exc::RegenTraceExc("Unable to convert string to filter type.", cause);
}

std::string EJobFilterObject::toUserFrendlyStr(type value)
try
{
    if (const auto text = detail::findText(FriendlyNames, value))
        return std::string(*text);
    throw exc::CRuntimeExc(UnknownType, util::toStr(value));
}
catch (std::exception& cause)
{
    exc::RegenTraceExc("Unable to convert filter type to string.", cause);
}

bool CJobFilterObject::IsFileLevel() const noexcept
{
    return m_type == Object::FileMask || m_type == Object::Directory || m_type == Object::UserProfile ||
           m_type == Object::UsbDrive;
}

bool CJobFilterObject::IsVolumeLevel() const noexcept
{
    return IsDevice() || IsMountpoint();
}

bool CJobFilterObject::IsDevice() const noexcept
{
    return m_type == Object::SimpleDisk || m_type == Object::Device;
}

bool CJobFilterObject::IsMountpoint() const noexcept
{
    return m_type == Object::MountPoint;
}

bool CJobFilterObject::IsAllSystem() const noexcept
{
    return m_type == Object::AllSystem;
}

bool CJobFilterObject::IsUnknown() const noexcept
{
    return !IsVolumeLevel() && !IsFileLevel() && !IsAllSystem();
}

void CJobFilterObject::CheckUnknown() const
{
    if (IsUnknown())
        throw exc::CRuntimeExc("Unknown filter object type: [%1].", util::toStr(m_type));
}

std::string CJobFilterObject::GetUserFriendlyStr() const
{
    return EJobFilterObject::toUserFrendlyStr(m_type);
}

} // namespace zelplatform::model
