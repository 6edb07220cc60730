#include "sweep_case.h"

#include <zelmodel/repositories.h>

namespace sweep
{

using zelplatform::model::ERepositoryImmutabilityMode;
using zelplatform::model::structs::EObjectStorageType;

std::vector<Case> repositoryCases()
{
    return {
        {"ERepositoryImmutabilityMode",
         writer(&ERepositoryImmutabilityMode::ToStr),
         reader(&ERepositoryImmutabilityMode::FromStr),
         Letters::Exact,
         {{0, "ByRepositorySettings"}, {1, "ByRetentionSettings"}},
         {},
         "Unexpected repository immutability mode: [%1]",
         "Unknown repository immutability mode string: [%1]."},
        {"EObjectStorageType",
         writer(&EObjectStorageType::ToStr),
         {},
         Letters::Exact,
         {{0, "Unknown"}, {1, "AzureBlobStorage"}, {2, "AmazonS3"}, {3, "AmazonS3Compatible"}, {4, "Google"}},
         {},
         "Failed to convert object storage type to string. Unknown enum type: %1.",
         {}},
        {"EObjectStorageTypeUserFriendly",
         writer(&EObjectStorageType::ToUserFriendlyStr),
         {},
         Letters::Exact,
         {{0, "Unknown"}, {1, "AzureBlobStorage"}, {2, "AmazonS3"}, {3, "AmazonS3Compatible"}, {4, "Google"}},
         {},
         "Failed to convert object storage type to string. Unknown enum type: %1.",
         {}},
        {"EObjectStorageTypeStored",
         {},
         reader(&EObjectStorageType::FromStr),
         Letters::Exact,
         {},
         {{1, "AzureBlobStorage"}, {2, "AmazonS3"}, {3, "AmazonS3Compatible"}, {4, "Google"}},
         {},
         "Failed to convert string to object storage type. Unknown string: [%1]."},
    };
}

} // namespace sweep
