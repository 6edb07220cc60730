#include "record_kinds.h"

#include <zelmodel/zelmodel.h>
#include <zelplatform/util/util.h>
#include <zelplatform/xmlpp/xmlpp.h>

namespace zelmodel_test
{
namespace
{

using xmlpp::CXmlDocument;
using namespace zelplatform::model;
using namespace zelplatform::model::structs;
using namespace zelplatform::model::transform;

template <class TConfig>
std::string rewriteConfig(const std::string& text)
{
    return TConfig::FromXmlString(text).ToXmlString();
}

template <class TSpec>
std::string rewriteSpec(const std::string& text)
{
    return TSpec::FromString(text)->ToString();
}

// The reader wants the element below another one, the writer puts it at the top.
std::string rewriteLimitations(const std::string& text)
{
    return "<Answer>" + CRepositoryLimitationsSpec::FromString(text).ToString() + "</Answer>";
}

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

std::string rewriteStorage(const std::string& text)
{
    return SAmazonS3SpecificParams::FromXmlStr(text).ToXmlStr();
}

std::string rewriteContainer(const std::string& text)
{
    return SExternalRepoCloudContainer::Unserialize(text).Serialize();
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

std::string rewriteDetails(const std::string& text)
{
    return JobSessionDetails::fromXmlStr(text).toXmlStr();
}

std::string rewriteProgress(const std::string& text)
{
    return SJobSessionProgressDetails::FromXml(text).ToXml();
}

std::string rewriteMount(const std::string& text)
{
    return SMountSessionDetails::FromXmlStr(CUtf8String(text)).ToXmlStr();
}

std::string rewriteState(const std::string& text)
{
    return SBackupJobState::FromXmlStr(text).ToXmlString();
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
    return {
        {"xml OracleConfig", true, rewriteConfig<SApplicationProcessingOracleConfig>},
        {"xml PostgresConfig", true, rewriteConfig<SApplicationProcessingPostgresConfig>},
        {"xml JobSettings", true, rewriteLimitations},
        {"xml ImmutabilitySettings", true, rewriteImmutability},
        {"xml DirectBackupImmutabilitySettings", false, tellDirectImmutability},
        {"xml AmazonS3SpecificParams", true, rewriteStorage},
        {"xml root", false, rewriteContainer},
        {"xml SqlVariant", true, writeVariant},
        {"xml Option", true, writeOptionKey},
        {"xml Details", true, rewriteDetails},
        {"xml ProgressDetails", true, rewriteProgress},
        {"xml Record", false, tellArguments},
        {"xml MountSessionDetails", true, rewriteMount},
        {"xml BackupJobState", true, rewriteState},
        {"xml BackupJobState 1", false, rewriteState},
        {"xml DeletePointTransformSpec", true, rewriteSpec<CTransformSpec>},
        {"xml FullTransformSpec", true, rewriteSpec<CCreateSyntheticFullSpec>},
        {"xml FullTransformSpec single", false, rewriteSpec<CCreateSyntheticFullSpec>},
        {"xml GfsFullTransformSpec", true, rewriteSpec<CCreateGfsSyntheticFullSpec>},
    };
}

} // namespace zelmodel_test
