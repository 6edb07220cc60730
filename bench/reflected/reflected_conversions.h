#pragma once

#include <string>

#include <zelmodel/enumerations.h>

/// The peers of the library's conversions: the same signatures and the same contract (a failure for what has no row)
/// over magic_enum. They are a shared object, so that both sides are called alike and neither is merged with the loop
/// that measures it.
namespace zelmodel_bench
{

std::string blockSizeName(zelplatform::model::KbBlockSize::type value);
zelplatform::model::KbBlockSize::type blockSizeOf(const std::string& name);
zelplatform::model::BackupRepositoryType::type repositoryOf(const std::string& name);

} // namespace zelmodel_bench
