#pragma once

#include <string>

#include <zelmodel/export.h>
#include <zelmodel/structs/gfs/gfs_flags.h>
#include <zelplatform/datetime/date_time.h>
#include <zelplatform/guid/guid.h>

namespace zelplatform::model::structs::gfs
{

/// A restore point as GFS retention sees it.
struct ZELMODEL_API SGfsPoint
{
    /// The backup storage that holds the point.
    guid::guid_t storageId;

    /// The periods that the point stands for.
    CGfsFlags gfsFlags;

    /// When the point was made, in UTC.
    datetime::CDateTime creationTime{true};

    /// "Storage id [...] creation time [...] gfs flags [...]".
    std::string toLogString() const;

    friend bool operator==(const SGfsPoint& a, const SGfsPoint& b)
    {
        return a.storageId == b.storageId && unsigned{a.gfsFlags} == unsigned{b.gfsFlags} &&
               a.creationTime == b.creationTime;
    }
    friend bool operator!=(const SGfsPoint& a, const SGfsPoint& b) { return !(a == b); }
};

/// Orders points by creation time alone; points of the same time are equivalent.
struct SCreationTimeComparator
{
    /// True when the first point is older.
    bool operator()(const SGfsPoint& a, const SGfsPoint& b) const noexcept { return a.creationTime < b.creationTime; }
};

} // namespace zelplatform::model::structs::gfs
