#include <zelmodel/structs/gfs/gfs_point.h>

#include <zelplatform/util/util.h>

namespace zelplatform::model::structs::gfs
{

std::string SGfsPoint::toLogString() const
{
    return util::str_format("Storage id [%1] creation time [%2] gfs flags [%3]", storageId.ToAStr(),
                            creationTime.toStdString(datetime::CDateTime::DefaultFormat), gfsFlags.toString());
}

} // namespace zelplatform::model::structs::gfs
