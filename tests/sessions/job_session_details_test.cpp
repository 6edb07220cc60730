#include <zelmodel/sessions/job_session_details.h>

#include <climits>

#include <gtest/gtest.h>

#include <support/expect_failure.h>
#include <support/golden.h>
#include <zelplatform/exc/exc.h>

#include "log_capture.h"

namespace
{

using namespace zelplatform::model;
using guid::guid_t;
using zelmodel_test::failureText;
using zelmodel_test::golden;

class JobSessionDetailsTest : public zelmodel_test::LogCapture
{
};

JobSessionDetails fullDetails()
{
    JobSessionDetails details;
    details.repositoryName = "Nightly & <Co>";
    details.backupType = OibAlgorithm::Increment;
    details.restorePointId = guid_t::FromAStr("0f8fad5b-d9cb-469f-a165-70867728950e");
    details.repositoryFreeSpace = 549755813888;
    details.repositoryTotalSpace = 1099511627776;
    details.initialRetriesNumber = 3;
    details.currentAttemptNumber = 2;
    details.isJobAwaitingForRetry = true;
    return details;
}

JobSessionDetails extremeDetails()
{
    JobSessionDetails details;
    details.repositoryName = " ";
    details.backupType = OibAlgorithm::Syntethic;
    details.restorePointId = guid_t::FromAStr("ffffffff-ffff-ffff-ffff-ffffffffffff");
    details.repositoryFreeSpace = LONG_MIN;
    details.repositoryTotalSpace = LONG_MAX;
    details.initialRetriesNumber = ULONG_MAX;
    details.currentAttemptNumber = ULONG_MAX;
    return details;
}

/// The given attributes in front; every one that is needed behind them, so that a given one counts.
std::string document(const std::string& attributes)
{
    const struct
    {
        const char* name;
        const char* text;
    } needed[] = {
        {"repo_name", "Store"},
        {"backup_type", "Full"},
        {"repo_free_space", "5"},
        {"repo_total_space", "9"},
        {"is_job_awaiting_for_retry", "false"},
        {"initial_retries_number", "0"},
        {"current_attempt_number", "0"},
    };
    std::string text = "<Details " + attributes;
    for (const auto& each : needed)
    {
        if (attributes.find(std::string(each.name) + "=") == std::string::npos)
            text += std::string(" ") + each.name + "=\"" + each.text + "\"";
    }
    return text + "/>";
}

TEST_F(JobSessionDetailsTest, Defaults)
{
    const JobSessionDetails details;
    EXPECT_EQ("", details.repositoryName);
    EXPECT_EQ(OibAlgorithm::Full, details.backupType);
    EXPECT_TRUE(details.restorePointId.IsEmpty());
    EXPECT_EQ(-1, details.repositoryFreeSpace);
    EXPECT_EQ(-1, details.repositoryTotalSpace);
    EXPECT_EQ(0U, details.initialRetriesNumber);
    EXPECT_EQ(0U, details.currentAttemptNumber);
    EXPECT_FALSE(details.isJobAwaitingForRetry);
    EXPECT_TRUE(details.isEmpty());
}

TEST_F(JobSessionDetailsTest, Names)
{
    EXPECT_STREQ("Details", JobSessionDetails::m_xml_Details);
    EXPECT_STREQ("repo_name", JobSessionDetails::m_xml_RepoName);
    EXPECT_STREQ("backup_type", JobSessionDetails::m_xml_BackupType);
    EXPECT_STREQ("oib_id", JobSessionDetails::m_xml_OibId);
    EXPECT_STREQ("repo_free_space", JobSessionDetails::m_xml_RepoFreeSpace);
    EXPECT_STREQ("repo_total_space", JobSessionDetails::m_xml_RepoTotalSpace);
    EXPECT_STREQ("is_job_awaiting_for_retry", JobSessionDetails::m_xml_IsJobAwaitingForRetry);
    EXPECT_STREQ("initial_retries_number", JobSessionDetails::m_xml_InitialRetriesNumber);
    EXPECT_STREQ("current_attempt_number", JobSessionDetails::m_xml_CurrentAttemptNumber);
}

TEST_F(JobSessionDetailsTest, IsEmptyLooksAtTheNameOnly)
{
    JobSessionDetails details = fullDetails();
    EXPECT_FALSE(details.isEmpty());
    details.repositoryName.clear();
    EXPECT_TRUE(details.isEmpty());

    JobSessionDetails named;
    named.repositoryName = " ";
    EXPECT_FALSE(named.isEmpty());
}

TEST_F(JobSessionDetailsTest, EqualityComparesEveryField)
{
    void (*const changes[])(JobSessionDetails&) = {
        [](JobSessionDetails& details) { details.repositoryName += "x"; },
        [](JobSessionDetails& details) { details.backupType = OibAlgorithm::Full; },
        [](JobSessionDetails& details) { details.restorePointId = guid_t(); },
        [](JobSessionDetails& details) { details.repositoryFreeSpace = -1; },
        [](JobSessionDetails& details) { details.repositoryTotalSpace = -1; },
        [](JobSessionDetails& details) { details.initialRetriesNumber = 4; },
        [](JobSessionDetails& details) { details.currentAttemptNumber = 4; },
        [](JobSessionDetails& details) { details.isJobAwaitingForRetry = false; },
    };
    EXPECT_TRUE(fullDetails() == fullDetails());
    for (const auto change : changes)
    {
        JobSessionDetails details = fullDetails();
        change(details);
        EXPECT_TRUE(details != fullDetails());
        EXPECT_FALSE(details == fullDetails());
    }
}

TEST_F(JobSessionDetailsTest, Text)
{
    EXPECT_EQ(golden("Details/default.xml"), JobSessionDetails().toXmlStr());
    EXPECT_EQ(golden("Details/full.xml"), fullDetails().toXmlStr());
    EXPECT_EQ(golden("Details/extremes.xml"), extremeDetails().toXmlStr());
}

TEST_F(JobSessionDetailsTest, ReadsBackWhatItWrites)
{
    EXPECT_TRUE(JobSessionDetails::fromXmlStr(golden("Details/default.xml")) == JobSessionDetails());
    EXPECT_TRUE(JobSessionDetails::fromXmlStr(golden("Details/full.xml")) == fullDetails());
    EXPECT_TRUE(JobSessionDetails::fromXmlStr(golden("Details/extremes.xml")) == extremeDetails());
    for (int type = 0; type <= 5; ++type)
    {
        JobSessionDetails details = fullDetails();
        details.backupType = static_cast<OibAlgorithm::type>(type);
        EXPECT_TRUE(JobSessionDetails::fromXmlStr(details.toXmlStr()) == details) << type;
    }
    for (const char* name : {"", "\t", "a\r\nb\rc", "\"'<>&",
                             "Gr\xC3\xB6\xC3\x9F"
                             "e",
                             "\xFF\x80", "%1 %2", "&#65;"})
    {
        JobSessionDetails details = fullDetails();
        details.repositoryName = name;
        EXPECT_EQ(name, JobSessionDetails::fromXmlStr(details.toXmlStr()).repositoryName);
    }
    EXPECT_TRUE(entries().empty());
}

TEST_F(JobSessionDetailsTest, DocumentWithoutPointReadsAsTheZeroId)
{
    const auto details = JobSessionDetails::fromXmlStr(golden("legacy/session_details_without_point.xml"));
    EXPECT_EQ("Old store", details.repositoryName);
    EXPECT_TRUE(details.restorePointId.IsEmpty());
    EXPECT_FALSE(details.isJobAwaitingForRetry);
    EXPECT_EQ(1U, details.currentAttemptNumber);
    EXPECT_TRUE(JobSessionDetails::fromXmlStr(document("oib_id=\"\"")).restorePointId.IsEmpty());
    EXPECT_TRUE(entries().empty());
}

TEST_F(JobSessionDetailsTest, OtherWritersAreRead)
{
    const auto details = JobSessionDetails::fromXmlStr(
        "\xEF\xBB\xBF<?xml version=\"1.0\" encoding=\"utf-8\"?>\r\n<!-- a session -->\n"
        "<Details  future=\"1\" current_attempt_number='007' oib_id='{0F8FAD5B-D9CB-469F-A165-70867728950E}'\n"
        " is_job_awaiting_for_retry=\"TRUE\" initial_retries_number=\"0\" repo_total_space=\"-0\" "
        "backup_type=\"Full\"\n"
        " repo_free_space=\"-1\" repo_name=\"&#x41;\">text<!-- inside --><Details/></Details>");
    EXPECT_EQ("A", details.repositoryName);
    EXPECT_EQ("0f8fad5b-d9cb-469f-a165-70867728950e", details.restorePointId.ToAStr());
    EXPECT_EQ(-1, details.repositoryFreeSpace);
    EXPECT_EQ(0, details.repositoryTotalSpace);
    EXPECT_EQ(7U, details.currentAttemptNumber);
    EXPECT_TRUE(details.isJobAwaitingForRetry);
    EXPECT_TRUE(JobSessionDetails::fromXmlStr(document("is_job_awaiting_for_retry=\"1\"")).isJobAwaitingForRetry);
    EXPECT_TRUE(entries().empty());
}

TEST_F(JobSessionDetailsTest, FirstOfRepeatedElementsIsRead)
{
    const std::string text = "<Other/>" + document("repo_name=\"first\"") + document("repo_name=\"second\"");
    EXPECT_EQ("first", JobSessionDetails::fromXmlStr(text).repositoryName);
}

TEST_F(JobSessionDetailsTest, TypeWithoutNameIsNotWritten)
{
    for (const int type : {-1, 6, 1000})
    {
        JobSessionDetails details = fullDetails();
        details.backupType = static_cast<OibAlgorithm::type>(type);
        EXPECT_EQ("Unable to convert OibAlgorithm::type [" + std::to_string(type) + "] to string.",
                  failureText([&] { details.toXmlStr(); }));
    }
    EXPECT_TRUE(entries().empty());
}

TEST_F(JobSessionDetailsTest, NameThatXmlCannotCarryIsNotWritten)
{
    for (const char bad : {'\0', '\x01', '\x1F'})
    {
        JobSessionDetails details = fullDetails();
        details.repositoryName = std::string("tell") + bad + "tale";
        const std::string failure = failureText([&] { details.toXmlStr(); });
        EXPECT_EQ(std::string::npos, failure.find("tell")) << failure;
    }
}

} // namespace
