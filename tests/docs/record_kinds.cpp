#include "record_kinds.h"

#include <zelmodel/zelmodel.h>
#include <zelplatform/util/util.h>
#include <zelplatform/xmlpp/xmlpp.h>

#include "readers/reader.h"

namespace zelmodel_test
{
namespace
{

using xmlpp::CXmlDocument;
using namespace zelplatform::model;
using namespace zelplatform::model::structs;

std::string rewriteImmutability(const std::string& text)
{
    const auto settings = SObjectStorageImmutabilitySettings::FromXml(CXmlDocument::Unserialize(text).ToNode());
    const CXmlDocument written;
    auto top = written.ToNode();
    settings.ToXml(top);
    return written.Serialize();
}

std::string tellDirectImmutability(const std::string& text)
{
    const auto direct = SDirectBackupImmutabilitySettings::FromXml(CXmlDocument::Unserialize(text).ToNode());
    const auto& settings = direct.immutabilitySettings;
    return std::string(settings.isEnabled ? "enabled, " : "disabled, ") + util::toStr(settings.intervalDays) +
           " days, mode " + std::to_string(static_cast<int>(settings.mode)) + "; to the tier after " +
           util::toStr(direct.numberDaysForCapacityTierMoveOrArchiveTier) +
           " days; immutable extent: " + util::toStr(direct.hasImmutableCapacityOrArchiveTierExtent) + '\n';
}

std::string writeVariant(const std::string& text)
{
    const auto root = CXmlDocument::Unserialize(text).GetRootNode();
    return SSqlVariant{static_cast<int>(root.GetInt64Attribute("Type")), std::string(root.GetAttribute("Value"))}
        .ToXmlStr();
}

std::string writeOptionKey(const std::string& text)
{
    const auto root = CXmlDocument::Unserialize(text).GetRootNode();
    CXmlDocument written;
    auto option = written.AddRootNode("Option");
    SEntityOptionKey{std::string(root.GetAttribute("Key"))}.ToXmlNode(option);
    return written.Serialize();
}

std::string tellArguments(const std::string& text)
{
    const auto record = STaskLogRecord::FromXml(CXmlDocument::Unserialize(text).GetRootNode());
    const auto arguments = record.ToMivo();
    std::string told;
    const auto tell = [&told](const char* key, const std::string& value) {
        told += std::string(key) + ": " + value + '\n';
    };
    const auto timeOf = [&arguments](const char* key) {
        return arguments->GetDateTime(key).toStdString("%m/%d/%Y %H:%M:%S");
    };
    tell("status", arguments->GetString("status"));
    tell("ordinalId", util::toStr(arguments->GetUInt64("ordinalId")));
    tell("usn", util::toStr(arguments->GetUInt64("usn")));
    tell("title", arguments->GetString("title"));
    tell("description", arguments->GetString("description"));
    tell("updateTimeUtc", timeOf("updateTimeUtc"));
    tell("object", arguments->GetString("object"));
    tell("startTimeUtc", timeOf("startTimeUtc"));
    tell("cookie", arguments->GetString("cookie"));
    return told;
}

} // namespace

std::vector<DocumentKind> recordKinds()
{
    const auto& state = readers::find("SBackupJobState.FromXmlStr").rewrite;
    const auto& full = readers::find("CCreateSyntheticFullSpec.FromString").rewrite;
    return {
        {"xml OracleConfig", true, readers::find("SApplicationProcessingOracleConfig.FromXmlString").rewrite},
        {"xml PostgresConfig", true, readers::find("SApplicationProcessingPostgresConfig.FromXmlString").rewrite},
        {"xml JobSettings", true, readers::find("CRepositoryLimitationsSpec.FromString").rewrite},
        {"xml ImmutabilitySettings", true, rewriteImmutability},
        {"xml DirectBackupImmutabilitySettings", false, tellDirectImmutability},
        {"xml AmazonS3SpecificParams", true, readers::find("SAmazonS3SpecificParams.FromXmlStr").rewrite},
        {"xml root", false, readers::find("SExternalRepoCloudContainer.Unserialize").rewrite},
        {"xml SqlVariant", true, writeVariant},
        {"xml Option", true, writeOptionKey},
        {"xml Details", true, readers::find("JobSessionDetails.fromXmlStr").rewrite},
        {"xml ProgressDetails", true, readers::find("SJobSessionProgressDetails.FromXml").rewrite},
        {"xml Record", false, tellArguments},
        {"xml MountSessionDetails", true, readers::find("SMountSessionDetails.FromXmlStr").rewrite},
        {"xml BackupJobState", true, state},
        {"xml BackupJobState 1", false, state},
        {"xml DeletePointTransformSpec", true, readers::find("CTransformSpec.FromString").rewrite},
        {"xml FullTransformSpec", true, full},
        {"xml FullTransformSpec single", false, full},
        {"xml GfsFullTransformSpec", true, readers::find("CCreateGfsSyntheticFullSpec.FromString").rewrite},
    };
}

} // namespace zelmodel_test
