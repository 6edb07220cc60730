#pragma once

#include <cstdint>
#include <string>

#include <zelmodel/structs/qor_server.h>

namespace zelmodel_test
{

/// Four bytes, the lowest first.
inline std::string length(std::uint32_t value)
{
    std::string bytes;
    for (int shift = 0; shift < 32; shift += 8)
        bytes += static_cast<char>(static_cast<unsigned char>(value >> shift));
    return bytes;
}

/// The pieces of the binary form, each as it stands in the stream. The defaults are those of sampleServer().
struct QorServerForm
{
    std::string serverId = std::string("\x24\0\0\0", 4) + "0a1b2c3d-4e5f-4a6b-8c7d-8e9f00112233";
    std::string name = std::string("\x08\0\0\0", 4) + "backup01";
    std::string dnsName = std::string("\x14\0\0\0", 4) + "backup01.example.org";
    std::string description = std::string("\x05\0\0\0a\0\xFF\r\n", 9);
    std::string version = std::string("\x06\0\0\0", 4) + "12.1.0";
    std::string platformName = std::string("\0\0\0\0", 4);
    std::string endpoints = std::string("\x2A\0\0\0", 4) + "backup01.example.org:10006;[fe80::1]:65535";
    std::string flag = std::string("\x01", 1);
    std::string secondId = std::string("\x24\0\0\0", 4) + "ffffffff-0000-4000-8000-000000000001";

    std::string bytes() const
    {
        return serverId + name + dnsName + description + version + platformName + endpoints + flag + secondId;
    }
};

inline zelplatform::model::structs::SQorServer sampleServer()
{
    zelplatform::model::structs::SQorServer server;
    server.serverId = guid::guid_t::FromAStr("0a1b2c3d-4e5f-4a6b-8c7d-8e9f00112233");
    server.name = "backup01";
    server.dnsName = "backup01.example.org";
    server.description = std::string("a\0\xFF\r\n", 5);
    server.version = "12.1.0";
    server.endpoints = {{"backup01.example.org", 10006}, {"fe80::1", 65535}};
    server.isTrusted = true;
    server.installationId = guid::guid_t::FromAStr("ffffffff-0000-4000-8000-000000000001");
    return server;
}

} // namespace zelmodel_test
