#include "every_reader.h"

namespace zelmodel_test
{
namespace
{

class ReaderSamples : public EveryReader
{
};

TEST_P(ReaderSamples, AreReadAndWrittenStably)
{
    ASSERT_FALSE(reader().samples.empty());
    for (const auto& sample : reader().samples)
    {
        const auto outcome = attempt(reader(), sample);
        EXPECT_TRUE(outcome.written) << sample << '\n' << outcome.refusal;
        EXPECT_EQ("", faultOf(reader(), sample)) << sample;
    }
}

INSTANTIATE_TEST_SUITE_P(All, ReaderSamples, everyReader(), readerName);

} // namespace
} // namespace zelmodel_test
