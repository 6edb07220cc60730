#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include <zelmodel/export.h>

namespace zelplatform::model::structs::gfs
{

/// What GFS retention has found out about a restore point.
struct ZELMODEL_API EGfsTrackingCandidate
{
    enum type : std::int32_t
    {
        None = 0,
        Outdated = 1,
        Outlying = 2,
        Legacy = 3,
        Retained = 4,
        Candidate = 5
    };

    /// All but None, in value order.
    static std::vector<type> enumerate();

    /// The name; None has none. Throws "Unable to convert GfsTrackingCandidate value [%1] to string.".
    static std::string toString(type value);
};

} // namespace zelplatform::model::structs::gfs
