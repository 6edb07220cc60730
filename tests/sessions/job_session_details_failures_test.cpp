#include <zelmodel/sessions/job_session_details.h>

#include <gtest/gtest.h>

#include <support/expect_failure.h>
#include <zelplatform/exc/exc.h>

#include "log_capture.h"

namespace
{

using namespace zelplatform::model;
using zelmodel_test::failureText;

constexpr const char* readFailed = "Failed to deserialize session details. ";

/// A refusal is one error in the log, with the whole text, and the same reason thrown.
class JobSessionDetailsFailures : public zelmodel_test::LogCapture
{
protected:
    void expectRefused(const std::string& text, const std::string& reason)
    {
        SCOPED_TRACE(text.substr(0, 500));
        EXPECT_EQ(readFailed + reason, failureText([&] { JobSessionDetails::fromXmlStr(text); }));
        const auto logged = takeEntries();
        ASSERT_EQ(1U, logged.size());
        expectEntry(logged[0], logging::ELevel::Error,
                    "Failed to deserialize session details string: [" + text + "]. " + reason);
    }

    void expectNoXml(const std::string& text)
    {
        SCOPED_TRACE(text.substr(0, 500));
        const std::string failure = failureText([&] { JobSessionDetails::fromXmlStr(text); });
        const std::string expected = std::string(readFailed) + "Unable to parse XML at line ";
        EXPECT_EQ(expected, failure.substr(0, expected.size()));
        const auto logged = takeEntries();
        ASSERT_EQ(1U, logged.size());
        expectEntry(logged[0], logging::ELevel::Error,
                    "Failed to deserialize session details string: [" + text + "]. " +
                        failure.substr(std::string(readFailed).size()));
    }

    static std::string attributes(const std::string& but)
    {
        std::string text;
        for (const char* each :
             {"repo_name=\"Store\"", "backup_type=\"Full\"", "repo_free_space=\"5\"", "repo_total_space=\"9\"",
              "is_job_awaiting_for_retry=\"false\"", "initial_retries_number=\"0\"", "current_attempt_number=\"0\""})
        {
            if (std::string(each).rfind(but + "=", 0) != 0)
                text += std::string(" ") + each;
        }
        return text;
    }

