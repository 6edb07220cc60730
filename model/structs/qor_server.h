#pragma once

#include <string>
#include <vector>

#include <zelmodel/export.h>
#include <zelplatform/guid/guid.h>
#include <zelplatform/io/io.h>

namespace zelplatform::model::structs
{

/// Who the managing backup server is and how it is reached; exchanged in a binary form.
struct ZELMODEL_API SQorServer
{
    /// Who the server is, and what it says of itself.
    guid::guid_t serverId;
    std::string name;
    std::string dnsName;
    std::string description;
    std::string version;
    std::string platformName;

    /// Where it is reached.
    std::vector<io::net::CNetworkEndpoint> endpoints;

    /// Whether the agent trusts the server.
    bool isTrusted = false;

    /// The identifier of the server's installation.
    guid::guid_t installationId;

    /// The fields in their order; texts with their length in four bytes, endpoints as one text.
    void Serialize(io::binary_stream_tt& stream) const;

    /// Reads what Serialize writes. Nothing changes when the read fails.
    void Unserialize(io::binary_stream_tt& stream);

    friend bool operator==(const SQorServer& a, const SQorServer& b)
    {
        return a.serverId == b.serverId && a.name == b.name && a.dnsName == b.dnsName &&
               a.description == b.description && a.version == b.version && a.platformName == b.platformName &&
               a.endpoints == b.endpoints && a.isTrusted == b.isTrusted && a.installationId == b.installationId;
    }
    friend bool operator!=(const SQorServer& a, const SQorServer& b) { return !(a == b); }
};

} // namespace zelplatform::model::structs
