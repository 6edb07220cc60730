#pragma once

#include <zelmodel/datetime/date_time_ex.h>
#include <zelmodel/export.h>

namespace zelplatform::model
{

/// The clock that answers which moment it is, so that a caller decides what "today" means.
class ZELMODEL_API ITimeManager
{
public:
    virtual ~ITimeManager();

    /// The moment that counts as now, with the local offset.
    virtual CDateTimeEx GetCurrentTime() const = 0;
};

} // namespace zelplatform::model
