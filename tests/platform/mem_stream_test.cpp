#include <zelplatform/io/mem_stream.h>

#include <string>

#include <gtest/gtest.h>

namespace
{

std::string content(const io::mem_stream_tt& stream)
{
    return {stream.buffer().begin(), stream.buffer().end()};
}

TEST(MemStreamTest, AppendsAndReadsFromTheFront)
{
    io::mem_stream_tt stream;
    EXPECT_EQ(stream.remaining(), 0);
    EXPECT_EQ(stream.write("abc", 3), 3);
    EXPECT_EQ(stream.write("de", 2), 2);
    EXPECT_EQ(stream.write(nullptr, 0), 0);
    EXPECT_EQ(content(stream), "abcde");
    EXPECT_EQ(stream.remaining(), 5);

    char bytes[8] = {};
    EXPECT_EQ(stream.read(bytes, 2), 2);
    EXPECT_EQ(std::string(bytes, 2), "ab");
    EXPECT_EQ(stream.remaining(), 3);
    EXPECT_EQ(stream.write("f", 1), 1);
    EXPECT_EQ(stream.read(bytes, 4), 4);
    EXPECT_EQ(std::string(bytes, 4), "cdef");
    EXPECT_EQ(content(stream), "abcdef");
}

TEST(MemStreamTest, GivesTheBytesThatAreLeft)
{
    const std::string text = "abc";
    io::mem_stream_tt stream(crypto::sec_buffer_t(text.begin(), text.end()));
    char bytes[8] = {};
    EXPECT_EQ(stream.read(bytes, 8), 3);
    EXPECT_EQ(std::string(bytes, 3), "abc");
    EXPECT_EQ(stream.read(bytes, 8), 0);
    EXPECT_EQ(stream.read(nullptr, 0), 0);
    EXPECT_EQ(stream.remaining(), 0);
    EXPECT_EQ(content(stream), "abc");
}

} // namespace
