#include <zelplatform/io/binary_stream.h>

#include <cstdint>
#include <functional>
#include <limits>
#include <string>
#include <type_traits>

#include <gtest/gtest.h>

#include <zelplatform/io/mem_stream.h>

#include "memory_device.h"
#include "support/expect_failure.h"
#include "support/stream_failures.h"

namespace
{

using io::binary_stream_tt;
using zelmodel_test::failureText;
using zelmodel_test::shortRead;
using zelmodel_test::TestDevice;

enum EPlain
{
    Zero
};

template <class T, class = void>
struct IsWritable : std::false_type
{
};

template <class T>
struct IsWritable<T, std::void_t<decltype(std::declval<binary_stream_tt&>() << std::declval<T>())>> : std::true_type
{
};

static_assert(IsWritable<std::uint8_t>::value && IsWritable<bool>::value && IsWritable<std::string>::value);
static_assert(!IsWritable<const char*>::value && !IsWritable<char>::value && !IsWritable<EPlain>::value);
static_assert(!IsWritable<double>::value && !IsWritable<std::uint16_t>::value && !IsWritable<long long>::value);

crypto::sec_buffer_t secure(const std::string& text)
{
    return {text.begin(), text.end()};
}

TEST(BinaryStreamTest, WritesLittleEndianValuesOfFixedWidth)
{
    struct Case
    {
        std::function<void(binary_stream_tt&)> write;
        std::string bytes;
    };
    const Case cases[] = {
        {[](auto& s) { s << false << true; }, std::string("\0\1", 2)},
        {[](auto& s) { s << std::uint8_t{0xFE}; }, "\xFE"},
        {[](auto& s) { s << std::int32_t{-2}; }, "\xFE\xFF\xFF\xFF"},
        {[](auto& s) { s << std::int32_t{0x01020304}; }, "\x04\x03\x02\x01"},
        {[](auto& s) { s << std::uint32_t{0xFFEEDDCC}; }, "\xCC\xDD\xEE\xFF"},
        {[](auto& s) { s << std::int64_t{-2}; }, "\xFE\xFF\xFF\xFF\xFF\xFF\xFF\xFF"},
        {[](auto& s) { s << std::uint64_t{0x0102030405060708}; }, "\x08\x07\x06\x05\x04\x03\x02\x01"},
        {[](auto& s) { s << std::string(); }, std::string(4, '\0')},
        {[](auto& s) { s << std::string("ab"); }, std::string("\2\0\0\0ab", 6)},
        {[](auto& s) { s << std::string("a\0b", 3); }, std::string("\3\0\0\0a\0b", 7)},
        {[](auto& s) { s.write_text("xyz"); }, std::string("\3\0\0\0xyz", 7)},
        {[](auto& s) { s << secure("key"); }, std::string("\3\0\0\0key", 7)},
        {[](auto& s) { s << crypto::sec_buffer_t(); }, std::string(4, '\0')},
        {[](auto& s) { s.write("raw", 3); }, "raw"},
    };
    for (const auto& [write, bytes] : cases)
    {
        TestDevice device;
        binary_stream_tt stream(device);
        write(stream);
        EXPECT_EQ(device.bytes, bytes);
        EXPECT_EQ(&stream.device(), &device);
    }
}

TEST(BinaryStreamTest, ReadsWhatItWrites)
{
    io::mem_stream_tt memory;
    binary_stream_tt stream(memory);
    const std::string longText(200000, 'x');
    stream << true << std::uint8_t{7} << std::numeric_limits<std::int32_t>::min() << std::uint32_t{0xFFFFFFFF}
           << std::numeric_limits<std::int64_t>::min() << std::numeric_limits<std::uint64_t>::max() << longText
           << secure("key") << std::string() << false;

    bool first = false;
    bool last = true;
    std::uint8_t byte = 0;
    std::int32_t i32 = 0;
    std::uint32_t u32 = 0;
    std::int64_t i64 = 0;
    std::uint64_t u64 = 0;
    std::string text;
    std::string empty = "full";
    crypto::sec_buffer_t key;
    stream >> first >> byte >> i32 >> u32 >> i64 >> u64 >> text >> key >> empty >> last;
    EXPECT_TRUE(first);
    EXPECT_EQ(byte, 7);
    EXPECT_EQ(i32, std::numeric_limits<std::int32_t>::min());
    EXPECT_EQ(u32, 0xFFFFFFFF);
    EXPECT_EQ(i64, std::numeric_limits<std::int64_t>::min());
    EXPECT_EQ(u64, std::numeric_limits<std::uint64_t>::max());
    EXPECT_TRUE(text == longText);
    EXPECT_EQ(key, secure("key"));
    EXPECT_EQ(empty, "");
    EXPECT_FALSE(last);
    EXPECT_EQ(memory.remaining(), 0);
}

TEST(BinaryStreamTest, ReadsEveryByteButZeroAsTrue)
{
    TestDevice device(std::string("\0\1\2\x80\xFF", 5));
    binary_stream_tt stream(device);
    for (const bool expected : {false, true, true, true, true})
    {
        bool value = !expected;
        stream >> value;
        EXPECT_EQ(value, expected);
    }
}

TEST(BinaryStreamTest, DoesNotCallTheDeviceForEmptyTexts)
{
    TestDevice device;
    binary_stream_tt stream(device);
    stream.write_text("");
    EXPECT_EQ(stream.read_text(), "");
    EXPECT_EQ(stream.read_secure(0), crypto::sec_buffer_t());
    EXPECT_EQ(device.calls, (std::vector<unsigned long>{4, 4}));
}

TEST(BinaryStreamTest, KeepsTheTargetOfAFailedRead)
{
    TestDevice device("abc");
    binary_stream_tt stream(device);
    std::uint32_t number = 5;
    EXPECT_EQ(failureText([&] { stream >> number; }), shortRead("3", "4"));
    EXPECT_EQ(number, 5U);

    TestDevice textDevice(std::string("\4\0\0\0abc", 7));
    binary_stream_tt textStream(textDevice);
    std::string text = "kept";
    EXPECT_EQ(failureText([&] { textStream >> text; }), shortRead("3", "4"));
    EXPECT_EQ(text, "kept");
}

TEST(BinaryStreamTest, DoesNotTrustALength)
{
    struct Case
    {
        std::string bytes;
        bool isSizeKnown;
        std::string received;
        std::string announced;
        unsigned long calls;
    };
    const std::string ten(10, 'x');
    const std::string longText(65536 + 10, 'x');
    const std::string fourGiB("\xFF\xFF\xFF\xFF", 4);
    const Case cases[] = {
        {fourGiB + ten, true, "10", "4294967295", 1},
        {fourGiB + ten, false, "10", "4294967295", 2},
        {fourGiB, true, "0", "4294967295", 1},
        {fourGiB, false, "0", "4294967295", 2},
        {fourGiB + longText, false, "65546", "4294967295", 3},
        {fourGiB + longText, true, "65546", "4294967295", 1},
        {std::string("\x0B\0\0\0", 4) + ten, false, "10", "11", 2},
        {std::string("\x0B\0\0\0", 4) + ten, true, "10", "11", 1},
    };
    for (const auto& expected : cases)
    {
        TestDevice device(expected.bytes, expected.isSizeKnown);
        binary_stream_tt stream(device);
        EXPECT_EQ(failureText([&] { stream.read_text(); }), shortRead(expected.received, expected.announced));
        EXPECT_EQ(device.calls.size(), expected.calls);

        TestDevice secureDevice(expected.bytes, expected.isSizeKnown);
        binary_stream_tt secureStream(secureDevice);
        crypto::sec_buffer_t bytes;
        EXPECT_EQ(failureText([&] { secureStream >> bytes; }), shortRead(expected.received, expected.announced));
    }
}

TEST(BinaryStreamTest, RefusesWhatADeviceIsKnownNotToHave)
{
    char bytes[4] = {};
    for (const bool isSizeKnown : {true, false})
    {
        TestDevice device("abcde", isSizeKnown);
        binary_stream_tt stream(device);
        stream.read_checked(bytes, 3);
        EXPECT_EQ(std::string(bytes, 3), "abc");
        EXPECT_EQ(failureText([&] { stream.read_checked(bytes, 4); }), shortRead("2", "4"));
        EXPECT_EQ(device.calls.size(), isSizeKnown ? 1U : 2U);
    }
}

TEST(BinaryStreamTest, ReadsLongTextsInSteps)
{
    TestDevice device(std::string("\1\0\2\0", 4) + std::string(131073, 'x'));
    binary_stream_tt stream(device);
    EXPECT_TRUE(stream.read_text() == std::string(131073, 'x'));
    EXPECT_EQ(device.calls, (std::vector<unsigned long>{4, 65536, 65536, 1}));
}

TEST(BinaryStreamTest, ReportsTheFailureOfTheDevice)
{
    TestDevice device(std::string("\3\0\0\0abc", 7));
    binary_stream_tt stream(device);
    std::uint32_t length = 0;
    stream >> length;
    device.answerWith(-5);
    EXPECT_EQ(failureText([&] { stream.read_secure(length); }), shortRead("-5", "3"));
    EXPECT_EQ(failureText([&] { stream << std::uint64_t{1}; }), zelmodel_test::shortWrite(-5, 8));
    EXPECT_EQ(failureText([&] { stream.write("abc", 3); }), zelmodel_test::shortWrite(-5, 3));
}

TEST(BinaryStreamTest, RefusesATextOverThirtyTwoBitsBeforeItWrites)
{
    TestDevice device;
    binary_stream_tt stream(device);
    const char byte = 'x';
    EXPECT_EQ(failureText([&] { stream.write_text(std::string_view(&byte, 1UL << 32)); }),
              "Unable to cast value from [unsigned long] to [unsigned int].");
    EXPECT_TRUE(device.calls.empty());
}

} // namespace