    static std::string with(const std::string& name, const std::string& text)
    {
        return "<Details" + attributes(name) + " " + name + "=\"" + text + "\"/>";
    }
};

TEST_F(JobSessionDetailsFailures, CompleteDocumentIsRead)
{
    EXPECT_EQ("Store", JobSessionDetails::fromXmlStr("<Details" + attributes("none") + "/>").repositoryName);
    EXPECT_TRUE(entries().empty());
}

TEST_F(JobSessionDetailsFailures, TextsThatAreNoXml)
{
    expectRefused("<Details></Other>", "Unable to parse XML at line 1: [XML_ERROR_MISMATCHED_ELEMENT].");
    for (const char* text :
         {"", " ", "rubbish", "<Details", "<Details>", "<Details/>rubbish", "<?xml version=\"1.0\"?>",
          "<Details repo_name=\"a\" repo_name=\"a\"/>", "<Details repo_name=\"&#0;\"/>",
          "<Details repo_name=\"&#xD800;\"/>", "<Details %1=%2/>", "{}"})
        expectNoXml(text);
    expectNoXml(std::string("<Details/>\0", 11));
    expectNoXml("<Details repo_name=\"\x01\"/>");

    std::string deep;
    for (int level = 0; level < 10000; ++level)
        deep += "<Details>";
    expectNoXml(deep);
}

TEST_F(JobSessionDetailsFailures, ElementMustStandAtTheTopWithItsName)
{
    for (const char* text :
         {"<Other/>", "<details/>", "<DETAILS/>", "<Other><Details/></Other>", "<Detail/><Detailss/>"})
        expectRefused(text, "Node [Details] is not found in [].");
}

TEST_F(JobSessionDetailsFailures, EveryAttributeButThePointIsNeeded)
{
    for (const std::string name : {"repo_name", "backup_type", "repo_free_space", "repo_total_space",
                                   "is_job_awaiting_for_retry", "initial_retries_number", "current_attempt_number"})
        expectRefused("<Details" + attributes(name) + "/>", "Attribute [" + name + "] is not found in [Details].");
    expectRefused("<Details" + attributes("repo_name") + " Repo_Name=\"x\"/>",
                  "Attribute [repo_name] is not found in [Details].");
    expectRefused("<Details><repo_name>x</repo_name></Details>", "Attribute [repo_name] is not found in [Details].");
}

TEST_F(JobSessionDetailsFailures, FaultsAreReportedInReadingOrder)
{
    expectRefused("<Details oib_id=\"x\" current_attempt_number=\"x\"/>",
                  "Attribute [repo_name] is not found in [Details].");
    expectRefused("<Details oib_id=\"x\" current_attempt_number=\"x\" repo_name=\"\" backup_type=\"y\"/>",
                  "Unable to convert string [y] to OibAlgorithm::type.");
    expectRefused("<Details oib_id=\"a\"" + attributes("current_attempt_number") + " current_attempt_number=\"b\"/>",
                  "Unable to convert string [b] to [unsigned long].");
    expectRefused("<Details initial_retries_number=\"c\"" + attributes("initial_retries_number") + " oib_id=\"a\"/>",
                  "Unable to convert string [c] to [unsigned long].");
}

TEST_F(JobSessionDetailsFailures, BackupTypeIsReadExactly)
{
    for (const std::string text : {"", "full", "FULL", "Synthetic", "0", " Full", "Full ", "Incremental", "%1"})
        expectRefused(with("backup_type", text), "Unable to convert string [" + text + "] to OibAlgorithm::type.");
}

TEST_F(JobSessionDetailsFailures, SpaceIsASignedNumber)
{
    for (const std::string name : {"repo_free_space", "repo_total_space"})
    {
        for (const std::string text :
             {"", " 7", "7 ", "+7", "12abc", "0x1F", "1e3", "1.5", "-", "--1", "- 1", "9223372036854775808",
              "-9223372036854775809", "18446744073709551615", "unknown"})
            expectRefused(with(name, text), "Unable to convert string [" + text + "] to [long].");
    }
}

TEST_F(JobSessionDetailsFailures, RetriesAreUnsignedNumbers)
{
    for (const std::string name : {"initial_retries_number", "current_attempt_number"})
    {
        for (const std::string text :
             {"", " 7", "+7", "12abc", "0x1F", "1e3", "-1", "-0", "18446744073709551616", "1,0"})
            expectRefused(with(name, text), "Unable to convert string [" + text + "] to [unsigned long].");
    }
}

TEST_F(JobSessionDetailsFailures, AwaitingIsAFlag)
{
    for (const std::string text : {"", "yes", "no", "2", "-1", " true", "true ", "01", "tru", "on"})
        expectRefused(with("is_job_awaiting_for_retry", text), "Unable to convert string [" + text + "] to [bool].");
}

TEST_F(JobSessionDetailsFailures, PointIsAnId)
{
    for (const std::string text :
         {"x", " ", "0f8fad5b-d9cb-469f-a165-70867728950", "0f8fad5b-d9cb-469f-a165-70867728950e0",
          "0f8fad5bd9cb469fa16570867728950e", "{0f8fad5b-d9cb-469f-a165-70867728950e",
          "0f8fad5b-d9cb-469f-a165-70867728950e}", "{{0f8fad5b-d9cb-469f-a165-70867728950e}}", "{}",
          "0g8fad5b-d9cb-469f-a165-70867728950e", " 0f8fad5b-d9cb-469f-a165-70867728950e"})
        expectRefused(with("oib_id", text), "Unable to convert string [" + text + "] to GUID.");
}

TEST_F(JobSessionDetailsFailures, TraceKeepsEachSentence)
{
    try
    {
        JobSessionDetails::fromXmlStr("<Details/>");
        FAIL() << "nothing was thrown";
    }
    catch (const exc::CRuntimeExc& failure)
    {
        const std::vector<std::string> expected{"Failed to deserialize session details.",
                                                "Attribute [repo_name] is not found in [Details]."};
        EXPECT_EQ(expected, failure.trace());
    }
}

TEST_F(JobSessionDetailsFailures, LargeTextIsLoggedWhole)
{
    const std::string filler(1UL << 20, 'x');
    expectRefused("<Details repo_name=\"" + filler + "\"/>", "Attribute [backup_type] is not found in [Details].");
}

} // namespace
