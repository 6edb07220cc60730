#pragma once

#include <cstdint>
#include <string>

#include <zelmodel/export.h>

namespace zelplatform::model
{

/// What kind of object a filter record names. 3 and 6 are retired. A second kind of device, 8, is written like a simple
/// disk and comes back as one, on purpose.
struct ZELMODEL_API EJobFilterObject
{
    enum type : std::int32_t
    {
        Unknown = 0,
        SimpleDisk = 1,
        AllSystem = 2,
        FileMask = 4,
        Directory = 5,
        MountPoint = 7,
        Device = 8,
        UserProfile = 9,
        UsbDrive = 10
    };

    /// The stored name; throws "Unable to convert filter to string. Unknown filter type: [%1].".
    static std::string toStr(type value);

    /// Compares exactly, the older name "LVMObject" of a simple disk included; throws "Unable to convert string to
    /// filter type. Unknown filter type string: [%1].".
    static type fromStr(const std::string& text);

    /// The words for people; throws "Unable to convert filter type to string. Unknown filter type: [%1].".
    static std::string toUserFrendlyStr(type value);
};

/// Classifies the kind of object of a filter record; any number may be given.
class ZELMODEL_API CJobFilterObject
{
public:
    /// Takes any number; CheckUnknown tells whether it is one of ours.
    explicit CJobFilterObject(EJobFilterObject::type type) noexcept : m_type(type) {}

    /// The kind as it was given.
    EJobFilterObject::type GetType() const noexcept { return m_type; }

    /// A file mask, a directory, a user's profile or a USB drive.
    bool IsFileLevel() const noexcept;

    /// A device or a mount point.
    bool IsVolumeLevel() const noexcept;

    /// A simple disk, by either of its two numbers.
    bool IsDevice() const noexcept;

    /// MountPoint alone.
    bool IsMountpoint() const noexcept;

    /// AllSystem alone.
    bool IsAllSystem() const noexcept;

    /// Of no level: 0, the retired numbers and every number that is none of ours.
    bool IsUnknown() const noexcept;

    /// Throws "Unknown filter object type: [%1]." when IsUnknown.
    void CheckUnknown() const;

    /// The words for people; throws as EJobFilterObject::toUserFrendlyStr does.
    std::string GetUserFriendlyStr() const;

private:
    EJobFilterObject::type m_type;
};

} // namespace zelplatform::model
