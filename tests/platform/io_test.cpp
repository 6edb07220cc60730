#include <zelplatform/io/device.h>

#include <limits>
#include <string>

#include <gtest/gtest.h>

#include "memory_device.h"
#include "support/expect_failure.h"
#include "support/stream_failures.h"

namespace
{

using zelmodel_test::failureText;
using zelmodel_test::shortRead;
using zelmodel_test::shortWrite;
using zelmodel_test::TestDevice;

TEST(IoTest, TransfersInOneCall)
{
    TestDevice device;
    EXPECT_EQ(io::detail::write_to_device(device, "abcde", 5), 5UL);
    EXPECT_EQ(device.bytes, "abcde");
    char bytes[3] = {};
    EXPECT_EQ(io::detail::read_from_device(device, bytes, 3), 3UL);
    EXPECT_EQ(std::string(bytes, 3), "abc");
    EXPECT_EQ(device.calls, (std::vector<unsigned long>{5, 3}));
}

TEST(IoTest, RefusesEveryCountButTheExpected)
{
    struct Case
    {
        long count;
        std::string text;
    };
    const Case cases[] = {
        {0, "0"}, {1, "1"}, {3, "3"}, {5, "5"}, {-1, "-1"}, {std::numeric_limits<long>::min(), "-9223372036854775808"},
    };
    for (const auto& [count, text] : cases)
    {
        TestDevice device;
        device.answerWith(count);
        char bytes[4] = {};
        EXPECT_EQ(failureText([&] { io::detail::write_to_device(device, bytes, 4); }), shortWrite(text, "4"));
        EXPECT_EQ(failureText([&] { io::detail::read_from_device(device, bytes, 4); }), shortRead(text, "4"));
        EXPECT_EQ(device.calls.size(), 2U);
    }
}

TEST(IoTest, PrintsTheGreatestSize)
{
    TestDevice device;
    device.answerWith(-1);
    constexpr unsigned long Size = std::numeric_limits<unsigned long>::max();
    EXPECT_EQ(failureText([&] { io::detail::write_to_device(device, "", Size); }),
              shortWrite("-1", "18446744073709551615"));
    EXPECT_EQ(failureText([&] { io::detail::read_from_device(device, nullptr, Size); }),
              shortRead("-1", "18446744073709551615"));
}

TEST(IoTest, DoesNotCheckATransferOfNothing)
{
    for (const long count : {-1L, 0L, 7L})
    {
        TestDevice device;
        device.answerWith(count);
        EXPECT_EQ(io::detail::write_to_device(device, nullptr, 0), 0UL);
        EXPECT_EQ(io::detail::read_from_device(device, nullptr, 0), 0UL);
        EXPECT_EQ(device.calls, (std::vector<unsigned long>{0, 0}));
    }
}

TEST(IoTest, DoesNotKnowWhatIsLeftByDefault)
{
    EXPECT_EQ(TestDevice("abc").remaining(), -1);
}

} // namespace
