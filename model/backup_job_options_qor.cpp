#include <zelmodel/backup_job_options.h>

#include <utility>

#include <zelplatform/exc/exc.h>
#include <zelplatform/util/util.h>

#include "detail/job_names.h"

namespace zelplatform::model
{
namespace
{

namespace names = detail::job_names;

// What keeps a server's document valid when it keeps days and counts no points.
constexpr unsigned long RepairedMaxPoints = 7;

template <class T, class TConversion>
void readTextIfPresent(const xmlpp::CXmlNode& root, const char* element, T& target, const TConversion& convert)
{
    if (const auto child = root.FindChildNode(element))
        target = convert(child->GetInnerText());
}

void readRetention(const xmlpp::CXmlNode& root, SBackupJobOptions& options)
{
    const auto child = root.FindChildNode(names::RetentionType);
    if (!child)
        return;
    options.retentionType = ERetentionType::FromStr(child->GetInnerText());
    if (options.retentionType != ERetentionType::Cycles && options.maxPoints == 0)
        options.maxPoints = RepairedMaxPoints;
}

} // namespace

bool SBackupJobOptions::tryParseQorJobOptions(const xml::xml_holder_t& node, SBackupJobOptions& out)
try
{
    const auto root = node.FindChildNode(names::JobOptionsRoot);
    if (!root)
        return false;
    const auto toNumber = [](const std::string& text) { return util::fromStr<unsigned long>(text); };
    const auto toFlag = [](const std::string& text) { return util::fromStr<bool>(text); };
    auto options = out;
    readTextIfPresent(*root, names::CompressionLevel, options.compression, &BackupJobCompression::fromQorLevelStr);
    readTextIfPresent(*root, names::StgBlockSize, options.blockSize, &KbBlockSize::fromStr);
    readTextIfPresent(*root, names::RetainCycles, options.maxPoints, toNumber);
    readTextIfPresent(*root, names::RetainDaysToKeep, options.maxDays, toNumber);
    readRetention(*root, options);
    readTextIfPresent(*root, names::EnableDeduplication, options.dedupEnabled, toFlag);
    bool isDeletedDataKept = false;
    readTextIfPresent(*root, names::EnableDeletedVmDataRetention, isDeletedDataKept, toFlag);
    if (isDeletedDataKept)
        readTextIfPresent(*root, names::RetainDays, options.deletedVmDataRetentionDays, toNumber);
    out = std::move(options);
    return true;
}
catch (std::exception& cause)
{
    exc::RegenExc("BackupJobOptions: Converting QOR Job options from XML failed.", cause);
}

} // namespace zelplatform::model
