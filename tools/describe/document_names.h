#pragma once

// The one set of names that the library's readers and writers use.
#include "detail/job_names.h"
#include "detail/schedule_names.h"

namespace describe
{

namespace job_names = zelplatform::model::detail::job_names;
namespace schedule_names = zelplatform::model::detail::schedule_names;

} // namespace describe
