#include <zelmodel/job_options.h>

#include "reader.h"
#include "samples.h"
#include "xml_forms.h"

namespace readers
{
namespace
{

using namespace zelplatform::model;
using namespace zelplatform::model::structs;

std::string rewriteServerJob(const std::string& text)
{
    SBackupJobOptions job(KbBlockSize::KbBlockSize1024);
    return SBackupJobOptions::tryParseQorJobOptions(topOf(text), job) ? job.toString() : "no managing server's form";
}

std::string rewriteIndexing(const std::string& text)
{
    const auto indexing = SIndexingOptions::FromXml(rootOf(text));
    return writtenInto("Owner", [&](xmlpp::CXmlNode& owner) { indexing.ToXml(owner); });
}

template <bool IsShort>
std::string rewritePolicy(const std::string& text)
{
    return gfs::SGfsPolicyInfo::fromXml(topOf(text), IsShort).toXmlString(IsShort);
}

template <bool IsShort>
std::string rewritePolicyElement(const std::string& text)
{
    const auto policy = gfs::SGfsPolicyInfo::fromXmlImpl(rootOf(text), IsShort);
    return writtenInto("GfsPolicy", [&](xmlpp::CXmlNode& root) { policy.toXmlImpl(root, IsShort); });
}

template <class TTraits, bool IsShort>
std::string rewriteRule(const std::string& text)
{
    const auto rule = gfs::SGfsPolicyInfoBase<TTraits>::fromXml(rootOf(text), IsShort);
    return writtenInto("GfsPolicy", [&](xmlpp::CXmlNode& root) { rule.toXml(root, IsShort); });
}

template <class TConfig>
std::string rewriteConfig(const std::string& text)
{
    return TConfig::FromXmlString(text).ToXmlString();
}

template <class TConfig>
std::string rewriteConfigNode(const std::string& text)
{
    return TConfig::FromXmlNode(rootOf(text)).ToXmlString();
}

std::string rewriteTruncation(const std::string& text)
{
    SOracleArchivedLogsTruncationConfig config;
    config.FromXml(rootOf(text));
    return writtenInto("LogsTruncateConfig", [&](xmlpp::CXmlNode& root) { config.ToXml(root); });
}

Texts jobs()
{
    return goldenFolder("JobOptions") +
           goldenFiles({"legacy/job_options_daily", "legacy/job_options_monthly", "legacy/job_options_periodically"});
}

Readers policyReaders()
{
    using gfs::SGfsWeeklyPolicyInfoTraits;
    using gfs::SMonthlyGfsPolicyInfoTraits;
    using gfs::SYearlyGfsPolicyInfoTraits;
    const auto longNames = goldenFiles({"GfsPolicy/long"});
    const auto shortNames = goldenFiles({"GfsPolicy/short", "GfsPolicy/default", "GfsPolicy/yearly_only"});
    const auto allRules = goldenFiles({"GfsPolicy/short"});
    return {
        {"SGfsPolicyInfo.fromXml.short", rewritePolicy<true>, shortNames},
        {"SGfsPolicyInfo.fromXml.long", rewritePolicy<false>, longNames},
        {"SGfsPolicyInfo.fromXmlImpl.short", rewritePolicyElement<true>, shortNames},
        {"SGfsPolicyInfo.fromXmlImpl.long", rewritePolicyElement<false>, longNames},
        {"SGfsPolicyInfoBase.fromXml.weekly", rewriteRule<SGfsWeeklyPolicyInfoTraits, true>, allRules},
        {"SGfsPolicyInfoBase.fromXml.monthly", rewriteRule<SMonthlyGfsPolicyInfoTraits, false>, longNames},
        {"SGfsPolicyInfoBase.fromXml.yearly", rewriteRule<SYearlyGfsPolicyInfoTraits, true>, allRules},
    };
}

} // namespace

Readers jobReaders()
{
    const auto oracle = goldenFolder("OracleConfig");
    const auto postgres = goldenFolder("PostgresConfig");
    Readers readers{
        {"SBackupJobOptions.fromStr",
         [](const std::string& text) { return SBackupJobOptions::fromStr(text).toString(); }, jobs()},
        {"SBackupJobOptions.fromXml",
         [](const std::string& text) { return SBackupJobOptions::fromXml(topOf(text)).toString(); },
         jobs() + goldenFolder("JobOptionsRoot")},
        {"SBackupJobOptions.parseKivJobOptions",
         [](const std::string& text) { return SBackupJobOptions::parseKivJobOptions(topOf(text)).toString(); }, jobs()},
        // There is no writer of the managing server's form: the agent's is written.
        {"SBackupJobOptions.tryParseQorJobOptions", rewriteServerJob, goldenFolder("JobOptionsRoot"), EWritten::Words},
        {"SIndexingOptions.FromXml", rewriteIndexing,
         goldenFolder("Indexing") +
             goldenFiles({"legacy/indexing_all", "legacy/indexing_only", "legacy/indexing_except"})},
        {"SApplicationProcessingOracleConfig.FromXmlString", rewriteConfig<SApplicationProcessingOracleConfig>, oracle},
        {"SApplicationProcessingOracleConfig.FromXmlNode", rewriteConfigNode<SApplicationProcessingOracleConfig>,
         oracle},
        {"SOracleArchivedLogsTruncationConfig.FromXml",
         rewriteTruncation,
         {R"(<LogsTruncateConfig mode="ByAge" sizeGB="10" lifetimeHours="24"/>)"}},
        {"SApplicationProcessingPostgresConfig.FromXmlString", rewriteConfig<SApplicationProcessingPostgresConfig>,
         postgres},
        {"SApplicationProcessingPostgresConfig.FromXmlNode", rewriteConfigNode<SApplicationProcessingPostgresConfig>,
         postgres},
    };
    for (auto& reader : policyReaders())
        readers.push_back(std::move(reader));
    return readers;
}

} // namespace readers
