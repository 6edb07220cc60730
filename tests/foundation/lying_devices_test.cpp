#include <zelmodel/binary_io.h>

#include <algorithm>
#include <cstring>
#include <limits>
#include <optional>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "support/expect_failure.h"

using namespace zelplatform::model;
using zelmodel_test::failureText;

namespace
{

constexpr const char* GuidText = "01234567-89ab-cdef-0123-456789abcdef";
constexpr unsigned long Step = 65536;
constexpr long Longest = std::numeric_limits<long>::max();

/// A device that tells another count than it moved, from a chosen call on, and another remainder than it has.
struct LyingDevice : io::io_dev_redirector_t
{
    explicit LyingDevice(std::string content = {}) : bytes(std::move(content)) {}

    long write(const void* data, unsigned long size) override
    {
        bytes.append(static_cast<const char*>(data), size);
        return told(size, size);
    }

    long read(void* data, unsigned long size) override
    {
        const auto given = bytes.copy(static_cast<char*>(data), size, position);
        position += given;
        return told(size, given);
    }

    long remaining() const override { return remainder; }

    std::string bytes;
    std::size_t position = 0;
    long remainder = -1;
    std::size_t honestCalls = 0;
    std::optional<long> lie;
    std::vector<unsigned long> calls;

private:
    long told(unsigned long size, unsigned long moved)
    {
        calls.push_back(size);
        return lie && calls.size() > honestCalls ? *lie : static_cast<long>(moved);
    }
};

std::string lengthPrefix(unsigned long length)
{
    std::string prefix;
    for (unsigned shift = 0; shift < 32; shift += 8)
        prefix.push_back(static_cast<char>(length >> shift & 0xFF));
    return prefix;
}

std::string shortRead(const std::string& count, const std::string& expected)
{
    return "Failed to retrieve value from the binary stream: received less bytes (" + count + ") than expected (" +
           expected + ").";
}

/// The refusal of a GUID; the target keeps its value.
std::string readFailure(LyingDevice& device)
{
    io::binary_stream_tt stream(device);
    auto id = guid::guid_t::FromAStr(GuidText);
    const auto failure = failureText([&] { stream >> id; });
    EXPECT_EQ(id.ToAStr(), GuidText);
    return failure;
}

TEST(LyingDevicesTest, TellMoreThanTheyWereAskedFor)
{
    const struct
    {
        std::size_t honestCalls;
        long lie;
        const char* count;
        const char* expected;
    } rows[] = {
        {0, 5, "5", "4"},      {0, Longest, "9223372036854775807", "4"},  {1, 37, "37", "36"}, {1, 0, "0", "36"},
        {1, -36, "-36", "36"}, {1, Longest, "9223372036854775807", "36"},
    };
    for (const auto& row : rows)
    {
        LyingDevice reading(lengthPrefix(36) + GuidText);
        reading.honestCalls = row.honestCalls;
        reading.lie = row.lie;
        EXPECT_EQ(readFailure(reading), shortRead(row.count, row.expected));
        EXPECT_EQ(reading.calls.size(), row.honestCalls + 1);

        LyingDevice writing;
        writing.honestCalls = row.honestCalls;
        writing.lie = row.lie;
        io::binary_stream_tt stream(writing);
        EXPECT_EQ(failureText([&] { stream << guid::guid_t::FromAStr(GuidText); }),
                  std::string("Failed to write value to the binary stream: written less bytes (") + row.count +
                      ") than expected (" + row.expected + ").");
        EXPECT_EQ(writing.calls.size(), row.honestCalls + 1);
    }
}

TEST(LyingDevicesTest, TellMoreInTheMiddleOfALongText)
{
    const std::pair<long, const char*> rows[] = {
        {static_cast<long>(Step) + 1, "131073"},
        {-1, "-1"},
        {Longest, "9223372036854775807"},
    };
    for (const auto& [lie, count] : rows)
    {
        LyingDevice device(lengthPrefix(3 * Step) + std::string(3 * Step, 'a'));
        device.honestCalls = 2;
        device.lie = lie;
        EXPECT_EQ(readFailure(device), shortRead(count, "196608"));
    }
}

TEST(LyingDevicesTest, PromiseMoreThanTheyHave)
{
    LyingDevice device(lengthPrefix(0xFFFFFFFF) + "0123456789");
    device.remainder = Longest;
    EXPECT_EQ(readFailure(device), shortRead("10", "4294967295"));
    EXPECT_EQ(device.calls, (std::vector<unsigned long>{4, Step}));
}

TEST(LyingDevicesTest, PromiseLessThanTheyHaveAndAreBelieved)
{
    LyingDevice device(lengthPrefix(36) + GuidText);
    device.remainder = 35;
    EXPECT_EQ(readFailure(device), shortRead("35", "36"));
    EXPECT_EQ(device.calls, std::vector<unsigned long>{4});
}

TEST(LyingDevicesTest, LeaveTheNextValueWhereATextWasNoGuid)
{
    const std::string texts[] = {std::string(GuidText) + " ", std::string("{") + GuidText, std::string(36, '-')};
    for (const auto& text : texts)
    {
        LyingDevice device(lengthPrefix(text.size()) + text + lengthPrefix(36) + GuidText);
        EXPECT_EQ(readFailure(device), "Unable to convert string [" + text + "] to GUID.");
        guid::guid_t next;
        io::binary_stream_tt stream(device);
        stream >> next;
        EXPECT_EQ(next.ToAStr(), GuidText);
    }
}

} // namespace
