#pragma once

#include <string>

#include <zelmodel/sessions/session_log_line_parser.h>
#include <zelplatform/datetime/datetime.h>

#include "log_capture.h"

namespace zelmodel_test
{

constexpr const char* lineId = "0f8fad5b-d9cb-469f-a165-70867728950e";

/// A line's stamp and id, up to the blank before the severity.
inline std::string lineStart()
{
    return std::string("2024-03-07 13:05:09 UTC ") + lineId + " ";
}

struct ParsedLine
{
    bool isRecord = false;
    zelplatform::model::CDateTimeEx time;
    guid::guid_t id = guid::guid_t::FromAStr("11111111-2222-3333-4444-555555555555");
    zelplatform::model::ISessionLogWriter::ESeverity severity = zelplatform::model::ISessionLogWriter::Processing;
    std::string message = "left";
};

inline ParsedLine parseLine(const std::string& line)
{
    ParsedLine parsed;
    parsed.isRecord =
        zelplatform::model::CSessionLogLineParser::Parse(line, parsed.time, parsed.id, parsed.severity, parsed.message);
    return parsed;
}

/// A machine one hour east of UTC; what is logged is counted.
class SessionLogLines : public LogCapture
{
protected:
    void SetUp() override
    {
        LogCapture::SetUp();
        datetime::set_clock_for_tests([] { return 1700000000L; }, [] { return 3600L; });
    }
    void TearDown() override
    {
        datetime::set_clock_for_tests({}, {});
        LogCapture::TearDown();
    }

    void expectMessage(const std::string& line, const std::string& message)
    {
        const auto parsed = parseLine(line);
        EXPECT_TRUE(parsed.isRecord) << line.substr(0, 300);
        EXPECT_TRUE(message == parsed.message) << parsed.message.substr(0, 300);
        EXPECT_TRUE(takeEntries().empty());
    }

    /// No record: one note.
    void expectSkipped(const std::string& line)
    {
        SCOPED_TRACE(line.substr(0, 300));
        EXPECT_FALSE(parseLine(line).isRecord);
        const auto logged = takeEntries();
        ASSERT_EQ(1U, logged.size());
        expectEntry(logged[0], logging::ELevel::Info, "Line [" + line + "] is skipped.");
    }

    /// A record with a fault: the fault as an error, then the note.
    void expectFaulty(const std::string& line, const std::string& reason)
    {
        SCOPED_TRACE(line.substr(0, 300));
        EXPECT_FALSE(parseLine(line).isRecord);
        const auto logged = takeEntries();
        ASSERT_EQ(2U, logged.size());
        expectEntry(logged[0], logging::ELevel::Error, reason);
        expectEntry(logged[1], logging::ELevel::Info, "Line [" + line + "] is skipped.");
    }
};

} // namespace zelmodel_test
