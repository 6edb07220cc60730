#include <zelmodel/structs/qor_server.h>

#include <utility>

#include <zelmodel/binary_values.h>

namespace zelplatform::model::structs
{

void SQorServer::Serialize(io::binary_stream_tt& stream) const
{
    stream << serverId << name << dnsName << description << version << platformName
           << io::net::CNetworkEndpoint::MergeToString(endpoints) << isTrusted << installationId;
}

void SQorServer::Unserialize(io::binary_stream_tt& stream)
{
    SQorServer read;
    std::string endpointsText;
    stream >> read.serverId >> read.name >> read.dnsName >> read.description >> read.version >> read.platformName >>
        endpointsText;
    read.endpoints = io::net::CNetworkEndpoint::ParseFromString(endpointsText);
    stream >> read.isTrusted >> read.installationId;
    *this = std::move(read);
}

} // namespace zelplatform::model::structs
