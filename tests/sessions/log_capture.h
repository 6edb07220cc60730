#pragma once

#include <memory>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include <zelplatform/logging/logging.h>

namespace zelmodel_test
{

/// Catches what the library logs during one test.
class LogCapture : public ::testing::Test
{
protected:
    void SetUp() override { logging::set_sink(m_sink); }
    void TearDown() override { logging::set_sink(nullptr); }

    std::vector<logging::Entry> entries() const { return m_sink->entries(); }

    /// The entries since the last call.
    std::vector<logging::Entry> takeEntries()
    {
        auto taken = m_sink->entries();
        m_sink->clear();
        return taken;
    }

    static void expectEntry(const logging::Entry& entry, logging::ELevel level, const std::string& text)
    {
        EXPECT_EQ("zelmodel", entry.section);
        EXPECT_EQ(level, entry.level);
        EXPECT_TRUE(text == entry.text) << entry.text.substr(0, 500);
    }

private:
    std::shared_ptr<logging::memory_sink> m_sink = std::make_shared<logging::memory_sink>();
};

} // namespace zelmodel_test
