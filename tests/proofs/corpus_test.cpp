#include <filesystem>

#include <gtest/gtest.h>

#include <readers/outcome.h>
#include <support/golden.h>

namespace zelmodel_test
{
namespace
{

namespace fs = std::filesystem;

// Inputs that were treated wrongly once, in a folder for each reader.
TEST(Corpus, OfPastFindingsIsRefusedOrReadStably)
{
    std::size_t count = 0;
    for (const auto& folder : fs::directory_iterator(ZELMODEL_CORPUS_DIR))
    {
        const auto& reader = readers::find(folder.path().filename().string());
        for (const auto& finding : fs::directory_iterator(folder.path()))
        {
            EXPECT_EQ("", faultOf(reader, fileText(finding.path().string()))) << finding.path();
            ++count;
        }
    }
    EXPECT_LT(0U, count);
}

} // namespace
} // namespace zelmodel_test
