#include "option_tables.h"

#include <zelplatform/exc/exc.h>
#include <zelplatform/util/util.h>

#include <zelmodel/retention_type.h>
#include <zelmodel/structs/indexing_options.h>

#include "texts.h"

namespace edit
{
namespace
{

using zelplatform::model::ERetentionType;
using zelplatform::model::structs::EIndexingType;

constexpr const char* Keep = "keep";

std::vector<Assignment> indexing(EIndexingType::type type, const std::string& folders = {})
{
    return {{"indexing.type", EIndexingType::ToStr(type)}, {"indexing.folders", folders}};
}

std::vector<Assignment> indexingOf(const std::string& text)
{
    if (text == "none")
        return indexing(EIndexingType::IsOff);
    if (text == "all")
        return indexing(EIndexingType::IndexAll);
    const auto colon = text.find(':');
    const auto how = text.substr(0, colon);
    const bool hasFolders = colon != std::string::npos && colon + 1 < text.size();
    if (how == "only" && hasFolders)
        return indexing(EIndexingType::IndexOnly, text.substr(colon + 1));
    if (how == "except" && hasFolders)
        return indexing(EIndexingType::IndexExcept, text.substr(colon + 1));
    throw exc::CRuntimeExc("[%1] is none of all, none, only:FOLDERS and except:FOLDERS.", text);
}

// A bare number would be taken for milliseconds by the field, and for minutes by people.
std::vector<Assignment> retryWaitOf(const std::string& text)
{
    return {{"retryTimeoutMs", util::toStr(parseDuration(text))}};
}

std::vector<NewOption> retentionRows()
{
    auto points = rowOf("--keep-points", "N", "Keep so many restore points", "maxPoints",
                        {{"retentionType", ERetentionType::ToStr(ERetentionType::Cycles)}});
    auto days = rowOf("--keep-days", "N", "Keep the restore points of so many days", "maxDays",
                      {{"retentionType", ERetentionType::ToStr(ERetentionType::Days)}});
    points.choice = Keep;
    days.choice = Keep;
    return {points, days,
            rowOf("--keep-deleted", "DAYS", "Keep data of machines that vanished from the job so long",
                  "deletedVmDataRetentionDays")};
}

} // namespace

std::vector<NewOption> jobOptionRows()
{
    auto rows = retentionRows();
    const std::vector<NewOption> others{
        withWords(
            rowOf("--compression", "NAME", "NoCompression, Rle, Lz4, Zstd3, Zstd9, or a level 0 to 4", "compression"),
            {"NoCompression", "Rle", "Lz4", "Zstd3", "Zstd9"}),
        withWords(rowOf("--block-size", "KB", "256, 512, 1024, 2048, 4096 or 8192", "blockSize"),
                  {"256", "512", "1024", "2048", "4096", "8192"}),
        flagOf("--no-dedup", "No deduplication", {{"dedupEnabled", "false"}}),
        withWords(rowOf("--snapshot", "MODE", "SnapshotRequired, NoSnapshot or Hybrid", "snapshotMode"),
                  {"SnapshotRequired", "NoSnapshot", "Hybrid"}),
        rowOf("--pre-freeze", "COMMAND", "Script before freezing", "preFreezeCommand"),
        rowOf("--post-thaw", "COMMAND", "Script after thawing", "postThawCommand"),
        flagOf("--ignore-script-failures", "Failures of freezing and thawing are ignored",
               {{"ignoreFreezeThawFailures", "true"}}),
        rowOf("--script-timeout", "N", "Time-out of the freeze and thaw scripts", "freezeThawScriptsTimeout"),
        rowOf("--pre-job", "COMMAND", "Script before the job", "preJobCommand"),
        rowOf("--post-job", "COMMAND", "Script after the job", "postJobCommand"),
        rowOf("--retries", "N", "How often a failed run is tried again", "retryCount"),
        {"--retry-wait", "TIME", "How long to wait between: 10m, 1h30m", retryWaitOf},
        withWords({"--index", "WHAT", "all, none, only:FOLDERS or except:FOLDERS", indexingOf}, {"all", "none"}),
        rowOf("--product-specific", "TEXT", "Product-specific text", "productSpecific")};
    rows.insert(rows.end(), others.begin(), others.end());
    return rows;
}

} // namespace edit
