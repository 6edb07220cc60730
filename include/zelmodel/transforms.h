#pragma once

/// Transforms: work on an existing backup chain, told as a small document. CTransformSpec deletes restore points,
/// CCreateSyntheticFullSpec builds a synthetic full from the last increments, CCreateGfsSyntheticFullSpec one for GFS
/// retention; ITransformSpec is what they share, and reads the first two by their type.

#include <zelmodel/transform/create_gfs_synthetic_full_spec.h>
#include <zelmodel/transform/create_synthetic_full_spec.h>
#include <zelmodel/transform/i_transform_spec.h>
#include <zelmodel/transform/transform_operation_type.h>
#include <zelmodel/transform/transform_spec.h>
