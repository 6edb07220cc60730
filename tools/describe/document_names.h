#pragma once

// The one set of names that the library's readers and writers use.
#include "detail/application_names.h"
#include "detail/job_names.h"
#include "detail/record_names.h"
#include "detail/repository_names.h"
#include "detail/schedule_names.h"
#include "detail/session_names.h"
#include "detail/storage_names.h"
#include "detail/transform_names.h"

namespace describe
{

namespace application_names = zelplatform::model::detail::application_names;
namespace job_names = zelplatform::model::detail::job_names;
namespace record_names = zelplatform::model::detail::record_names;
namespace repository_names = zelplatform::model::detail::repository_names;
namespace schedule_names = zelplatform::model::detail::schedule_names;
namespace session_names = zelplatform::model::detail::session_names;
namespace storage_names = zelplatform::model::detail::storage_names;
namespace transform_names = zelplatform::model::detail::transform_names;

} // namespace describe
