#include <string>
#include <vector>

#include <gtest/gtest.h>

#include <platform/memory_device.h>
#include <support/expect_failure.h>
#include <zelmodel/structs/qor_server.h>

#include "qor_server_form.h"

namespace
{

using namespace zelmodel_test;
using zelplatform::model::structs::SQorServer;

std::string written(const SQorServer& server)
{
    TestDevice device;
    io::binary_stream_tt stream(device);
    server.Serialize(stream);
    return device.bytes;
}

SQorServer read(const std::string& bytes)
{
    TestDevice device(bytes);
    io::binary_stream_tt stream(device);
    SQorServer server;
    server.Unserialize(stream);
    return server;
}

const std::string ZeroId = std::string("\x24\0\0\0", 4) + "00000000-0000-0000-0000-000000000000";

TEST(QorServer, DefaultIsEmpty)
{
    const SQorServer server;
    EXPECT_TRUE(server.serverId.IsEmpty());
    EXPECT_TRUE(server.installationId.IsEmpty());
    EXPECT_EQ("", server.name + server.dnsName + server.description + server.version + server.platformName);
    EXPECT_TRUE(server.endpoints.empty());
    EXPECT_FALSE(server.isTrusted);
}

TEST(QorServer, EqualityComparesEveryField)
{
    const SQorServer base = sampleServer();
    EXPECT_TRUE(base == sampleServer());
    EXPECT_FALSE(base != sampleServer());

    std::vector<SQorServer> others(9, base);
    others[0].serverId = {};
    others[1].name += "x";
    others[2].dnsName += "x";
    others[3].description += "x";
    others[4].version += "x";
    others[5].platformName += "x";
    others[6].endpoints.pop_back();
    others[7].isTrusted = false;
    others[8].installationId = {};
    for (std::size_t field = 0; field < others.size(); ++field)
        EXPECT_TRUE(base != others[field]) << field;
}

TEST(QorServer, WritesItsFieldsInTheirOrder)
{
    EXPECT_EQ(QorServerForm().bytes(), written(sampleServer()));
}

TEST(QorServer, ReadsItsFieldsInTheirOrder)
{
    EXPECT_TRUE(sampleServer() == read(QorServerForm().bytes()));
}

TEST(QorServer, EmptyTextsAreZeroLengthsBetweenTheIds)
{
    const std::string bytes = ZeroId + std::string(20, '\0') + std::string(4, '\0') + std::string(1, '\0') + ZeroId;
    EXPECT_EQ(bytes, written(SQorServer()));
    EXPECT_TRUE(SQorServer() == read(bytes));
}

TEST(QorServer, EmptyTextsAreNotReadFurther)
{
    TestDevice device(written(SQorServer()));
    io::binary_stream_tt stream(device);
    SQorServer server;
    server.Unserialize(stream);
    EXPECT_EQ((std::vector<unsigned long>{4, 36, 4, 4, 4, 4, 4, 4, 1, 4, 36}), device.calls);
}

TEST(QorServer, EachTextHasItsOwnPlace)
{
    SQorServer server;
    server.name = "1";
    server.dnsName = "22";
    server.description = "333";
    server.version = "4444";
    server.platformName = "55555";
    const std::string bytes = ZeroId + length(1) + "1" + length(2) + "22" + length(3) + "333" + length(4) + "4444" +
                              length(5) + "55555" + length(0) + std::string(1, '\0') + ZeroId;
    EXPECT_EQ(bytes, written(server));
    EXPECT_TRUE(server == read(bytes));
}

TEST(QorServer, EndpointsAreOneText)
{
    const struct
    {
        std::vector<io::net::CNetworkEndpoint> endpoints;
        std::string text;
    } table[] = {
        {{}, ""},
        {{{"10.0.0.7", 0}}, "10.0.0.7:0"},
        {{{"b", 2}, {"a", 1}, {"b", 2}}, "b:2;a:1;b:2"},
        {{{"::1", 443}}, "[::1]:443"},
    };
    for (const auto& row : table)
    {
        SQorServer server = sampleServer();
        server.endpoints = row.endpoints;
        QorServerForm form;
        form.endpoints = length(static_cast<std::uint32_t>(row.text.size())) + row.text;
        EXPECT_EQ(form.bytes(), written(server));
        EXPECT_TRUE(server == read(form.bytes())) << row.text;
    }
}

TEST(QorServer, EveryByteButZeroIsTrue)
{
    for (const int byte : {0, 1, 2, 127, 128, 255})
    {
        QorServerForm form;
        form.flag = std::string(1, static_cast<char>(static_cast<unsigned char>(byte)));
        const SQorServer server = read(form.bytes());
        EXPECT_EQ(byte != 0, server.isTrusted) << byte;
        form.flag = std::string(1, byte == 0 ? '\0' : '\1');
        EXPECT_EQ(form.bytes(), written(server)) << byte;
    }
}

TEST(QorServer, IdsMayBeEmptyBracedOrInCapitals)
{
    QorServerForm form;
    form.serverId = length(0);
    form.secondId = length(38) + "{FFFFFFFF-0000-4000-8000-000000000001}";
    const SQorServer server = read(form.bytes());
    EXPECT_TRUE(server.serverId.IsEmpty());
    EXPECT_EQ("ffffffff-0000-4000-8000-000000000001", server.installationId.ToAStr());

    form.serverId = ZeroId;
    form.secondId = QorServerForm().secondId;
    EXPECT_EQ(form.bytes(), written(server));
}

TEST(QorServer, LongTextsSurvive)
{
    SQorServer server = sampleServer();
    server.description = std::string(200000, 'd');
    server.platformName = std::string(65536, '\0');
    EXPECT_TRUE(server == read(written(server)));
}

TEST(QorServer, ReadReplacesEveryField)
{
    TestDevice device(written(SQorServer()));
    io::binary_stream_tt stream(device);
    SQorServer server = sampleServer();
    server.Unserialize(stream);
    EXPECT_TRUE(SQorServer() == server);
}

TEST(QorServer, SeveralRecordsFollowEachOther)
{
    TestDevice device;
    io::binary_stream_tt stream(device);
    sampleServer().Serialize(stream);
    SQorServer().Serialize(stream);
    device.bytes += "rest";

    SQorServer first;
    SQorServer second = sampleServer();
    first.Unserialize(stream);
    second.Unserialize(stream);
    EXPECT_TRUE(sampleServer() == first);
    EXPECT_TRUE(SQorServer() == second);
    EXPECT_EQ(device.bytes.size() - 4, device.position);
}

} // namespace
