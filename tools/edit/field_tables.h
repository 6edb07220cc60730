#pragma once

#include <zelmodel/structs/gfs/gfs_policy_info.h>

#include "field.h"
#include "record.h"

/// The settable fields of each record, in the order of the tree: the one place that knows how a field is set. Values go
/// through the library's setters and texts of enumerations, and are refused in its words.
namespace edit
{

const Fields<JobDraft>& jobFields();
const Fields<ScheduleDraft>& scheduleFields();
const Fields<WindowDraft>& windowFields();
const Fields<zelplatform::model::structs::gfs::SGfsPolicyInfo>& gfsFields();

} // namespace edit
