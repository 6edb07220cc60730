#include "sweep_case.h"

#include <zelmodel/job_options.h>

namespace sweep
{

using namespace zelplatform::model::structs;
using gfs::EGfsFlags;
using gfs::EGfsTrackingCandidate;

std::vector<Case> jobConfigurationCases()
{
    return {
        {"EGfsFlagsLong",
         [](int value) { return EGfsFlags::toString(static_cast<EGfsFlags::type>(value), false); },
         {},
         Letters::Exact,
         {{0, "None"}, {1, "Weekly"}, {2, "Monthly"}, {8, "Yearly"}},
         {},
         "Unable to convert value [%1] to [long] string.",
         {},
         0},
        {"EGfsFlagsShort",
         [](int value) { return EGfsFlags::toString(static_cast<EGfsFlags::type>(value), true); },
         {},
         Letters::Exact,
         {{0, "N"}, {1, "W"}, {2, "M"}, {8, "Y"}},
         {},
         "Unable to convert value [%1] to [short] string.",
         {},
         0},
        {"EGfsTrackingCandidate",
         writer(&EGfsTrackingCandidate::toString),
         {},
         Letters::Exact,
         {{1, "Outdated"}, {2, "Outlying"}, {3, "Legacy"}, {4, "Retained"}, {5, "Candidate"}},
         {},
         "Unable to convert GfsTrackingCandidate value [%1] to string.",
         {}},
        {"EOwnershipType",
         writer(&EOwnershipType::ToStr),
         reader(&EOwnershipType::FromStr),
         Letters::Any,
         {{0, "NoOwner"}, {1, "QOR"}, {2, "PEL"}},
         {},
         "Unable to convert EOwnershipType::type [%1] to string.",
         "Unable to convert string [%1] to EOwnershipType::type."},
        {"EOwnershipTypeFriendlyName",
         writer(&EOwnershipType::ToFriendlyName),
         {},
         Letters::Exact,
         {{0, "Not set"}, {1, "Backup server"}, {2, "Service provider console"}},
         {},
         "Unable to convert EOwnershipType::type [%1] to string.",
         {}},
        {"EApplicationProcessingType",
         writer(&EApplicationProcessingType::ToStr),
         reader(&EApplicationProcessingType::FromStr),
         Letters::Exact,
         {{0, "disabled"}, {1, "try"}, {2, "required"}},
         {},
         "Failed to convert EApplicationProcessingType(%1) to str Unknown application processing type",
         "Failed to convert string(%1) to EApplicationProcessingType Unknown application processing type"},
        {"EPostgreSqlAuthType",
         writer(&EPostgreSqlAuthType::ToStr),
         reader(&EPostgreSqlAuthType::FromStr),
         Letters::Exact,
         {{0, "password"}, {1, "file"}, {2, "peer"}},
         {},
         "Unable to convert EPostgreSqlAuthType(%1) to str Unknown PostgreSql Authentication type",
         "Unable to convert string(%1) to EPostgreSqlAuthType Unknown PostgreSql authentication type"},
        {"EArchivedLogsTruncationMode",
         writer(&EArchivedLogsTruncationMode::ToString),
         reader(&EArchivedLogsTruncationMode::FromString),
         Letters::Exact,
         {{0, "Disabled"}, {1, "ByAge"}, {2, "BySize"}},
         {},
         "Failed to convert EArchivedLogsTruncationMode::type to string "
         "Unknown EArchivedLogsTruncationMode::type: %1",
         "Failed to convert string to EArchivedLogsTruncationMode::type Unknown string: %1"},
    };
}

} // namespace sweep
