#include "visitors.h"

#include <utility>

#include <zelplatform/util/util.h>

#include "document_names.h"
#include "element_fields.h"
#include "words.h"

namespace describe
{
namespace
{

using zelplatform::model::structs::EArchivedLogsTruncationMode;
using zelplatform::model::structs::EPostgreSqlAuthType;
using zelplatform::model::structs::SApplicationProcessingOracleConfig;
using zelplatform::model::structs::SApplicationProcessingPostgresConfig;
using zelplatform::model::structs::SOracleArchivedLogsTruncationConfig;

constexpr unsigned BitsOfGigabyte = 30;

// A number of gigabytes is read unchecked; one beyond 64 bits of bytes has no size.
std::string tellGigabytes(unsigned long count)
{
    const unsigned long bytes = count << BitsOfGigabyte;
    return bytes >> BitsOfGigabyte == count ? sizeOf(bytes) : util::toStr(count) + " GB";
}

std::string tellTruncation(const SOracleArchivedLogsTruncationConfig& truncation)
{
    switch (truncation.mode)
    {
    case EArchivedLogsTruncationMode::Disabled: return "not truncated";
    case EArchivedLogsTruncationMode::ByAge:
        return "truncated when older than " + countOf(truncation.lifetimeHours, "hour");
    case EArchivedLogsTruncationMode::BySize: break;
    }
    return "truncated when larger than " + tellGigabytes(truncation.sizeGB);
}

// Readers take any number. Who applies the settings checks them, so a fault shows there first.
void addFault(const SOracleArchivedLogsTruncationConfig& truncation, const Origin& origin, std::vector<Node>& fields)
try
{
    truncation.Validate();
}
catch (const std::exception& fault)
{
    fields.push_back(makeField("fault", "Refused when applied", fault.what(), fault.what(), origin));
}

Node visitTruncation(const SOracleArchivedLogsTruncationConfig& truncation, const Place& place)
{
    auto node = makeField("truncation", "Archived redo logs", "", tellTruncation(truncation), place.origin());
    ElementFields fields(node, place);
    const auto mode = EArchivedLogsTruncationMode::ToString(truncation.mode);
    fields.addDetail("mode", "Mode", mode, mode, application_names::Mode);
    fields.addDetail("sizeGB", "Size", truncation.sizeGB, tellGigabytes(truncation.sizeGB), application_names::SizeGB);
    fields.addDetail("lifetimeHours", "Age", truncation.lifetimeHours, countOf(truncation.lifetimeHours, "hour"),
                     application_names::LifetimeHours);
    addFault(truncation, place.origin(), node.children);
    return node;
}

} // namespace

Node visitOracleConfig(const SApplicationProcessingOracleConfig& config, const Place& place)
{
    auto node = makeField("oracleConfig", "Oracle processing", "", "", place.origin());
    ElementFields(node, place)
        .addText("username", "User", CUtf8String::FromWide(config.username).str(), application_names::Username);
    node.children.push_back(visitTruncation(config.truncation, place.child(application_names::LogsTruncateConfig)));
    return node;
}

Node visitPostgresConfig(const SApplicationProcessingPostgresConfig& config, const Place& place)
{
    auto node = makeField("postgresConfig", "PostgreSQL processing", "", "", place.origin());
    ElementFields fields(node, place);
    fields.addText("osUser", "User", CUtf8String::FromWide(config.osUser).str(), application_names::OsUser);
    fields.addText("authType", "Authentication", EPostgreSqlAuthType::ToStr(config.authType),
                   application_names::AuthType);
    return node;
}

} // namespace describe
