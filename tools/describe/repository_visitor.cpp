#include "visitors.h"

#include <zelplatform/util/util.h>

#include "document_names.h"
#include "element_fields.h"
#include "words.h"

namespace describe
{
namespace
{

using zelplatform::model::structs::CRepositoryLimitationsSpec;

std::string tellChainLength(int length)
{
    return length < 0 ? util::toStr(length) + ", no number of restore points"
                      : "at most " + countOfSigned(length, "restore point");
}

} // namespace

Node visitRepositoryLimitations(const CRepositoryLimitationsSpec& limitations, const Place& place)
{
    auto node = makeField("repositoryLimitations", "Repository limitations", "", "", place.origin());
    ElementFields fields(node, place);
    fields.addIdentifier("repositoryId", "Repository", limitations.GetRepositoryId(), repository_names::RepositoryId);
    const Value mode(static_cast<long>(limitations.GetBackupMode()));
    fields.add("backupMode", "Backup mode", mode, "number " + mode.text + " of the job model",
               repository_names::BackupMode);
    fields.addFlag("fullBackupEnabled", "Active full", limitations.IsFullBackupEnabled(), "allowed", "not allowed",
                   repository_names::FullBackupEnabled);
    fields.addFlag("compactFullEnabled", "Compact of full", limitations.GetIsCompactFullEnabled(), "allowed",
                   "not allowed", repository_names::CompactFullEnabled);
    fields.addFlag("transformIncrementsToSynthetic", "Increments", limitations.ShouldTransformIncrementsToSynthetic(),
                   "transformed into synthetic backups", "not transformed",
                   repository_names::TransformIncrementsToSynthetic);
    fields.addFlag("transformFullToSynthetic", "Full backup", limitations.ShouldTransformFullToSynthetic(),
                   "transformed into a synthetic one", "not transformed", repository_names::TransformFullToSynthetic);
    fields.add("chainLength", "Backup chain", limitations.GetChainLength(),
               tellChainLength(limitations.GetChainLength()), repository_names::ChainLength);
    return node;
}

} // namespace describe
