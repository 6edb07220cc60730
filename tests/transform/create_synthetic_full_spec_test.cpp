#include <zelmodel/transform/create_synthetic_full_spec.h>

#include <gtest/gtest.h>

#include <support/expect_failure.h>
#include <support/golden.h>

#include "sample_specs.h"

namespace
{

using namespace zelplatform::model::transform;
using guid::guid_t;
using zelmodel_test::backupId;
using zelmodel_test::failureText;
using zelmodel_test::golden;
using zelmodel_test::idAttributes;
using zelmodel_test::rootOf;
using zelmodel_test::sessionId;
using zelmodel_test::threePoints;

constexpr const char* xmlFailed = "Unable to parse xml create synthetic specification. ";
constexpr const char* stringFailed = "Unable to parse string create synthetic specification. ";
constexpr const char* noPoints = "Mandatory arguments not set (v11:LastIncrementPointId or v12:LastIncrementPointIds)";

CCreateSyntheticFullSpec fullSpec()
{
    return {sessionId(), backupId(), threePoints(), "/backups/nightly/job.meta"};
}

void expectEqual(const CCreateSyntheticFullSpec& expected, const CCreateSyntheticFullSpec& spec)
{
    EXPECT_TRUE(expected.GetSessionId() == spec.GetSessionId());
    EXPECT_TRUE(expected.GetBackupId() == spec.GetBackupId());
    EXPECT_TRUE(expected.GetLastIncrementPoints() == spec.GetLastIncrementPoints());
    EXPECT_EQ(expected.GetJobTargetFile(), spec.GetJobTargetFile());
    EXPECT_EQ(ETransformOperationType::CreateSyntheticFull, spec.GetTrasformOperationType());
}

std::string document(const std::string& attributes, const std::string& children)
{
    return "<FullTransformSpec" + idAttributes() + " JobTargetFile=\"f\" " + attributes + ">" + children +
           "</FullTransformSpec>";
}

std::vector<guid_t> pointsOf(const std::string& attributes, const std::string& children)
{
    return CCreateSyntheticFullSpec::FromString(document(attributes, children))->GetLastIncrementPoints();
}

void expectRefused(const std::string& text, const std::string& reason)
{
    EXPECT_EQ(xmlFailed + reason, failureText([&] { CCreateSyntheticFullSpec::FromXmlNode(rootOf(text)); })) << text;
    EXPECT_EQ(std::string(stringFailed) + xmlFailed + reason,
              failureText([&] { CCreateSyntheticFullSpec::FromString(text); }))
        << text;
}

const std::string first = "cccccccc-0000-0000-0000-000000000003";
const std::string second = "aaaaaaaa-0000-0000-0000-000000000001";

TEST(CreateSyntheticFullSpecTest, ValueAndSetters)
{
    CCreateSyntheticFullSpec spec = fullSpec();
    EXPECT_TRUE(sessionId() == spec.GetSessionId());
    EXPECT_TRUE(backupId() == spec.GetBackupId());
    EXPECT_TRUE(threePoints() == spec.GetLastIncrementPoints());
    EXPECT_EQ("/backups/nightly/job.meta", spec.GetJobTargetFile());
    EXPECT_EQ(1, static_cast<int>(spec.GetTrasformOperationType()));

    spec.SetLastIncrementPoints({backupId()});
    spec.SetJobTargetFile("other");
    EXPECT_TRUE(std::vector<guid_t>{backupId()} == spec.GetLastIncrementPoints());
    EXPECT_EQ("other", spec.GetJobTargetFile());
}

TEST(CreateSyntheticFullSpecTest, TextHoldsBothGenerations)
{
    EXPECT_EQ(golden("FullTransformSpec/three_points.xml"), fullSpec().ToString());
}

TEST(CreateSyntheticFullSpecTest, TextWithoutPointsHasTheEmptyListOnly)
{
    const CCreateSyntheticFullSpec spec(sessionId(), backupId(), {}, "");
    EXPECT_EQ(golden("FullTransformSpec/no_points.xml"), spec.ToString());
    expectEqual(spec, *CCreateSyntheticFullSpec::FromString(golden("FullTransformSpec/no_points.xml")));
}

TEST(CreateSyntheticFullSpecTest, ReadsBackWhatItWrites)
{
    expectEqual(fullSpec(), *CCreateSyntheticFullSpec::FromString(golden("FullTransformSpec/three_points.xml")));
    expectEqual(fullSpec(),
                *CCreateSyntheticFullSpec::FromXmlNode(rootOf(golden("FullTransformSpec/three_points.xml"))));
    for (const char* file : {"", " ", "a\r\n\tb", "<&>\"'", "\xFF\x80", "C:\\job", "%1"})
    {
        CCreateSyntheticFullSpec spec = fullSpec();
        spec.SetJobTargetFile(file);
        spec.SetLastIncrementPoints({backupId(), backupId(), guid_t()});
        expectEqual(spec, *CCreateSyntheticFullSpec::FromString(spec.ToString()));
    }
}

TEST(CreateSyntheticFullSpecTest, OlderGenerationHasOnePoint)
{
    const auto spec = CCreateSyntheticFullSpec::FromString(golden("legacy/full_transform_single_point.xml"));
    expectEqual({sessionId(), backupId(), {guid_t::FromAStr(second)}, "/backups/nightly/job.meta"}, *spec);
    EXPECT_TRUE((pointsOf("LastIncrementPointId=\"\"", "") == std::vector<guid_t>{guid_t()}));
}

TEST(CreateSyntheticFullSpecTest, ListAloneIsEnough)
{
    const auto points = pointsOf("", "<LastIncrementPointIds><Guid value=\"" + first + "\"/><Guid value=\"" + second +
                                         "\"/></LastIncrementPointIds>");
    EXPECT_TRUE((points == std::vector<guid_t>{guid_t::FromAStr(first), guid_t::FromAStr(second)}));
    EXPECT_TRUE(pointsOf("", "<LastIncrementPointIds/>").empty());
}

TEST(CreateSyntheticFullSpecTest, ListReplacesTheSinglePoint)
{
    const std::string single = "LastIncrementPointId=\"" + second + "\"";
    const auto points =
        pointsOf(single, "<LastIncrementPointIds><Guid value=\"" + first + "\"/></LastIncrementPointIds>");
    EXPECT_TRUE(std::vector<guid_t>{guid_t::FromAStr(first)} == points);
    EXPECT_TRUE(pointsOf(single, "<LastIncrementPointIds/>").empty());
}

TEST(CreateSyntheticFullSpecTest, NeitherGeneration)
{
    expectRefused(document("", ""), noPoints);
    expectRefused(document("lastIncrementPointId=\"\"", "<lastIncrementPointIds/><Guid value=\"" + first + "\"/>"),
                  noPoints);
    expectRefused(document("LastIncrementPointIds=\"" + first + "\"", "<IncrementPointIds/>"), noPoints);
    expectRefused(document("", "<LastIncrementPointId>" + first + "</LastIncrementPointId>"), noPoints);
    expectRefused(document("", "<Other><LastIncrementPointIds/></Other>"), noPoints);
}

TEST(CreateSyntheticFullSpecTest, PointsOfTheListAreValuesOfGuids)
{
    const std::string point = "<Guid value=\"" + first + "\"/>";
    EXPECT_TRUE(std::vector<guid_t>{guid_t::FromAStr(first)} ==
                pointsOf("", "<LastIncrementPointIds><!-- none --><guid/><Point/>text" + point +
                                 "</LastIncrementPointIds><LastIncrementPointIds>" + point + point +
                                 "</LastIncrementPointIds>"));
    EXPECT_TRUE(std::vector<guid_t>{guid_t()} ==
                pointsOf("", "<LastIncrementPointIds><Guid value=\"\"/></LastIncrementPointIds>"));
    for (const std::string guid :
         {"<Guid/>", "<Guid Value=\"\"/>", "<Guid>cccccccc-0000-0000-0000-000000000003</Guid>"})
        expectRefused(document("", "<LastIncrementPointIds>" + guid + "</LastIncrementPointIds>"),
                      "Attribute [value] is not found in [Guid].");
}

TEST(CreateSyntheticFullSpecTest, OperationTypeIsNotRead)
{
    for (const std::string type : {"", "OperationType=\"\"", "OperationType=\"x\"", "OperationType=\"0\"",
                                   "OperationType=\"2\"", "OperationType=\"99999999999999999999\""})
    {
        const auto spec = CCreateSyntheticFullSpec::FromString(document(type, "<LastIncrementPointIds/>"));
        EXPECT_EQ(1, static_cast<int>(spec->GetTrasformOperationType())) << type;
    }
}

TEST(CreateSyntheticFullSpecTest, RootOfAnyNameIsRead)
{
    const auto spec =
        CCreateSyntheticFullSpec::FromString("<?xml version='1.0'?><!-- x --><Any JobTargetFile='' "
                                             "LastIncrementPointId='{CCCCCCCC-0000-0000-0000-000000000003}' "
                                             "BackupId='' Id='{0F8FAD5B-D9CB-469F-A165-70867728950E}'/>");
    expectEqual({sessionId(), guid_t(), {guid_t::FromAStr(first)}, ""}, *spec);
}

TEST(CreateSyntheticFullSpecTest, NodeIsTheElementItselfAndNotItsParent)
{
    EXPECT_EQ(std::string(xmlFailed) + "Attribute [Id] is not found in [Specs].", failureText([] {
                  CCreateSyntheticFullSpec::FromXmlNode(
                      rootOf("<Specs>" + document("", "<LastIncrementPointIds/>") + "</Specs>"));
              }));
}

TEST(CreateSyntheticFullSpecTest, MissingAttributesInReadingOrder)
{
    expectRefused("<a/>", "Attribute [Id] is not found in [a].");
    expectRefused("<a Id=\"\"/>", "Attribute [BackupId] is not found in [a].");
    expectRefused("<a Id=\"\" BackupId=\"\"/>", noPoints);
    expectRefused("<a Id=\"\" BackupId=\"\" LastIncrementPointId=\"\"/>",
                  "Attribute [JobTargetFile] is not found in [a].");
    expectRefused("<a Id=\"\" BackupId=\"\"><LastIncrementPointIds/></a>",
                  "Attribute [JobTargetFile] is not found in [a].");
}

TEST(CreateSyntheticFullSpecTest, IdsMustBeIds)
{
    for (const std::string text : {"x", "0f8fad5b-d9cb-469f-a165-70867728950", "{0f8fad5b-d9cb-469f-a165-70867728950e",
                                   "0f8fad5bd9cb469fa16570867728950e", " 0f8fad5b-d9cb-469f-a165-70867728950e"})
    {
        const std::string reason = "Unable to convert string [" + text + "] to GUID.";
        expectRefused("<a Id=\"" + text + "\" BackupId=\"y\"/>", reason);
        expectRefused("<a Id=\"\" BackupId=\"" + text + "\"/>", reason);
        expectRefused(document("LastIncrementPointId=\"" + text + "\"", ""), reason);
        expectRefused(document("", "<LastIncrementPointIds><Guid value=\"" + first + "\"/><Guid value=\"" + text +
                                       "\"/></LastIncrementPointIds>"),
                      reason);
    }
}

TEST(CreateSyntheticFullSpecTest, TextsThatAreNoXml)
{
    EXPECT_EQ(std::string(stringFailed) + "Unable to parse XML at line 1: [XML_ERROR_MISMATCHED_ELEMENT].",
              failureText([] { CCreateSyntheticFullSpec::FromString("<a></b>"); }));
    const std::string expected = std::string(stringFailed) + "Unable to parse XML at line ";
    for (const std::string& text : {std::string(), std::string("x"), std::string("<a"), std::string("<a/>\0", 5)})
        EXPECT_EQ(expected,
                  failureText([&] { CCreateSyntheticFullSpec::FromString(text); }).substr(0, expected.size()));
}

} // namespace
