#include <zelplatform/logging/spdlog_sink.h>

#include <memory>
#include <sstream>
#include <string>

#include <gtest/gtest.h>
#include <spdlog/sinks/ostream_sink.h>
#include <spdlog/spdlog.h>

#include <zelplatform/logging/logging.h>

#include "support/expect_failure.h"

namespace
{

TEST(SpdlogSinkTest, WritesLevelSectionAndTextInOneLine)
{
    struct Case
    {
        logging::Entry entry;
        std::string line;
    };
    using logging::ELevel;
    const Case cases[] = {
        {{"zelmodel", ELevel::Info, "A note."}, "info|[zelmodel] A note."},
        {{"zelmodel", ELevel::Warn, "Careful."}, "warning|[zelmodel] Careful."},
        {{"a::b", ELevel::Error, "Broken."}, "error|[a::b] Broken."},
        {{"s", ELevel::Info, "{} {0} {:x} %v %1"}, "info|[s] {} {0} {:x} %v %1"},
        {{"s", ELevel::Info, "a\nb\tc\rd\x1B[1m\x01"}, "info|[s] a\\nb\\tc\\x0Dd\\x1B[1m\\x01"},
        {{"s", ELevel::Info, std::string("a\0b", 3)}, "info|[s] a\\x00b"},
        {{"s", ELevel::Info, "gr\xC3\xBC\xC3\x9F\x7F"}, "info|[s] gr\xC3\xBC\xC3\x9F\x7F"},
        {{"s\n", ELevel::Info, ""}, "info|[s\\n] "},
    };
    std::ostringstream out;
    const auto logger = std::make_shared<spdlog::logger>("test", std::make_shared<spdlog::sinks::ostream_sink_mt>(out));
    logger->set_pattern("%l|%v", spdlog::pattern_time_type::utc);
    logging::spdlog_sink sink(logger);
    for (const auto& [entry, line] : cases)
    {
        out.str("");
        sink.write(entry);
        EXPECT_EQ(out.str(), line + "\n");
    }
}

TEST(SpdlogSinkTest, NeedsALogger)
{
    EXPECT_EQ(zelmodel_test::failureText([] { const logging::spdlog_sink sink(nullptr); }), "Log sink needs a logger.");
}

} // namespace
