#pragma once

#include <zelmodel/datetime/date_time_ex.h>
#include <zelmodel/export.h>

#include <zelplatform/guid/guid.h>

namespace zelplatform::model
{

/// The current instant.
ZELMODEL_API CDateTimeEx GetNowTime();

/// A fresh random identifier.
ZELMODEL_API guid::guid_t GenerateNewObjectId();

} // namespace zelplatform::model
