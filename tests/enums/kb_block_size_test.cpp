#include <zelmodel/enums/kb_block_size.h>

#include <gtest/gtest.h>

#include "support/expect_failure.h"

using zelmodel_test::failureText;
using zelplatform::model::KbBlockSize;

namespace
{

TEST(KbBlockSizeTest, GivesKilobytesAndBytes)
{
    const std::tuple<int, unsigned long, unsigned long> sizes[] = {
        {0, 256, 262144},   {1, 512, 524288},   {3, 1024, 1048576},
        {4, 2048, 2097152}, {5, 4096, 4194304}, {6, 8192, 8388608},
    };
    for (const auto& [value, kilobytes, bytes] : sizes)
    {
        EXPECT_EQ(KbBlockSize::toKbytes(static_cast<KbBlockSize::type>(value)), kilobytes);
        EXPECT_EQ(KbBlockSize::toBytes(static_cast<KbBlockSize::type>(value)), bytes);
    }
}

TEST(KbBlockSizeTest, RefusesNumbersWithoutSize)
{
    for (const int value : {-1, 2, 7})
    {
        const auto size = static_cast<KbBlockSize::type>(value);
        const auto message = "Unexpected block size value [" + std::to_string(value) + "].";
        EXPECT_EQ(failureText([&] { KbBlockSize::toKbytes(size); }), message);
        EXPECT_EQ(failureText([&] { KbBlockSize::toBytes(size); }), message);
    }
}

TEST(KbBlockSizeTest, ListsStoredNamesWithoutTheAlias)
{
    EXPECT_EQ(KbBlockSize::toStringList(),
              (std::vector<std::string>{"KbBlockSize256", "KbBlockSize512", "KbBlockSize1024", "KbBlockSize2048",
                                        "KbBlockSize4096", "KbBlockSize8192"}));
}

} // namespace
