#pragma once

#include <string>

#include <zelmodel/export.h>

namespace zelplatform::model
{

/// Whether a job backs up from a snapshot of the volumes.
struct ZELMODEL_API ESnapshotMode
{
    enum type : int
    {
        SnapshotRequired = 0,
        NoSnapshot = 1,
        Hybrid = 2
    };

    /// The mode of a document that names none: SnapshotRequired.
    static type GetDefault() noexcept { return SnapshotRequired; }

    /// The stored name; throws for any other number.
    static std::string ToString(type value);

    /// Reads a stored name exactly; throws for any other text.
    static type FromString(const std::string& text);
};

} // namespace zelplatform::model
