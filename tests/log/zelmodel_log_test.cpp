#include <zelmodel/log.h>

#include <gtest/gtest.h>

namespace
{

TEST(ZelmodelLogTest, WritesToTheSectionOfTheLibrary)
{
    const auto sink = std::make_shared<logging::memory_sink>();
    logging::set_sink(sink);
    zelmodel_log.info("A note.");
    logging::set_sink(nullptr);
    zelmodel_log.info("Nobody listens.");

    const auto entries = sink->entries();
    ASSERT_EQ(entries.size(), 1U);
    EXPECT_EQ(entries[0].section, "zelmodel");
    EXPECT_EQ(entries[0].level, logging::ELevel::Info);
    EXPECT_EQ(entries[0].text, "A note.");
}

} // namespace
