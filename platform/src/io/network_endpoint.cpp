#include <zelplatform/io/network_endpoint.h>

#include <algorithm>
#include <string_view>
#include <utility>

#include <zelplatform/exc/exc.h>
#include <zelplatform/util/numbers.h>
#include <zelplatform/util/text.h>

namespace io::net
{
namespace
{

constexpr char Separator = ';';
constexpr char PortSeparator = ':';

bool isRefusedInHost(char c) noexcept
{
    const auto byte = static_cast<unsigned char>(c);
    return c == Separator || c == '[' || c == ']' || byte <= 0x20 || byte == 0x7F;
}

// A host of a text may be bracketed without need and a port may have leading zeros; the caller compares.
CNetworkEndpoint parsed(std::string_view text)
{
    const auto colon = text.rfind(PortSeparator);
    if (colon == std::string_view::npos)
        throw exc::CRuntimeExc("Port is missing.");
    std::string_view host = text.substr(0, colon);
    if (host.size() >= 2 && host.front() == '[' && host.back() == ']')
        host = host.substr(1, host.size() - 2);
    return {std::string(host), util::fromStr<std::uint16_t>(text.substr(colon + 1))};
}

CNetworkEndpoint endpointFrom(const std::string& text)
try
{
    auto endpoint = parsed(text);
    if (endpoint.ToString() != text)
        throw exc::CRuntimeExc("It reads as [%1].", endpoint.ToString());
    return endpoint;
}
catch (std::exception& cause)
{
    exc::RegenTraceExc("Unable to parse network endpoint [%1].", text, cause);
}

} // namespace

CNetworkEndpoint::CNetworkEndpoint(std::string host, std::uint16_t port) : m_host(std::move(host)), m_port(port)
{
    if (m_host.empty() || std::any_of(m_host.begin(), m_host.end(), isRefusedInHost))
        throw exc::CRuntimeExc("Host name [%1] is not valid.", m_host);
}

std::string CNetworkEndpoint::ToString() const
{
    const bool isBracketed = m_host.find(PortSeparator) != std::string::npos;
    return util::str_format(isBracketed ? "[%1]:%2" : "%1:%2", m_host, util::toStr(m_port));
}

std::string CNetworkEndpoint::MergeToString(const std::vector<CNetworkEndpoint>& endpoints)
{
    std::string text;
    for (const auto& endpoint : endpoints)
        text.append(text.empty() ? "" : std::string(1, Separator)).append(endpoint.ToString());
    return text;
}

std::vector<CNetworkEndpoint> CNetworkEndpoint::ParseFromString(const std::string& text)
{
    std::vector<CNetworkEndpoint> endpoints;
    for (const auto& item : util::str_tokenize(text, Separator))
        endpoints.push_back(endpointFrom(item));
    return endpoints;
}

} // namespace io::net
