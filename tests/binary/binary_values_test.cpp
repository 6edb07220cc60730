#include <zelmodel/binary_io.h>

#include <algorithm>
#include <string>

#include <gtest/gtest.h>

#include "support/expect_failure.h"

using namespace zelplatform::model;
using zelmodel_test::failureText;

namespace
{

constexpr const char* GuidText = "01234567-89ab-cdef-0123-456789abcdef";

/// A device over a string that takes and gives only so many bytes in all; it fails altogether when told so.
struct Device : io::io_dev_redirector_t
{
    explicit Device(std::string content = {}) : bytes(std::move(content)) {}

    long write(const void* data, unsigned long size) override
    {
        if (fails)
            return -1;
        const auto taken = std::min(size, capacity - bytes.size());
        bytes.append(static_cast<const char*>(data), taken);
        return static_cast<long>(taken);
    }

    long read(void* data, unsigned long size) override
    {
        if (fails)
            return -1;
        const auto given = bytes.copy(static_cast<char*>(data), size, position);
        position += given;
        return static_cast<long>(given);
    }

    std::string bytes;
    std::size_t position = 0;
    std::size_t capacity = 1000;
    bool fails = false;
};

std::string lengthPrefix(char length)
{
    return std::string({length, '\0', '\0', '\0'});
}

guid::guid_t readGuid(Device& device)
{
    io::binary_stream_tt stream(device);
    auto id = guid::guid_t::FromAStr(GuidText);
    stream >> id;
    return id;
}

std::string readFailure(Device& device)
{
    return failureText([&] { readGuid(device); });
}

std::string writeFailure(Device& device)
{
    io::binary_stream_tt stream(device);
    return failureText([&] { stream << guid::guid_t::FromAStr(GuidText); });
}

TEST(BinaryValuesTest, WritesTheTextOfAGuidBehindItsLength)
{
    Device device;
    io::binary_stream_tt stream(device);
    EXPECT_EQ(&(stream << guid::guid_t::FromAStr(GuidText)), &stream);
    EXPECT_EQ(device.bytes, lengthPrefix(36) + GuidText);
}

TEST(BinaryValuesTest, ReadsBackWhatItWrote)
{
    Device device;
    io::binary_stream_tt stream(device);
    const auto first = guid::guid_t::FromAStr("{FFFFFFFF-0000-4000-8000-000000000001}");
    stream << first << guid::guid_t();
    EXPECT_EQ(device.bytes.size(), 80U);

    guid::guid_t second;
    auto third = first;
    EXPECT_EQ(&(stream >> second >> third), &stream);
    EXPECT_EQ(second, first);
    EXPECT_TRUE(third.IsEmpty());
}

TEST(BinaryValuesTest, ReadsTheEmptyTextAsTheZeroGuid)
{
    Device device(lengthPrefix(0));
    EXPECT_TRUE(readGuid(device).IsEmpty());
    EXPECT_EQ(device.position, 4U);
}

TEST(BinaryValuesTest, TellsHowMuchADeviceTook)
{
    Device withoutRoom;
    withoutRoom.capacity = 3;
    EXPECT_EQ(writeFailure(withoutRoom),
              "Failed to write value to the binary stream: written less bytes (3) than expected (4).");

    Device withRoomForPart;
    withRoomForPart.capacity = 14;
    EXPECT_EQ(writeFailure(withRoomForPart),
              "Failed to write value to the binary stream: written less bytes (10) than expected (36).");

    Device broken;
    broken.fails = true;
    EXPECT_EQ(writeFailure(broken),
              "Failed to write value to the binary stream: written less bytes (-1) than expected (4).");
}

TEST(BinaryValuesTest, TellsHowMuchADeviceGave)
{
    Device withoutLength("\x24");
    EXPECT_EQ(readFailure(withoutLength),
              "Failed to retrieve value from the binary stream: received less bytes (1) than expected (4).");

    Device withPart(lengthPrefix(36) + "01234567-8");
    EXPECT_EQ(readFailure(withPart),
              "Failed to retrieve value from the binary stream: received less bytes (10) than expected (36).");

    Device withLie("\xff\xff\xff\xff"
                   "0123456789");
    EXPECT_EQ(readFailure(withLie),
              "Failed to retrieve value from the binary stream: received less bytes (10) than expected (4294967295).");

    Device broken;
    broken.fails = true;
    EXPECT_EQ(readFailure(broken),
              "Failed to retrieve value from the binary stream: received less bytes (-1) than expected (4).");
}

TEST(BinaryValuesTest, RefusesATextThatIsNoGuidAndKeepsTheTarget)
{
    Device device(lengthPrefix(3) + "abc");
    io::binary_stream_tt stream(device);
    auto id = guid::guid_t::FromAStr(GuidText);
    EXPECT_EQ(failureText([&] { stream >> id; }), "Unable to convert string [abc] to GUID.");
    EXPECT_EQ(id.ToAStr(), GuidText);
}

} // namespace
