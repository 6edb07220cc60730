#include <zelmodel/sessions/session_log_writer.h>

#include <type_traits>

#include <gtest/gtest.h>

#include <support/expect_failure.h>

#include "log_capture.h"

namespace
{

using zelmodel_test::failureText;
using Writer = zelplatform::model::ISessionLogWriter;

class SessionLogWriterTest : public zelmodel_test::LogCapture
{
};

TEST_F(SessionLogWriterTest, WordsByValue)
{
    const std::map<Writer::ESeverity, std::string> expected{
        {Writer::Processing, "processing"}, {Writer::Info, "info"}, {Writer::Warn, "warn"}, {Writer::Error, "error"}};
    EXPECT_EQ(0, static_cast<int>(Writer::Processing));
    EXPECT_EQ(1, static_cast<int>(Writer::Info));
    EXPECT_EQ(2, static_cast<int>(Writer::Warn));
    EXPECT_EQ(3, static_cast<int>(Writer::Error));
    EXPECT_EQ(expected, Writer::CreateMessageTypes());
    EXPECT_EQ(expected, Writer::s_msgTypes());
    EXPECT_EQ(&Writer::s_msgTypes(), &Writer::s_msgTypes());
}

TEST_F(SessionLogWriterTest, MessageForAValueDoesNotNameIt)
{
    for (const int value : {-1, 4, 256, 2147483647})
        EXPECT_EQ("Invalid severity value.",
                  failureText([&] { Writer::SeverityToString(static_cast<Writer::ESeverity>(value)); }));
}

TEST_F(SessionLogWriterTest, MessageForATextKeepsIt)
{
    for (const std::string text : {"", "Warn", "WARN", " warn", "warn\r", "warning", "0", "%1", "a\xFF"})
        EXPECT_EQ("Invalid severity value string [" + text + "].",
                  failureText([&] { Writer::SeverityFromString(text); }));
}

TEST_F(SessionLogWriterTest, RefusalsAreNotLogged)
{
    failureText([] { Writer::SeverityFromString("Warn"); });
    failureText([] { Writer::SeverityToString(static_cast<Writer::ESeverity>(9)); });
    EXPECT_TRUE(entries().empty());
}

TEST_F(SessionLogWriterTest, WritersAreDestroyedThroughTheInterface)
{
    static_assert(std::has_virtual_destructor_v<Writer>);
    struct Probe : Writer
    {
        explicit Probe(bool& gone) : m_gone(gone) {}
        ~Probe() override { m_gone = true; }
        bool& m_gone;
    };
    bool gone = false;
    std::unique_ptr<Writer> writer = std::make_unique<Probe>(gone);
    writer.reset();
    EXPECT_TRUE(gone);
}

} // namespace
