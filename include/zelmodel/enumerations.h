#pragma once

/// Enumerations of the model that belong to no other family. Each is a struct with a nested `type` and static
/// conversions: to the stored name, from it, and often to words for people. The numbers and the stored names are what
/// documents, command arguments and log lines carry, so neither ever changes; numbers may have gaps.
/// Stored names are read exactly as they are written, unless a conversion says that it takes any letter case; a few
/// also read older names. Words for people are never read back. A value or a text that a conversion does not know
/// throws exc::CRuntimeExc with the decimal number or the text as it was given.
/// EBObjectType alone is a plain enumeration with free functions, because any number is legal for it.

#include <zelmodel/enums/backup_object_type.h>
#include <zelmodel/enums/backup_repository_type.h>
#include <zelmodel/enums/credential_type.h>
#include <zelmodel/enums/db_backup_encryption_state.h>
#include <zelmodel/enums/job_session_state.h>
#include <zelmodel/enums/job_session_type.h>
#include <zelmodel/enums/kb_block_size.h>
#include <zelmodel/enums/oib_algorithm.h>
#include <zelmodel/enums/sennight_of_month.h>
#include <zelmodel/enums/snapshot_mode.h>
