#pragma once

#include <string>

#include <zelmodel/export.h>

namespace zelplatform::model
{

/// What a job session does. The numbers are stored in documents.
struct ZELMODEL_API JobSessionType
{
    enum type : int
    {
        Unknown = 0,
        Backup = 1,
        Restore = 2,
        Mount = 3,
        Import = 4,
        Export = 5,
        System = 6,
        Transform = 7,
        Archive = 8
    };

    /// The stored name; throws for any other number.
    static std::string toStr(type value);

    /// Reads a stored name exactly; throws for any other text.
    static type fromStr(const std::string& text);

    /// The folder below the log root: the stored name, but "_system" for a system session. Throws for any other number.
    static std::string toLogFolderName(type value);

    /// The words shown to people ("Backup job", "Volumes restore" ...); throws for any other number.
    static std::string toUserFriendlyStr(type value);
};

} // namespace zelplatform::model
