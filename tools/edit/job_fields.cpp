#include "field_tables.h"

#include <optional>

#include <zelplatform/util/util.h>

#include "texts.h"

namespace edit
{
namespace
{

namespace model = zelplatform::model;
using model::BackupJobCompression;
using model::ERetentionType;
using model::ESnapshotMode;
using model::KbBlockSize;
using model::SBackupJobOptions;
using model::structs::EIndexingType;

constexpr const char* AnyText = "any text";
constexpr const char* Flag = "true or false";
constexpr const char* Number = "a number";
constexpr const char* OptionalNumber = "a number, or nothing";

BackupJobCompression::type compressionOf(const std::string& text)
{
    return isNumber(text) ? BackupJobCompression::fromLevelStr(text) : BackupJobCompression::fromStr(text);
}

KbBlockSize::type blockSizeOf(const std::string& text)
{
    return isNumber(text) ? KbBlockSize::FromKBytesStr(text) : KbBlockSize::fromStr(text);
}

unsigned long millisecondsOf(const std::string& text)
{
    return isNumber(text) ? util::fromStr<unsigned long>(text) : parseDuration(text);
}

template <class T>
std::optional<T> optionalOf(const std::string& text)
{
    return text.empty() ? std::nullopt : std::optional<T>(util::fromStr<T>(text));
}

Fields<SBackupJobOptions> retentionFields()
{
    using Job = SBackupJobOptions;
    using Text = const std::string&;
    return {
        {"retentionType",
         ERetentionType::ToStr(ERetentionType::Cycles) + ", which counts restore points, or " +
             ERetentionType::ToStr(ERetentionType::Days),
         [](Job& job, Text text) { job.retentionType = ERetentionType::FromStr(text); }},
        {"maxPoints", "1 to 730", [](Job& job, Text text) { job.setMaxPoints(util::fromStr<unsigned long>(text)); }},
        {"maxDays", "1 to 730", [](Job& job, Text text) { job.setMaxDays(util::fromStr<unsigned long>(text)); }},
        {"deletedVmDataRetentionDays", OptionalNumber,
         [](Job& job, Text text) { job.deletedVmDataRetentionDays = optionalOf<unsigned long>(text); }},
    };
}

Fields<SBackupJobOptions> storageFields()
{
    using Job = SBackupJobOptions;
    using Text = const std::string&;
    return {
        {"compression", util::str_join(BackupJobCompression::toStringList(), ", ") + ", or a level 0 to 4",
         [](Job& job, Text text) { job.compression = compressionOf(text); }},
        {"blockSize", util::str_join(KbBlockSize::toStringList(), ", ") + ", or the number of KB",
         [](Job& job, Text text) { job.blockSize = blockSizeOf(text); }},
    };
}

Field<SBackupJobOptions> textField(const char* path, std::string SBackupJobOptions::*member)
{
    return {path, AnyText, [member](SBackupJobOptions& job, const std::string& text) { job.*member = text; }};
}

Fields<SBackupJobOptions> runFields()
{
    using Job = SBackupJobOptions;
    using Text = const std::string&;
    return {
        {"dedupEnabled", Flag, [](Job& job, Text text) { job.dedupEnabled = util::str_to_bool(text); }},
        {"snapshotMode",
         util::str_join({ESnapshotMode::ToString(ESnapshotMode::SnapshotRequired),
                         ESnapshotMode::ToString(ESnapshotMode::NoSnapshot),
                         ESnapshotMode::ToString(ESnapshotMode::Hybrid)},
                        ", "),
         [](Job& job, Text text) { job.snapshotMode = ESnapshotMode::FromString(text); }},
        textField("preFreezeCommand", &Job::preFreezeCommand),
        textField("postThawCommand", &Job::postThawCommand),
        {"ignoreFreezeThawFailures", "true, false, or nothing",
         [](Job& job, Text text) { job.ignoreFreezeThawFailures = optionalOf<bool>(text); }},
        {"freezeThawScriptsTimeout", OptionalNumber,
         [](Job& job, Text text) { job.freezeThawScriptsTimeout = optionalOf<long>(text); }},
        textField("preJobCommand", &Job::preJobCommand),
        textField("postJobCommand", &Job::postJobCommand),
        {"retryCount", Number, [](Job& job, Text text) { job.retryCount = util::fromStr<unsigned long>(text); }},
        {"retryTimeoutMs", "milliseconds, or a length of time such as 10m or 1h30m",
         [](Job& job, Text text) { job.retryTimeoutMs = millisecondsOf(text); }},
        {"indexing.type",
         util::str_join({EIndexingType::ToStr(EIndexingType::IsOff), EIndexingType::ToStr(EIndexingType::IndexAll),
                         EIndexingType::ToStr(EIndexingType::IndexOnly),
                         EIndexingType::ToStr(EIndexingType::IndexExcept)},
                        ", "),
         [](Job& job, Text text) { job.indexing.type = EIndexingType::FromStr(text); }},
        {"indexing.folders", "folders, as one text", [](Job& job, Text text) { job.indexing.folders = text; }},
    };
}

void addOptions(Fields<JobDraft>& fields, const Fields<SBackupJobOptions>& optionFields)
{
    for (const auto& field : optionFields)
        fields.push_back({field.path, field.help,
                          [set = field.set](JobDraft& draft, const std::string& text) { set(draft.options, text); }});
}

model::structs::gfs::SGfsPolicyInfo& policyOf(JobDraft& draft)
{
    return draft.options.gfsPolicy;
}

ScheduleDraft& scheduleOf(JobDraft& draft)
{
    return draft.schedule;
}

Fields<JobDraft> makeJobFields()
{
    Fields<JobDraft> fields;
    addOptions(fields, storageFields());
    addOptions(fields, retentionFields());
    addOptions(fields, runFields());
    addPart(fields, "gfsPolicy", gfsFields(), policyOf);
    addOptions(fields, {textField("productSpecific", &SBackupJobOptions::productSpecific)});
    addPart(fields, "schedule", scheduleFields(), scheduleOf);
    return fields;
}

} // namespace

const Fields<JobDraft>& jobFields()
{
    static const auto fields = makeJobFields();
    return fields;
}

} // namespace edit
