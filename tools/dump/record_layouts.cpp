#include <algorithm>
#include <cstdint>

#include <zelplatform/cloudbackuplib/cloudbackuplib.h>
#include <zelplatform/exc/exc.h>

#include "describe/document.h"
#include "layouts.h"
#include "tellers.h"

namespace dump
{
namespace
{

using describe::Node;

Node describeSchedule(const std::string& xml)
{
    return describe::Document(xml).describe();
}

/// The form holds the start alone: what else a schedule has would be told as missing.
Node describeJobStart(const std::string& xml)
{
    auto schedule = describeSchedule(xml);
    const auto isOther = [](const Node& part) { return part.name != "jobStart"; };
    schedule.children.erase(std::remove_if(schedule.children.begin(), schedule.children.end(), isOther),
                            schedule.children.end());
    return schedule;
}

std::string refusalOfClientId(std::string_view content)
try
{
    if (!canBeGuid(content))
        return whyNoGuid(content);
    cloudbackuplib::CCloudRepoClientId::Deserialize(std::string(content));
    return {};
}
catch (const exc::CRuntimeExc& refusal)
{
    return refusal.what();
}

constexpr Row ServerId = guidRow("serverId", "Server");
constexpr Row Name{"name", "Name", tellText};
constexpr Row DnsName{"dnsName", "DNS name", tellText};
constexpr Row Description{"description", "Description", tellText};
constexpr Row Version{"version", "Version", tellText};
constexpr Row PlatformName{"platformName", "Platform", tellText};
constexpr Row Endpoints{"endpoints", "Endpoints", tellText};
constexpr Row IsTrusted{"isTrusted", "Trusted", tellFlag};
constexpr Row InstallationId = guidRow("installationId", "Installation");

constexpr Row IsEnabled{"isEnabled", "Enabled", tellFlag};
constexpr Row ScheduleType{"scheduleType", "Type", tellNumber<std::int32_t>};
constexpr Row ScheduleText{"text", "Text", tellXml, EShown::WhenSure, nullptr, MostBytes, describeSchedule};
constexpr Row StartText{"text", "Text", tellXml, EShown::WhenSure, nullptr, MostBytes, describeJobStart};

constexpr Row ClientId{"id", "Client", tellText, EShown::Known, refusalOfClientId, LongestGuid};
constexpr Row CompanionMark{"mark", "Mark of companion data", tellText};
constexpr Row Companion{"companion", "Companion data", tellText};

constexpr Row Guid = guidRow("id", "GUID");
constexpr Row Text{"text", "Text", tellText};

} // namespace

std::string whyNoGuid(std::string_view content)
{
    return canBeGuid(content) ? "" : "no GUID";
}

void walkManagingServer(Walk& walk)
{
    for (const auto* row : {&ServerId, &Name, &DnsName, &Description, &Version, &PlatformName, &Endpoints})
        walk.counted<std::uint32_t>(*row);
    walk.number<std::uint8_t>(IsTrusted);
    walk.counted<std::uint32_t>(InstallationId);
}

// The reader passes over what stands before the text.
void walkScheduleOptions(Walk& walk)
{
    walk.number<std::uint8_t>(IsEnabled);
    walk.number<std::int32_t>(ScheduleType);
    walk.counted<std::uint32_t>(ScheduleText);
}

void walkJobStart(Walk& walk)
{
    walk.counted<std::uint32_t>(StartText);
}

void walkCloudClient(Walk& walk)
{
    constexpr char mark = '|';
    walk.bytes(ClientId, std::min(walk.rest().find(mark), walk.rest().size()));
    if (walk.rest().empty())
        return;
    walk.bytes(CompanionMark, sizeof(mark));
    walk.bytes(Companion, walk.rest().size());
}

void walkGuid(Walk& walk)
{
    walk.counted<std::uint32_t>(Guid);
}

void walkText(Walk& walk)
{
    walk.counted<std::uint32_t>(Text);
}

} // namespace dump
