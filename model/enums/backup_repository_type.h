#pragma once

#include <string>
#include <vector>

#include <zelmodel/export.h>

namespace zelplatform::model
{

/// Where a repository keeps its backups. The numbers are stored in documents.
struct ZELMODEL_API BackupRepositoryType
{
    enum type : int
    {
        Unknown = 0,
        LocalDrive = 1,
        QorServer = 2,
        Share = 3,
        Cloud = 4,
        ExternalRepository = 5,
        ObjectStorage = 6
    };

    /// The stored name. Unknown has none, although it is read: it throws as any other number does.
    static std::string toStr(type value);

    /// Reads a stored name in any letter case, "Unknown" and the older name "S3Bucket" of ExternalRepository included.
    static type fromStr(const std::string& text);

    /// The lower-case words shown to people; Unknown has none.
    static std::string getDisplayName(type value);

    /// The stored names of the six kinds that have one, in value order.
    static std::vector<std::string> toStringList();
};

} // namespace zelplatform::model
