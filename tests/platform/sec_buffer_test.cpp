#include <zelplatform/crypto/crypto.h>

#include <algorithm>
#include <memory>
#include <new>
#include <string>
#include <type_traits>
#include <utility>

#include <gtest/gtest.h>

#include <zelplatform/util/memory.h>

namespace
{

TEST(SecBufferTest, ErasesMemory)
{
    std::string text = "secret key";
    util::SecureErase(text.data() + 2, 4);
    EXPECT_EQ(text, std::string("se\0\0\0\0 key", 10));
    util::SecureErase(nullptr, 0);
}

TEST(SecBufferTest, ComparesMemory)
{
    const std::string text("a\0secret", 8);
    for (std::size_t i = 0; i < text.size(); ++i)
    {
        std::string other = text;
        EXPECT_TRUE(util::SecureEqual(text.data(), other.data(), text.size()));
        ++other[i];
        EXPECT_FALSE(util::SecureEqual(text.data(), other.data(), text.size())) << i;
        EXPECT_TRUE(util::SecureEqual(text.data(), other.data(), i)) << i;
    }
    EXPECT_TRUE(util::SecureEqual(nullptr, nullptr, 0));
}

TEST(SecBufferTest, HoldsBytes)
{
    crypto::sec_buffer_t buffer;
    for (int i = 0; i < 1000; ++i)
        buffer.push_back(static_cast<char>(i));
    crypto::sec_buffer_t copy = buffer;
    EXPECT_EQ(copy, buffer);
    const char* const bytes = buffer.data();
    const crypto::sec_buffer_t moved = std::move(buffer);
    EXPECT_EQ(moved.data(), bytes);
    copy.back() = 'x';
    EXPECT_NE(copy, moved);
}

TEST(SecBufferTest, ErasesBytesWithoutMemoryOfTheirOwn)
{
    using Bytes = crypto::sec_array_t<8>;
    alignas(Bytes) char place[sizeof(Bytes)];
    auto* const bytes = new (place) Bytes;
    EXPECT_EQ(std::string(bytes->data(), bytes->size()), std::string(8, '\0'));
    std::fill_n(bytes->data(), bytes->size(), 'x');
    const Bytes copy = *bytes;
    bytes->~Bytes();
    EXPECT_EQ(std::string(place, sizeof(place)), std::string(8, '\0'));
    EXPECT_EQ(std::string(copy.data(), copy.size()), "xxxxxxxx");
}

TEST(SecBufferTest, ErasesATextWhenItIsReplaced)
{
    crypto::sec_text_t text(CUniString(L"a text of its own memory"));
    const auto copy = text;
    const crypto::sec_text_t moved(std::move(text));
    EXPECT_EQ(copy.get(), moved.get());
    text = crypto::sec_text_t(CUniString(L"other"));
    EXPECT_EQ(text.get(), CUniString(L"other"));
    EXPECT_EQ(text.release(), CUniString(L"other"));
    EXPECT_EQ(text.get(), CUniString());
}

TEST(SecBufferTest, HasOneAllocatorForAll)
{
    using Chars = crypto::sec_allocator_t<char>;
    using Longs = std::allocator_traits<Chars>::rebind_alloc<long>;
    static_assert(std::is_same_v<Longs, crypto::sec_allocator_t<long>>);
    static_assert(std::allocator_traits<Chars>::is_always_equal::value);
    EXPECT_TRUE(Chars() == Chars(Longs()));
    EXPECT_FALSE(Chars() != Longs());

    Longs allocator;
    long* const block = allocator.allocate(3);
    std::fill_n(block, 3, 7L);
    EXPECT_EQ(block[2], 7);
    allocator.deallocate(block, 3);
}

} // namespace
