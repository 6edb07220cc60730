#include "visitors.h"

#include <utility>

#include <zelplatform/util/util.h>

#include "document_names.h"
#include "element_fields.h"
#include "words.h"

namespace describe
{
namespace
{

using zelplatform::model::ERepositoryImmutabilityMode;
using zelplatform::model::structs::SDirectBackupImmutabilitySettings;
using zelplatform::model::structs::SObjectStorageImmutabilitySettings;

std::string tellImmutability(const SObjectStorageImmutabilitySettings& settings)
{
    const auto days = countOfSigned(settings.intervalDays, "day");
    return settings.isEnabled ? "on for " + days : "off (set to " + days + ")";
}

std::string tellMode(ERepositoryImmutabilityMode::type mode)
{
    switch (mode)
    {
    case ERepositoryImmutabilityMode::ByRepositorySettings: return "the one that is set on the repository";
    case ERepositoryImmutabilityMode::ByRetentionSettings: return "follows the retention of the job";
    }
    return "of an unknown kind (" + util::toStr(mode) + ")";
}

} // namespace

Node visitImmutability(const SObjectStorageImmutabilitySettings& settings, const Place& place)
{
    auto node =
        makeField("immutabilitySettings", "Immutability of backups", "", tellImmutability(settings), place.origin());
    ElementFields fields(node, place);
    fields.addDetail("isEnabled", "Enabled", settings.isEnabled, flagText(settings.isEnabled),
                     storage_names::IsEnabled);
    fields.addDetail("intervalDays", "Days", settings.intervalDays, countOfSigned(settings.intervalDays, "day"),
                     storage_names::IntervalDays);
    fields.add("mode", "Period", static_cast<long>(settings.mode), tellMode(settings.mode),
               storage_names::ImmutabilityMode);
    return node;
}

Node visitDirectImmutability(const SDirectBackupImmutabilitySettings& settings, const Place& place)
{
    auto node = makeField("directBackupImmutabilitySettings", "Immutability of direct backups", "", "", place.origin());
    node.children.push_back(
        visitImmutability(settings.immutabilitySettings, place.child(storage_names::ImmutabilitySettings)));
    ElementFields fields(node, place);
    const auto days = settings.numberDaysForCapacityTierMoveOrArchiveTier;
    fields.add("numberDaysForCapacityTierMoveOrArchiveTier", "Move to capacity or archive tier", days,
               days == 0 ? "no number of days given" : "after " + countOfSigned(days, "day"),
               storage_names::NumberDaysForCapacityTierMoveOrArchiveTier);
    fields.addFlag("hasImmutableCapacityOrArchiveTierExtent", "Extents of that tier",
                   settings.hasImmutableCapacityOrArchiveTierExtent, "one is immutable", "none is immutable",
                   storage_names::HasImmutableCapacityOrArchiveTierExtent);
    return node;
}

} // namespace describe
