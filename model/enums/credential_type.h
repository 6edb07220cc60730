#pragma once

#include <string>

#include <zelmodel/export.h>

namespace zelplatform::model
{

/// The kind of credentials that a job or a repository uses. The numbers are stored in documents.
struct ZELMODEL_API ECredentialType
{
    enum type : int
    {
        Unknown = 0,
        AAP = 1,
        ObjectStorageAWS = 2,
        ObjectStorageGoogle = 3,
        ObjectStorageS3Compat = 4,
        ObjectStorageAzure = 5
    };

    /// The stored name; throws for any other number.
    static std::string ToStr(type value);

    /// Reads a stored name exactly; throws for any other text.
    static type FromStr(const std::string& text);
};

} // namespace zelplatform::model
