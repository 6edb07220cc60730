#include <zelmodel/transform/create_gfs_synthetic_full_spec.h>

#include <climits>

#include <gtest/gtest.h>

#include <support/expect_failure.h>
#include <support/golden.h>

#include "sample_specs.h"

namespace
{

using namespace zelplatform::model::transform;
using zelmodel_test::backupId;
using zelmodel_test::failureText;
using zelmodel_test::golden;
using zelmodel_test::idAttributes;
using zelmodel_test::rootOf;
using zelmodel_test::sessionId;

constexpr const char* xmlFailed = "Unable to parse xml create gfs synthetic specification. ";

CCreateGfsSyntheticFullSpec weeklySpec(int operationType = 2)
{
    return {sessionId(), backupId(), static_cast<ETransformOperationType::type>(operationType),
            "/backups/weekly & monthly/job.meta"};
}

void expectEqual(const CCreateGfsSyntheticFullSpec& expected, const CCreateGfsSyntheticFullSpec& spec)
{
    EXPECT_TRUE(expected.GetSessionId() == spec.GetSessionId());
    EXPECT_TRUE(expected.GetBackupId() == spec.GetBackupId());
    EXPECT_EQ(expected.GetTrasformOperationType(), spec.GetTrasformOperationType());
    EXPECT_EQ(expected.GetJobTargetFile(), spec.GetJobTargetFile());
}

/// The sentence stands once: reading a text adds none of its own.
void expectRefused(const std::string& text, const std::string& reason)
{
    EXPECT_EQ(xmlFailed + reason, failureText([&] { CCreateGfsSyntheticFullSpec::FromXmlNode(rootOf(text)); })) << text;
    EXPECT_EQ(xmlFailed + reason, failureText([&] { CCreateGfsSyntheticFullSpec::FromString(text); })) << text;
}

TEST(CreateGfsSyntheticFullSpecTest, ValueAndSetter)
{
    CCreateGfsSyntheticFullSpec spec = weeklySpec(7);
    EXPECT_TRUE(sessionId() == spec.GetSessionId());
    EXPECT_TRUE(backupId() == spec.GetBackupId());
    EXPECT_EQ(7, static_cast<int>(spec.GetTrasformOperationType()));
    EXPECT_EQ("/backups/weekly & monthly/job.meta", spec.GetJobTargetFile());
    spec.SetJobTargetFile("");
    EXPECT_EQ("", spec.GetJobTargetFile());
}

TEST(CreateGfsSyntheticFullSpecTest, Text)
{
    EXPECT_EQ(golden("GfsFullTransformSpec/weekly.xml"), weeklySpec().ToString());
}

TEST(CreateGfsSyntheticFullSpecTest, ReadsBackWhatItWrites)
{
    expectEqual(weeklySpec(), *CCreateGfsSyntheticFullSpec::FromString(golden("GfsFullTransformSpec/weekly.xml")));
    expectEqual(weeklySpec(),
                *CCreateGfsSyntheticFullSpec::FromXmlNode(rootOf(golden("GfsFullTransformSpec/weekly.xml"))));
    for (const int type : {0, 1, -1, 99, INT_MAX, INT_MIN})
        expectEqual(weeklySpec(type), *CCreateGfsSyntheticFullSpec::FromString(weeklySpec(type).ToString()));
}

TEST(CreateGfsSyntheticFullSpecTest, RootOfAnyNameIsRead)
{
    const auto spec = CCreateGfsSyntheticFullSpec::FromString(
        "<?xml version='1.0'?><!-- x --><Any OperationType='003' JobTargetFile='f' BackupId='' "
        "Id='{0F8FAD5B-D9CB-469F-A165-70867728950E}' LastIncrementPointId='x'><GfsFullTransformSpec/></Any>");
    expectEqual({sessionId(), guid::guid_t(), static_cast<ETransformOperationType::type>(3), "f"}, *spec);
}

TEST(CreateGfsSyntheticFullSpecTest, MissingAttributesInReadingOrder)
{
    expectRefused("<a/>", "Attribute [Id] is not found in [a].");
    expectRefused("<a OperationType=\"x\" Id=\"\"/>", "Attribute [BackupId] is not found in [a].");
    expectRefused("<a OperationType=\"x\" Id=\"\" BackupId=\"\"/>", "Attribute [JobTargetFile] is not found in [a].");
    expectRefused("<GfsFullTransformSpec Id=\"\" BackupId=\"\" JobTargetFile=\"\"/>",
                  "Attribute [OperationType] is not found in [GfsFullTransformSpec].");
    expectRefused("<Specs><GfsFullTransformSpec" + idAttributes() + "/></Specs>",
                  "Attribute [Id] is not found in [Specs].");
}

TEST(CreateGfsSyntheticFullSpecTest, WrongTexts)
{
    for (const std::string text : {"x", "{0f8fad5b-d9cb-469f-a165-70867728950e", "0f8fad5bd9cb469fa16570867728950e"})
    {
        const std::string reason = "Unable to convert string [" + text + "] to GUID.";
        expectRefused("<a Id=\"" + text + "\"/>", reason);
        expectRefused("<a Id=\"\" BackupId=\"" + text + "\"/>", reason);
    }
    for (const std::string text : {"", " 1", "+1", "1x", "0x1", "1e3", "2147483648", "-2147483649", "4294967297"})
        expectRefused("<a" + idAttributes() + " JobTargetFile=\"\" OperationType=\"" + text + "\"/>",
                      "Unable to convert string [" + text + "] to [int].");
}

TEST(CreateGfsSyntheticFullSpecTest, FailuresOfTheTextItselfGetNoSentence)
{
    EXPECT_EQ("Unable to parse XML at line 1: [XML_ERROR_MISMATCHED_ELEMENT].",
              failureText([] { CCreateGfsSyntheticFullSpec::FromString("<a></b>"); }));
    const std::string expected = "Unable to parse XML at line ";
    for (const std::string& text : {std::string(), std::string("x"), std::string("<a"), std::string("<a/>\0", 5)})
        EXPECT_EQ(expected,
                  failureText([&] { CCreateGfsSyntheticFullSpec::FromString(text); }).substr(0, expected.size()));
}

} // namespace
