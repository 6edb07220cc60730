#include <memory>
#include <sstream>
#include <stdexcept>
#include <string>

#include <gtest/gtest.h>
#include <spdlog/sinks/ostream_sink.h>
#include <spdlog/spdlog.h>

#include <support/expect_failure.h>
#include <zelmodel/data_size.h>
#include <zelmodel/job_options.h>
#include <zelmodel/repositories.h>
#include <zelmodel/schedules.h>
#include <zelmodel/sessions.h>
#include <zelplatform/exc/exc.h>
#include <zelplatform/logging/logging.h>
#include <zelplatform/logging/spdlog_sink.h>
#include <zelplatform/xmlpp/xml_document.h>

namespace
{

using namespace zelplatform::model;
using namespace zelplatform::model::structs;
using zelmodel_test::failureText;

/// The log as an agent keeps it, a line an entry.
class LogLines : public ::testing::Test
{
protected:
    LogLines()
    {
        const auto logger =
            std::make_shared<spdlog::logger>("test", std::make_shared<spdlog::sinks::ostream_sink_mt>(m_lines));
        logger->set_pattern("%l|%v");
        logging::set_sink(std::make_shared<logging::spdlog_sink>(logger));
    }
    ~LogLines() override { logging::set_sink(nullptr); }

    std::string lines() const { return m_lines.str(); }

private:
    std::ostringstream m_lines;
};

TEST_F(LogLines, ADocumentForgesNone)
{
    const auto rule = xmlpp::CXmlDocument::Unserialize(
        "<GfsPolicy IsEnabled=\"1\"><Weekly IsEnabled=\"1\" KeepBackupsForNumberOfWeeks=\"1\" DesiredTime=\"1\" "
        "BeginTimeUtc=\"x&#10;error|[zelmodel] forged&#13;&#9;y\"/></GfsPolicy>");
    gfs::SGfsPolicyInfo::fromXml(rule.ToNode(), true);
    EXPECT_EQ("warning|[SGfsPolicyInfoBase::FromXml] At Unable to convert string "
              "[x\\nerror|[zelmodel] forged\\x0D\\ty] to date-time. The text does not match the format "
              "[%m/%d/%Y %H:%M:%S].\n",
              lines());
}

TEST_F(LogLines, ASkippedLineForgesNone)
{
    CDateTimeEx time;
    guid::guid_t id;
    auto severity = ISessionLogWriter::Info;
    std::string message;
    EXPECT_FALSE(CSessionLogLineParser::Parse("a\rb\x1B[2J\nerror|[zelmodel] forged", time, id, severity, message));
    EXPECT_EQ("info|[zelmodel] Line [a\\x0Db\\x1B[2J\\nerror|[zelmodel] forged] is skipped.\n", lines());
}

// Masks keep vectors of any length; whoever asks for a flag that is not there is refused.
TEST(ShortMasks, AreNeverReadOrWrittenBeyondTheirEnd)
{
    CWeekMask days(std::vector<bool>(3, true));
    EXPECT_THROW(days.SetDay(datetime::EDayOfWeek::Saturday, true), std::out_of_range);
    EXPECT_EQ(std::vector<bool>(3, true), days.GetMask());
    EXPECT_THROW(days.ToString(",", true), exc::CRuntimeExc);

    CMonthMask months(std::vector<bool>(3, true));
    EXPECT_THROW(months.SetMonth(datetime::EMonth::December, true), std::out_of_range);
    EXPECT_EQ(std::vector<bool>(3, true), months.GetMask());
    EXPECT_THROW(months.ToString(",", true), exc::CRuntimeExc);
    EXPECT_THROW(CDayOfMonth::GetDayNotFitMonths(CDayOfMonth(31), months), std::out_of_range);

    xmlpp::CXmlDocument document;
    auto root = document.AddRootNode("root");
    EXPECT_THROW(days.ToXml(root), exc::CRuntimeExc);
    EXPECT_THROW(months.ToXml(root), exc::CRuntimeExc);
}

TEST(HostileNumbers, OfASizeHaveOnePointAndAreBelow16Exbibytes)
{
    EXPECT_EQ("Unable to convert string [1.5.2] to [unsigned long].",
              failureText([] { zelplatform::CSize::FromStr("1.5.2"); }));
    EXPECT_EQ("Unable to convert string [1.5.2] to [double].",
              failureText([] { zelplatform::CSize::FromStr("1.5.2 KB"); }));
    EXPECT_EQ("Unable to cast value from [double] to [unsigned long].",
              failureText([] { zelplatform::CSize::FromStr("16E"); }));
}

// The address is logged to the letter, on purpose: credentials belong into their own fields, which are not.
TEST(LoggedAddresses, HoldWhatTheirWriterPutIntoThem)
{
    SAmazonS3SpecificParams params;
    params.endpoint.apiEndpoint = "https://user:pw@host";
    params.credentials.accessKeyId = "key";
    params.credentials.secretAccessKey = "secret";
    EXPECT_EQ("endpoint: {api: https://user:pw@host}, credentials: {accessKey: key}", params.ToLogStr());
}

} // namespace
