#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include <zelplatform/export.h>

/// Addresses in networks.
namespace io::net
{

/// A host name or address and a port.
class ZELPLATFORM_API CNetworkEndpoint
{
public:
    /// Throws when the host is empty or holds ';', a square bracket, a blank or a control character.
    CNetworkEndpoint(std::string host, std::uint16_t port);

    /// What the constructor was given.
    const std::string& GetHost() const noexcept { return m_host; }
    std::uint16_t GetPort() const noexcept { return m_port; }

    /// "host:port"; a host that holds ':' stands in square brackets.
    std::string ToString() const;

    /// All endpoints in one text, separated by ";"; no endpoints give the empty text.
    static std::string MergeToString(const std::vector<CNetworkEndpoint>& endpoints);

    /// The exact inverse of `MergeToString`; throws on every text that it does not write.
    static std::vector<CNetworkEndpoint> ParseFromString(const std::string& text);

    friend bool operator==(const CNetworkEndpoint& a, const CNetworkEndpoint& b) noexcept
    {
        return a.m_host == b.m_host && a.m_port == b.m_port;
    }
    friend bool operator!=(const CNetworkEndpoint& a, const CNetworkEndpoint& b) noexcept { return !(a == b); }

private:
    std::string m_host;
    std::uint16_t m_port;
};

} // namespace io::net
