#include <zelmodel/sessions/backup_job_state.h>

#include <climits>

#include <gtest/gtest.h>

#include <support/expect_failure.h>
#include <support/golden.h>

namespace
{

using namespace zelplatform::model;
using zelmodel_test::failureText;
using zelmodel_test::golden;

constexpr const char* readFailed = "Failed to deserialize SBackupJobState. ";

SBackupJobState state(long mode)
{
    SBackupJobState result;
    result.objectStorageOperationMode = mode;
    return result;
}

long modeOf(const std::string& text)
{
    return SBackupJobState::FromXmlStr(text).objectStorageOperationMode;
}

void expectRefused(const std::string& text, const std::string& reason)
{
    EXPECT_EQ(readFailed + reason, failureText([&] { SBackupJobState::FromXmlStr(text); })) << text;
}

TEST(BackupJobStateTest, Value)
{
    EXPECT_EQ(0, SBackupJobState().objectStorageOperationMode);
    EXPECT_TRUE(state(3) == state(3));
    EXPECT_FALSE(state(3) != state(3));
    EXPECT_TRUE(state(3) != state(4));
}

TEST(BackupJobStateTest, Text)
{
    EXPECT_EQ(golden("BackupJobState/default.xml"), SBackupJobState().ToXmlString());
    EXPECT_EQ(golden("BackupJobState/mode_3.xml"), state(3).ToXmlString());
    EXPECT_EQ("<BackupJobState Version=\"2\" ObjectStorageOperationMode=\"-9223372036854775808\"/>",
              state(LONG_MIN).ToXmlString());
}

TEST(BackupJobStateTest, ReadsBackWhatItWrites)
{
    EXPECT_EQ(0, modeOf(golden("BackupJobState/default.xml")));
    EXPECT_EQ(3, modeOf(golden("BackupJobState/mode_3.xml")));
    for (const long mode : {0L, 1L, -1L, 4294967296L, LONG_MIN, LONG_MAX})
        EXPECT_EQ(mode, modeOf(state(mode).ToXmlString()));
}

TEST(BackupJobStateTest, FirstVersionIsReadAndBecomesTheSecond)
{
    const auto read = SBackupJobState::FromXmlStr(golden("legacy/backup_job_state_version_1.xml"));
    EXPECT_EQ(3, read.objectStorageOperationMode);
    EXPECT_EQ(golden("BackupJobState/mode_3.xml"), read.ToXmlString());
}

TEST(BackupJobStateTest, EachVersionHasItsOwnName)
{
    const std::string both = " ObjectStorageBackupMode=\"7\" ObjectStorageOperationMode=\"8\"/>";
    EXPECT_EQ(7, modeOf("<BackupJobState Version=\"1\"" + both));
    EXPECT_EQ(8, modeOf("<BackupJobState Version=\"2\"" + both));
    EXPECT_EQ(
        8,
        modeOf("<BackupJobState ObjectStorageBackupMode=\"rubbish\" ObjectStorageOperationMode=\"8\" Version=\"2\"/>"));
    expectRefused("<BackupJobState Version=\"1\" ObjectStorageOperationMode=\"8\"/>",
                  "Attribute [ObjectStorageBackupMode] is not found in [BackupJobState].");
    expectRefused("<BackupJobState Version=\"2\" ObjectStorageBackupMode=\"7\"/>",
                  "Attribute [ObjectStorageOperationMode] is not found in [BackupJobState].");
}

TEST(BackupJobStateTest, RootOfAnyNameIsRead)
{
    EXPECT_EQ(-5, modeOf("<?xml version='1.0'?><!-- x --><Any ObjectStorageOperationMode='-5' Version='002' x='y'>"
                         "<BackupJobState/></Any><BackupJobState/>"));
}

TEST(BackupJobStateTest, OtherVersionsAreRefused)
{
    for (const std::string version : {"0", "3", "4", "12", "18446744073709551615"})
    {
        const std::string reason = "Unsupported backup job state xml version " + version + ".";
        expectRefused("<BackupJobState Version=\"" + version +
                          "\" ObjectStorageBackupMode=\"1\" ObjectStorageOperationMode=\"1\"/>",
                      reason);
        expectRefused("<BackupJobState Version=\"" + version + "\"/>", reason);
    }
}

TEST(BackupJobStateTest, VersionIsAnUnsignedNumber)
{
    expectRefused("<BackupJobState ObjectStorageOperationMode=\"1\"/>",
                  "Attribute [Version] is not found in [BackupJobState].");
    for (const std::string version : {"", " 2", "2 ", "+2", "-1", "2x", "0x2", "2.0", "18446744073709551616"})
        expectRefused("<BackupJobState Version=\"" + version + "\" ObjectStorageOperationMode=\"1\"/>",
                      "Unable to convert string [" + version + "] to [unsigned long].");
}

TEST(BackupJobStateTest, ModeIsASignedNumber)
{
    for (const std::string mode :
         {"", " 2", "+2", "2x", "0x2", "1e3", "-", "9223372036854775808", "-9223372036854775809", "Full"})
    {
        const std::string reason = "Unable to convert string [" + mode + "] to [long].";
        expectRefused("<BackupJobState Version=\"1\" ObjectStorageBackupMode=\"" + mode + "\"/>", reason);
        expectRefused("<BackupJobState Version=\"2\" ObjectStorageOperationMode=\"" + mode + "\"/>", reason);
    }
}

TEST(BackupJobStateTest, TextsThatAreNoXml)
{
    expectRefused("<BackupJobState></x>", "Unable to parse XML at line 1: [XML_ERROR_MISMATCHED_ELEMENT].");
    const std::string expected = std::string(readFailed) + "Unable to parse XML at line ";
    for (const std::string& text :
         {std::string(), std::string("2"), std::string("<BackupJobState"), std::string("<a Version=\"2\"/>\0", 17)})
        EXPECT_EQ(expected, failureText([&] { SBackupJobState::FromXmlStr(text); }).substr(0, expected.size()));
}

} // namespace
