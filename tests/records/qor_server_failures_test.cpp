#include <algorithm>
#include <string>

#include <gtest/gtest.h>

#include <platform/memory_device.h>
#include <support/expect_failure.h>
#include <support/stream_failures.h>
#include <zelmodel/structs/qor_server.h>

#include "qor_server_form.h"

namespace
{

using namespace zelmodel_test;
using zelplatform::model::structs::SQorServer;

/// Fails to read from the device and expects that the target keeps all it had.
std::string refusal(TestDevice& device)
{
    io::binary_stream_tt stream(device);
    SQorServer target = sampleServer();
    target.name = "kept";
    target.isTrusted = false;
    target.endpoints = {{"kept", 1}};
    const SQorServer before = target;
    std::string text = failureText([&] { target.Unserialize(stream); });
    EXPECT_TRUE(before == target);
    return text;
}

std::string refusal(const std::string& bytes)
{
    TestDevice device(bytes);
    return refusal(device);
}

/// The text fields and ids of the form, in the order of the stream.
constexpr std::string QorServerForm::*texts[] = {
    &QorServerForm::serverId, &QorServerForm::name,         &QorServerForm::dnsName,   &QorServerForm::description,
    &QorServerForm::version,  &QorServerForm::platformName, &QorServerForm::endpoints, &QorServerForm::secondId,
};

/// The form up to a text, which is replaced and ends the stream.
std::string cutAt(std::string QorServerForm::*text, const std::string& replacement)
{
    QorServerForm form;
    std::string bytes;
    for (const auto field : {&QorServerForm::serverId, &QorServerForm::name, &QorServerForm::dnsName,
                             &QorServerForm::description, &QorServerForm::version, &QorServerForm::platformName,
                             &QorServerForm::endpoints, &QorServerForm::flag, &QorServerForm::secondId})
    {
        if (field == text)
            return bytes + replacement;
        bytes += form.*field;
    }
    return bytes;
}

TEST(QorServerFailures, EveryCutOfTheFormIsRefused)
{
    const std::string bytes = QorServerForm().bytes();
    for (std::size_t size = 0; size < bytes.size(); ++size)
    {
        for (const bool tellsSize : {false, true})
        {
            TestDevice device(bytes.substr(0, size), tellsSize);
            EXPECT_EQ(0U,
                      refusal(device).find("Failed to retrieve value from the binary stream: received less bytes ("))
                << size;
        }
    }
}

TEST(QorServerFailures, ShortReadsTellBothCounts)
{
    EXPECT_EQ(shortRead("0", "4"), refusal(std::string()));
    EXPECT_EQ(shortRead("3", "4"), refusal(std::string(3, '\0')));
    EXPECT_EQ(shortRead("35", "36"), refusal(length(36) + std::string(35, '0')));
    EXPECT_EQ(shortRead("0", "1"), refusal(cutAt(&QorServerForm::flag, "")));
    for (const auto text : texts)
    {
        EXPECT_EQ(shortRead("2", "4"), refusal(cutAt(text, length(9).substr(0, 2))));
        EXPECT_EQ(shortRead("0", "9"), refusal(cutAt(text, length(9))));
        EXPECT_EQ(shortRead("8", "9"), refusal(cutAt(text, length(9) + "12345678")));
    }
}

TEST(QorServerFailures, LengthsThatLieAreNotBelieved)
{
    for (const auto& [size, text] : {std::pair<std::uint32_t, std::string>{0x10000000, "268435456"},
                                     {0x7FFFFFFF, "2147483647"},
                                     {0x80000000, "2147483648"},
                                     {0xFFFFFFFF, "4294967295"}})
    {
        for (const auto field : texts)
        {
            TestDevice device(cutAt(field, length(size) + std::string(100000, 'x')));
            EXPECT_EQ(shortRead("100000", text), refusal(device));
            EXPECT_GE(65536U, *std::max_element(device.calls.begin(), device.calls.end()));
        }
    }
}

TEST(QorServerFailures, LengthsBeyondTheDeviceAreRefusedBeforeTheyAreRead)
{
    for (const auto field : texts)
    {
        TestDevice device(cutAt(field, length(0xFFFFFFFF) + "0123456789"), true);
        EXPECT_EQ(shortRead("10", "4294967295"), refusal(device));
        EXPECT_EQ(device.bytes.size() - 10, device.position);
        EXPECT_EQ(4U, device.calls.back());
    }
}

TEST(QorServerFailures, BrokenDevicesAreTold)
{
    TestDevice device(QorServerForm().bytes());
    device.answerWith(-1);
    EXPECT_EQ(shortRead("-1", "4"), refusal(device));
}

TEST(QorServerFailures, DevicesWithoutRoomAreTold)
{
    const struct
    {
        long count;
        std::string text;
    } table[] = {{-1, "-1"}, {0, "0"}, {3, "3"}};
    for (const auto& row : table)
    {
        TestDevice device;
        device.answerWith(row.count);
        io::binary_stream_tt stream(device);
        EXPECT_EQ(zelmodel_test::shortWrite(row.text, "4"), failureText([&] { sampleServer().Serialize(stream); }));
    }
}

TEST(QorServerFailures, TextsThatAreNoIdAreRefused)
{
    for (const std::string id : {"x", "0a1b2c3d-4e5f-4a6b-8c7d-8e9f0011223", "0a1b2c3d-4e5f-4a6b-8c7d-8e9f001122334",
                                 "0a1b2c3d4e5f4a6b8c7d8e9f00112233", "{0a1b2c3d-4e5f-4a6b-8c7d-8e9f00112233",
                                 "0a1b2c3d-4e5f-4a6b-8c7d-8e9f00112233}", "0a1b2c3d-4e5f-4a6b-8c7d-8e9f0011223g",
                                 " 0a1b2c3d-4e5f-4a6b-8c7d-8e9f00112233", "%1"})
    {
        const std::string bytes = length(static_cast<std::uint32_t>(id.size())) + id;
        QorServerForm first;
        first.serverId = bytes;
        EXPECT_EQ("Unable to convert string [" + id + "] to GUID.", refusal(first.bytes()));
        QorServerForm second;
        second.secondId = bytes;
        EXPECT_EQ("Unable to convert string [" + id + "] to GUID.", refusal(second.bytes()));
    }
}

TEST(QorServerFailures, TextsThatAreNoEndpointsAreRefused)
{
    const struct
    {
        std::string text;
        std::string message;
    } table[] = {
        {"server", "Unable to parse network endpoint [server]. Port is missing."},
        {";", "Unable to parse network endpoint []. Port is missing."},
        {"a:1;", "Unable to parse network endpoint []. Port is missing."},
        {"a:1;b:65536",
         "Unable to parse network endpoint [b:65536]. Unable to convert string [65536] to [unsigned short]."},
        {"a:1;b:-1", "Unable to parse network endpoint [b:-1]. Unable to convert string [-1] to [unsigned short]."},
        {":80", "Unable to parse network endpoint [:80]. Host name [] is not valid."},
    };
    for (const auto& row : table)
    {
        QorServerForm form;
        form.endpoints = length(static_cast<std::uint32_t>(row.text.size())) + row.text;
        EXPECT_EQ(row.message, refusal(form.bytes()));
    }
}

} // namespace
