#include <zelplatform/io/network_endpoint.h>

#include <string>
#include <vector>

#include <gtest/gtest.h>

#include <zelplatform/exc/exc.h>

#include "support/expect_failure.h"

namespace
{

using io::net::CNetworkEndpoint;
using zelmodel_test::failureText;

TEST(NetworkEndpointTest, MergesAndParsesExactly)
{
    struct Case
    {
        std::vector<CNetworkEndpoint> endpoints;
        std::string text;
    };
    const Case cases[] = {
        {{}, ""},
        {{{"server.example", 9392}}, "server.example:9392"},
        {{{"a", 1}, {"b", 65535}}, "a:1;b:65535"},
        {{{"::1", 80}}, "[::1]:80"},
        {{{"fe80::1%eth0", 443}, {"10.0.0.1", 0}}, "[fe80::1%eth0]:443;10.0.0.1:0"},
        {{{"m\xC3\xBCnchen", 1}}, "m\xC3\xBCnchen:1"},
        {{{":", 1}}, "[:]:1"},
        {{{"%1", 2}}, "%1:2"},
    };
    for (const auto& [endpoints, text] : cases)
    {
        EXPECT_EQ(CNetworkEndpoint::MergeToString(endpoints), text);
        EXPECT_EQ(CNetworkEndpoint::ParseFromString(text), endpoints) << text;
    }
}

TEST(NetworkEndpointTest, RefusesBadHosts)
{
    const std::string hosts[] = {"", "a;b", ";", "[", "]", "[::1]", " ", "a b", "a\tb", "a\n", "\x7F", "\x01"};
    for (const auto& host : hosts)
    {
        EXPECT_EQ(failureText([&] { const CNetworkEndpoint endpoint(host, 1); }),
                  "Host name [" + host + "] is not valid.");
    }
    EXPECT_THROW(CNetworkEndpoint(std::string(1, '\0'), 1), exc::CRuntimeExc);
}

TEST(NetworkEndpointTest, SaysWhatIsWrongWithAnEndpoint)
{
    struct Case
    {
        std::string text;
        std::string item;
        std::string reason;
    };
    const Case cases[] = {
        {";", "", "Port is missing."},
        {"a:1;", "", "Port is missing."},
        {";a:1", "", "Port is missing."},
        {"a:1;;b:2", "", "Port is missing."},
        {"a", "a", "Port is missing."},
        {"a:", "a:", "Unable to convert string [] to [unsigned short]."},
        {"a:x", "a:x", "Unable to convert string [x] to [unsigned short]."},
        {"a:-1", "a:-1", "Unable to convert string [-1] to [unsigned short]."},
        {"a:65536", "a:65536", "Unable to convert string [65536] to [unsigned short]."},
        {"a:1; b:2", " b:2", "Host name [ b] is not valid."},
        {":80", ":80", "Host name [] is not valid."},
        {"[]:80", "[]:80", "Host name [] is not valid."},
        {"[::1]", "[::1]", "Unable to convert string [1]] to [unsigned short]."},
        {"[::1:80", "[::1:80", "Host name [[::1] is not valid."},
        {"::1:80", "::1:80", "It reads as [[::1]:80]."},
        {"[a]:80", "[a]:80", "It reads as [a:80]."},
        {"a:080", "a:080", "It reads as [a:80]."},
    };
    for (const auto& expected : cases)
    {
        EXPECT_EQ(failureText([&] { CNetworkEndpoint::ParseFromString(expected.text); }),
                  "Unable to parse network endpoint [" + expected.item + "]. " + expected.reason);
    }
}

TEST(NetworkEndpointTest, ComparesHostAndPort)
{
    const CNetworkEndpoint endpoint("a", 1);
    EXPECT_EQ(endpoint.GetHost(), "a");
    EXPECT_EQ(endpoint.GetPort(), 1);
    EXPECT_EQ(endpoint.ToString(), "a:1");
    EXPECT_EQ(endpoint, CNetworkEndpoint("a", 1));
    EXPECT_NE(endpoint, CNetworkEndpoint("a", 2));
    EXPECT_NE(endpoint, CNetworkEndpoint("A", 1));
}

} // namespace
