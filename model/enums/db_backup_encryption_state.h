#pragma once

#include <string>

#include <zelmodel/export.h>

namespace zelplatform::model
{

/// Whether a backup in the database is encrypted, and whether its key has been given.
struct ZELMODEL_API EDbBackupEncryptionState
{
    enum type : int
    {
        Unencrypted = 0,
        Encrypted = 1,
        Decrypted = 2
    };

    /// The stored name; throws for any other number.
    static std::string ToStr(type value);

    /// Reads a stored name exactly; throws for any other text.
    static type FromStr(const std::string& text);
};

} // namespace zelplatform::model
