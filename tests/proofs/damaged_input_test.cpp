#include <cstdlib>

#include "every_reader.h"

namespace zelmodel_test
{
namespace
{

// Every bit of every byte takes minutes under sanitizers; otherwise one bit of each byte is flipped, each in turn.
bool isEveryBitFlipped()
{
    return std::getenv("ZELMODEL_EVERY_BIT") != nullptr;
}

/// Input that was cut on its way, or damaged where it is stored.
class DamagedInput : public EveryReader
{
};

TEST_P(DamagedInput, CutAtEveryByteIsRefusedOrReadStably)
{
    for (const auto& sample : reader().samples)
    {
        for (std::size_t size = 0; size < sample.size(); ++size)
            ASSERT_EQ("", faultOf(reader(), sample.substr(0, size))) << "after " << size << " bytes of " << sample;
    }
}

TEST_P(DamagedInput, WithAFlippedBitIsRefusedOrReadStably)
{
    const unsigned bits = isEveryBitFlipped() ? 8 : 1;
    for (const auto& sample : reader().samples)
    {
        for (std::size_t at = 0; at < sample.size(); ++at)
        {
            for (unsigned i = 0; i < bits; ++i)
            {
                const auto bit = (at + i) % 8;
                std::string damaged = sample;
                damaged[at] = static_cast<char>(damaged[at] ^ (1 << bit));
                ASSERT_EQ("", faultOf(reader(), damaged)) << "bit " << bit << " of byte " << at << " of " << sample;
            }
        }
    }
}

INSTANTIATE_TEST_SUITE_P(All, DamagedInput, everyReader(), readerName);

} // namespace
} // namespace zelmodel_test
