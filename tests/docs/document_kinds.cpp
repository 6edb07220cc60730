#include "document_kinds.h"

#include <array>
#include <exception>
#include <memory>

#include <zelmodel/job_options.h>
#include <zelmodel/schedules.h>
#include <zelplatform/exc/exc.h>
#include <zelplatform/xmlpp/xmlpp.h>

#include "readers/reader.h"
#include "record_kinds.h"

namespace zelmodel_test
{
namespace
{

using xmlpp::CXmlDocument;
using namespace zelplatform::model;
using namespace zelplatform::model::structs;

std::string rewriteIndexing(const std::string& text)
{
    CXmlDocument written;
    auto owner = written.AddRootNode("JobOptions");
    SIndexingOptions::FromXml(CXmlDocument::Unserialize(text).GetRootNode("JobOptions")).ToXml(owner);
    return written.Serialize();
}

std::string tellOldSchedule(const std::string& text)
{
    const auto start = CStartJobScheduleOptions::FromXml(CXmlDocument::Unserialize(text).GetRootNode("JobOptions"));
    constexpr std::array<const char*, 4> types{"weekly", "monthly", "periodically", "continuously"};
    return std::string(start.IsEnabled() ? "enabled, " : "disabled, ") +
           types.at(static_cast<std::size_t>(start.GetScheduleType())) + ": " + start.ToLogStr(false) + '\n';
}

std::vector<DocumentKind> jobKinds()
{
    const auto& job = readers::find("SBackupJobOptions.fromXml").rewrite;
    return {
        {"xml JobOptions", true, job},
        {"xml JobOptionsRoot", false, job},
        {"xml ScheduleOptions", true, readers::find("CScheduleOptions.FromXml").rewrite},
        {"xml Schedule", false, tellOldSchedule},
        {"xml ScheduleWindow", true, readers::find("BackupWindow.fromXml").rewrite},
        {"xml GfsPolicy short", true, readers::find("SGfsPolicyInfo.fromXml.short").rewrite},
        {"xml GfsPolicy long", true, readers::find("SGfsPolicyInfo.fromXml.long").rewrite},
        {"xml Indexing", true, rewriteIndexing},
    };
}

} // namespace

const std::vector<DocumentKind>& allKinds()
{
    static const std::vector<DocumentKind> kinds = [] {
        std::vector<DocumentKind> all = jobKinds();
        const auto others = recordKinds();
        all.insert(all.end(), others.begin(), others.end());
        return all;
    }();
    return kinds;
}

const DocumentKind* findKind(const std::string& info)
{
    for (const auto& kind : allKinds())
    {
        if (info == kind.info)
            return &kind;
    }
    return nullptr;
}

std::string compact(const std::string& text)
{
    return CXmlDocument::Unserialize(text).Serialize();
}

std::string refusalOf(const DocumentKind& kind, const std::string& text)
{
    try
    {
        kind.rewrite(text);
    }
    catch (const std::exception& refusal)
    {
        return refusal.what();
    }
    catch (const exc::CRuntimeExc* thrown)
    {
        return std::unique_ptr<const exc::CRuntimeExc>(thrown)->what();
    }
    return {};
}

} // namespace zelmodel_test
