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

TEST(MemStreamTest, KeepsItsBytesWhereRoomWasMade)
{
    io::mem_stream_tt stream;
    stream.write("abc", 3);
    char byte = 0;
    EXPECT_EQ(stream.read(&byte, 1), 1);
    stream.reserve(100000);
    const char* const bytes = stream.buffer().data();
    for (int i = 0; i < 9999; ++i)
        stream.write("0123456789", 10);
    EXPECT_EQ(stream.buffer().data(), bytes);
    EXPECT_EQ(stream.buffer().size(), 99993U);
    EXPECT_EQ(content(stream).substr(0, 8), "abc01234");
    EXPECT_EQ(stream.remaining(), 99992);

    stream.reserve(5);
    EXPECT_EQ(stream.buffer().size(), 99993U);
    stream.write(std::string(100, 'x').data(), 100);
    EXPECT_EQ(content(stream).substr(99990), "789" + std::string(100, 'x'));
}

TEST(MemStreamTest, ShowsNothingButWhatWasWritten)
{
    io::mem_stream_tt stream;
    stream.reserve(100);
    EXPECT_EQ(content(stream), "");
    EXPECT_EQ(stream.remaining(), 0);
    for (int i = 0; i < 30; ++i)
    {
        stream.write("ab", 2);
        EXPECT_EQ(stream.buffer().size(), 2U * static_cast<unsigned>(i + 1));
    }
    stream.reserve(100);
    stream.write("c", 1);
    EXPECT_EQ(content(stream).substr(56), "ababc");
    EXPECT_EQ(stream.remaining(), 61);
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
