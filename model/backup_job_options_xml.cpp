#include <zelmodel/backup_job_options.h>

#include <utility>

#include <zelplatform/exc/exc.h>
#include <zelplatform/util/util.h>
#include <zelplatform/xmlpp/xml_undo.h>

#include "detail/job_names.h"
#include "detail/optional_attribute.h"

namespace zelplatform::model
{
namespace
{

namespace names = detail::job_names;

void checkMaxPoints(const SBackupJobOptions& options)
{
    if (options.retentionType == ERetentionType::Cycles && options.maxPoints == 0)
        throw exc::CRuntimeExc("Invalid 'maxPoints' parameter.");
}

// An attribute that is there but empty counts as missing for these two only.
template <class TEnum>
void readIfNotEmpty(const xmlpp::CXmlNode& node, const char* name, TEnum (*fromStr)(const std::string&), TEnum& target)
{
    const auto text = node.FindAttribute(name);
    if (text && !text->empty())
        target = fromStr(std::string(*text));
}

// The flag reads inverted: true, a snapshot is required, becomes NoSnapshot. Kept on purpose.
void readLegacySnapshotFlag(const xmlpp::CXmlNode& node, ESnapshotMode::type& mode)
{
    std::optional<bool> isRequired;
    detail::readIfPresent(node, names::IsSnapshotRequired, isRequired);
    if (isRequired)
        mode = *isRequired ? ESnapshotMode::NoSnapshot : ESnapshotMode::SnapshotRequired;
}

SBackupJobOptions readQorJobOptions(const xml::xml_holder_t& node)
{
    SBackupJobOptions options(KbBlockSize::KbBlockSize1024);
    SBackupJobOptions::tryParseQorJobOptions(node, options);
    return options;
}

void readRetainDays(const xmlpp::CXmlNode& node, std::optional<unsigned long>& days)
{
    const auto child = node.FindChildNode(names::RetainDays);
    if (!child)
        return;
    const bool isAttribute = child->HasAttribute(names::RetainDays);
    days = isAttribute ? child->GetUint64Attribute(names::RetainDays)
                       : util::fromStr<unsigned long>(child->GetInnerText());
}

} // namespace

void SBackupJobOptions::toXml(const xml::xml_holder_t& parent) const
try
{
    // Names every field, so that a new one cannot be forgotten here or in the reader below.
    const auto& [compressionField, blockSizeField, retentionTypeField, maxPointsField, maxDaysField, deletedDaysField,
                 dedupField, snapshotModeField, preFreezeField, postThawField, ignoreFailuresField, scriptsTimeoutField,
                 preJobField, postJobField, retryCountField, retryTimeoutField, indexingField, scheduleField, gfsField,
                 productField] = *this;
    checkMaxPoints(*this);
    auto owner = parent;
    const xmlpp::CXmlUndo undo(owner);
    auto node = owner.AddNode(names::JobOptions);
    node.SetUint64Attribute(names::Version, s_version);
    node.SetAttribute(names::Compression, BackupJobCompression::toStr(compressionField));
    node.SetAttribute(names::BlockSize, KbBlockSize::toStr(blockSizeField));
    node.SetAttribute(names::PrefreezeCommand, preFreezeField);
    node.SetAttribute(names::PostthawCommand, postThawField);
    node.SetAttribute(names::PrejobCommand, preJobField);
    node.SetAttribute(names::PostjobCommand, postJobField);
    node.SetAttribute(names::ProductSpecific, productField);
    node.SetAttribute(names::RetentionType, ERetentionType::ToStr(retentionTypeField));
    node.SetUint64Attribute(names::MaxPoints, maxPointsField);
    node.SetUint64Attribute(names::MaxDays, maxDaysField);
    node.SetBoolAttribute(names::IsDedupEnabled, dedupField);
    node.SetAttribute(names::SnapshotMode, ESnapshotMode::ToString(snapshotModeField));
    node.SetUint64Attribute(names::RetryCount, retryCountField);
    node.SetUint64Attribute(names::RetryTimeOutMs, retryTimeoutField);
    node.AddNode(names::EnableDeletedVmDataRetention).SetInnerText(util::toStr(deletedDaysField.has_value()));
    if (deletedDaysField)
        node.AddNode(names::RetainDays).SetInnerText(util::toStr(*deletedDaysField));
    indexingField.ToXml(node);
    node.SetBoolAttribute(names::Schedule, scheduleField.GetJobStartOptions().IsEnabled());
    scheduleField.ToXml(node);
    if (ignoreFailuresField)
        node.SetBoolAttribute(names::IgnoreFreezeThawFailures, *ignoreFailuresField);
    if (scriptsTimeoutField)
        node.SetInt64Attribute(names::FreezeThawScriptsTimeout, *scriptsTimeoutField);
    gfsField.toXml(node, true);
}
catch (std::exception& cause)
{
    exc::RegenExc("BackupJobOptions: Converting to XML failed.", cause);
}

SBackupJobOptions SBackupJobOptions::parseKivJobOptions(const xml::xml_holder_t& node)
try
{
    SBackupJobOptions options(KbBlockSize::KbBlockSize1024);
    const auto root = node.GetFirstChildNode(names::JobOptions);
    readIfNotEmpty(root, names::Compression, &BackupJobCompression::fromStr, options.compression);
    readIfNotEmpty(root, names::BlockSize, &KbBlockSize::fromStr, options.blockSize);
    detail::readIfPresent(root, names::PrefreezeCommand, options.preFreezeCommand);
    detail::readIfPresent(root, names::PostthawCommand, options.postThawCommand);
    detail::readIfPresent(root, names::PrejobCommand, options.preJobCommand);
    detail::readIfPresent(root, names::PostjobCommand, options.postJobCommand);
    // A document without the attribute counts restore points, although a new object keeps days: on purpose.
    const auto retention = root.FindAttribute(names::RetentionType);
    options.retentionType = retention ? ERetentionType::FromStr(std::string(*retention)) : ERetentionType::Cycles;
    detail::readIfPresent(root, names::MaxPoints, options.maxPoints);
    detail::readIfPresent(root, names::MaxDays, options.maxDays);
    detail::readIfPresent(root, names::IsDedupEnabled, options.dedupEnabled);
    readLegacySnapshotFlag(root, options.snapshotMode);
    detail::readIfPresent(root, names::RetryCount, options.retryCount);
    detail::readIfPresent(root, names::RetryTimeOutMs, options.retryTimeoutMs);
    // "EnableDeletedVmDataRetention" is written and not looked at here, on purpose.
    readRetainDays(root, options.deletedVmDataRetentionDays);
    options.indexing = structs::SIndexingOptions::FromXml(root);
    options.schedule.ReadXml(root);
    detail::readIfPresent(root, names::IgnoreFreezeThawFailures, options.ignoreFreezeThawFailures);
    detail::readIfPresent(root, names::FreezeThawScriptsTimeout, options.freezeThawScriptsTimeout);
    detail::readIfPresent(root, names::ProductSpecific, options.productSpecific);
    if (const auto mode = root.FindAttribute(names::SnapshotMode))
        options.snapshotMode = ESnapshotMode::FromString(std::string(*mode));
    if (const auto policy = root.FindChildNode(names::GfsPolicy))
        options.gfsPolicy = structs::gfs::SGfsPolicyInfo::fromXmlImpl(*policy, true);
    return options;
}
catch (std::exception& cause)
{
    exc::RegenExc("BackupJobOptions: Converting KIV Job options from XML failed.", cause);
}

// The managing server's form is tried first, so "JobOptionsRoot" wins over "JobOptions".
SBackupJobOptions SBackupJobOptions::fromXml(const xml::xml_holder_t& node)
try
{
    auto options = node.HasNode(names::JobOptionsRoot) ? readQorJobOptions(node) : parseKivJobOptions(node);
    checkMaxPoints(options);
    return options;
}
catch (std::exception& cause)
{
    exc::RegenExc("BackupJobOptions: Converting from XML failed.", cause);
}

std::string SBackupJobOptions::toString() const
try
{
    const auto document = xml::TiXmlCreateDoc();
    toXml(document);
    return xml::TiXmlSerialize(document);
}
catch (std::exception& cause)
{
    exc::RegenExc("BackupJobOptions: Converting to string failed.", cause);
}

SBackupJobOptions SBackupJobOptions::fromStr(const std::string& text)
try
{
    return fromXml(xml::TiXmlParseExc(text));
}
catch (std::exception& cause)
{
    exc::RegenExc("BackupJobOptions: Converting from string [%1] failed.", text, cause);
}

} // namespace zelplatform::model
