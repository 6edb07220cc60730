#include <zelmodel/transform/transform_spec.h>

#include <climits>

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
using zelmodel_test::rootOf;
using zelmodel_test::sessionId;
using zelmodel_test::threePoints;

constexpr const char* xmlFailed = "Unable to parse xml transform specification. ";
constexpr const char* stringFailed = "Unable to parse string transform specification. ";

CTransformSpec fullSpec()
{
    CTransformSpec spec;
    spec.SetSessionId(sessionId());
    spec.SetBackupId(backupId());
    spec.SetTransformOperationType(ETransformOperationType::DeletePoint);
    spec.SetTransformType(static_cast<ETransformType::type>(4));
    spec.SetIntegrityCheckEnabled(true);
    spec.SetPointIds(threePoints());
    return spec;
}

void expectEqual(const CTransformSpec& expected, const CTransformSpec& spec)
{
    EXPECT_TRUE(expected.GetSessionId() == spec.GetSessionId());
    EXPECT_TRUE(expected.GetBackupId() == spec.GetBackupId());
    EXPECT_EQ(expected.GetTrasformOperationType(), spec.GetTrasformOperationType());
    EXPECT_EQ(expected.GetTransformType(), spec.GetTransformType());
    EXPECT_EQ(expected.IsIntegrityCheckEnabled(), spec.IsIntegrityCheckEnabled());
    EXPECT_TRUE(expected.GetPointIds() == spec.GetPointIds());
}

/// A whole document with other texts for one attribute and for the children.
std::string document(const std::string& changed, const std::string& changedText,
                     const std::string& children = "<IncrementPointIds/>")
{
    const char* attributes[][2] = {{"Id", "0f8fad5b-d9cb-469f-a165-70867728950e"},
                                   {"BackupId", "7c9e6679-7425-40de-944b-e07fc1f90ae7"},
                                   {"OperationType", "0"},
                                   {"TransformType", "4"},
                                   {"EnableIntegrityChecks", "true"}};
    std::string text = "<DeletePointTransformSpec";
    for (const auto& each : attributes)
    {
        if (changed != each[0])
            text += std::string(" ") + each[0] + "=\"" + each[1] + "\"";
        else if (changedText != "missing")
            text += " " + changed + "=\"" + changedText + "\"";
    }
    return text + ">" + children + "</DeletePointTransformSpec>";
}

std::vector<guid_t> pointsOf(const std::string& children)
{
    return CTransformSpec::FromString(document("none", "", children))->GetPointIds();
}

void expectRefused(const std::string& text, const std::string& reason)
{
    EXPECT_EQ(xmlFailed + reason, failureText([&] { CTransformSpec::FromXmlNode(rootOf(text)); })) << text;
    EXPECT_EQ(std::string(stringFailed) + xmlFailed + reason, failureText([&] { CTransformSpec::FromString(text); }))
        << text;
}

TEST(TransformSpecTest, Defaults)
{
    const CTransformSpec spec;
    EXPECT_TRUE(spec.GetSessionId().IsEmpty());
    EXPECT_TRUE(spec.GetBackupId().IsEmpty());
    EXPECT_EQ(0, static_cast<int>(spec.GetTrasformOperationType()));
    EXPECT_EQ(0, static_cast<int>(spec.GetTransformType()));
    EXPECT_FALSE(spec.IsIntegrityCheckEnabled());
    EXPECT_TRUE(spec.GetPointIds().empty());
}

TEST(TransformSpecTest, SettersReplaceAndAddAppends)
{
    CTransformSpec spec = fullSpec();
    spec.SetPointIds({backupId()});
    spec.AddPointId(sessionId());
    spec.AddPointId(sessionId());
    const std::vector<guid_t> expected{backupId(), sessionId(), sessionId()};
    EXPECT_TRUE(expected == spec.GetPointIds());
    spec.SetPointIds({});
    EXPECT_TRUE(spec.GetPointIds().empty());
    spec.SetTransformOperationType(static_cast<ETransformOperationType::type>(9));
    EXPECT_EQ(9, static_cast<int>(spec.GetTrasformOperationType()));
}

TEST(TransformSpecTest, Text)
{
    EXPECT_EQ(golden("DeletePointTransformSpec/default.xml"), CTransformSpec().ToString());
    EXPECT_EQ(golden("DeletePointTransformSpec/three_points.xml"), fullSpec().ToString());
}

TEST(TransformSpecTest, ReadsBackWhatItWrites)
{
    expectEqual(CTransformSpec(), *CTransformSpec::FromString(golden("DeletePointTransformSpec/default.xml")));
    expectEqual(fullSpec(), *CTransformSpec::FromString(golden("DeletePointTransformSpec/three_points.xml")));
    expectEqual(fullSpec(), *CTransformSpec::FromXmlNode(rootOf(golden("DeletePointTransformSpec/three_points.xml"))));

    CTransformSpec repeated = fullSpec();
    repeated.SetPointIds({backupId(), backupId(), guid_t(), backupId()});
    expectEqual(repeated, *CTransformSpec::FromString(repeated.ToString()));
}

TEST(TransformSpecTest, AnyNumberIsAType)
{
    for (const int number : {0, 1, 2, 99, -1, INT_MAX, INT_MIN})
    {
        CTransformSpec spec = fullSpec();
        spec.SetTransformOperationType(static_cast<ETransformOperationType::type>(number));
        spec.SetTransformType(static_cast<ETransformType::type>(number));
        const std::string text = std::to_string(number);
        EXPECT_NE(std::string::npos,
                  spec.ToString().find(" OperationType=\"" + text + "\" TransformType=\"" + text + "\" "));
        expectEqual(spec, *CTransformSpec::FromString(spec.ToString()));
    }
}

TEST(TransformSpecTest, PointsAsTextAreRead)
{
    EXPECT_TRUE(threePoints() ==
                CTransformSpec::FromString(golden("legacy/delete_point_text_points.xml"))->GetPointIds());
}

TEST(TransformSpecTest, OnlyGuidChildrenOfTheFirstListArePoints)
{
    const std::string point = "<Guid value=\"cccccccc-0000-0000-0000-000000000003\"/>";
    const std::vector<guid_t> one{threePoints()[0]};
    EXPECT_TRUE(one == pointsOf("<IncrementPointIds>" + point + "</IncrementPointIds><IncrementPointIds>" + point +
                                point + "</IncrementPointIds>"));
    EXPECT_TRUE(one ==
                pointsOf(point + "<Other>" + point + "</Other><IncrementPointIds><!-- " + point + " --><guid/>" +
                         "<Point>" + point + "</Point>text" + point + "<GUID value=\"x\"/></IncrementPointIds>"));
    EXPECT_TRUE(pointsOf("<IncrementPointIds></IncrementPointIds>").empty());
    EXPECT_TRUE(
        pointsOf("<IncrementPointIds Guid=\"x\">cccccccc-0000-0000-0000-000000000003</IncrementPointIds>").empty());
}

TEST(TransformSpecTest, EmptyIdsAreTheZeroOne)
{
    const auto points = pointsOf("<IncrementPointIds><Guid value=\"\"/><Guid></Guid></IncrementPointIds>");
    EXPECT_TRUE((points == std::vector<guid_t>{guid_t(), guid_t()}));
    EXPECT_TRUE(CTransformSpec::FromString(document("Id", ""))->GetSessionId().IsEmpty());
}

TEST(TransformSpecTest, RootOfAnyNameIsRead)
{
    const auto spec = CTransformSpec::FromString(
        "<?xml version='1.0'?><!-- x --><Any EnableIntegrityChecks='False' TransformType='-0' OperationType='007' "
        "BackupId='{7C9E6679-7425-40DE-944B-E07FC1F90AE7}' Id='' JobTargetFile='x'><IncrementPointIds/></Any>");
    EXPECT_TRUE(backupId() == spec->GetBackupId());
    EXPECT_EQ(7, static_cast<int>(spec->GetTrasformOperationType()));
    EXPECT_FALSE(spec->IsIntegrityCheckEnabled());
}

TEST(TransformSpecTest, NodeIsTheElementItselfAndNotItsParent)
{
    const auto parsed = xmlpp::CXmlDocument::Unserialize("<Specs>" + document("none", "") + "</Specs>");
    EXPECT_EQ(std::string(xmlFailed) + "Attribute [Id] is not found in [Specs].",
              failureText([&] { CTransformSpec::FromXmlNode(parsed.GetRootNode()); }));
    const auto spec = CTransformSpec::FromXmlNode(parsed.GetRootNode().GetFirstChildNode("DeletePointTransformSpec"));
    EXPECT_TRUE(sessionId() == spec->GetSessionId());
    EXPECT_NE(spec, CTransformSpec::FromXmlNode(parsed.GetRootNode().GetFirstChildNode("DeletePointTransformSpec")));
}

TEST(TransformSpecTest, EveryAttributeAndTheListAreNeeded)
{
    for (const std::string name : {"Id", "BackupId", "OperationType", "TransformType", "EnableIntegrityChecks"})
        expectRefused(document(name, "missing"),
                      "Attribute [" + name + "] is not found in [DeletePointTransformSpec].");
    expectRefused(document("none", "", ""), "Node [IncrementPointIds] is not found in [DeletePointTransformSpec].");
    expectRefused(document("none", "", "<LastIncrementPointIds/><incrementPointIds/>"),
                  "Node [IncrementPointIds] is not found in [DeletePointTransformSpec].");
}

TEST(TransformSpecTest, FaultsAreReportedInReadingOrder)
{
    expectRefused("<a/>", "Attribute [Id] is not found in [a].");
    expectRefused("<a EnableIntegrityChecks=\"x\" TransformType=\"y\" OperationType=\"z\" BackupId=\"v\" Id=\"w\"/>",
                  "Unable to convert string [w] to GUID.");
    expectRefused("<a EnableIntegrityChecks=\"x\" TransformType=\"y\" OperationType=\"z\" BackupId=\"\" Id=\"\"/>",
                  "Unable to convert string [z] to [int].");
    expectRefused("<a EnableIntegrityChecks=\"x\" TransformType=\"1\" OperationType=\"1\" BackupId=\"\" Id=\"\"/>",
                  "Unable to convert string [x] to [bool].");
}

TEST(TransformSpecTest, IdsMustBeIds)
{
    for (const std::string text : {"x", "0f8fad5b-d9cb-469f-a165-70867728950", "{0f8fad5b-d9cb-469f-a165-70867728950e",
                                   "0f8fad5bd9cb469fa16570867728950e", " 0f8fad5b-d9cb-469f-a165-70867728950e"})
    {
        const std::string reason = "Unable to convert string [" + text + "] to GUID.";
        expectRefused(document("Id", text), reason);
        expectRefused(document("BackupId", text), reason);
        expectRefused(
            document("none", "",
                     "<IncrementPointIds><Guid value=\"\"/><Guid value=\"" + text + "\"/></IncrementPointIds>"),
            reason);
    }
    expectRefused(document("none", "", "<IncrementPointIds><Guid>x y</Guid></IncrementPointIds>"),
                  "Unable to convert string [x y] to GUID.");
}

TEST(TransformSpecTest, TypesAre32BitNumbers)
{
    for (const std::string name : {"OperationType", "TransformType"})
    {
        for (const std::string text : {"", " 1", "+1", "1x", "0x1", "1e3", "1.0", "DeletePoint", "2147483648",
                                       "-2147483649", "4294967296", "9223372036854775808"})
            expectRefused(document(name, text), "Unable to convert string [" + text + "] to [int].");
    }
}

TEST(TransformSpecTest, CheckIsAFlag)
{
    for (const std::string text : {"", "yes", "2", " true", "on"})
        expectRefused(document("EnableIntegrityChecks", text), "Unable to convert string [" + text + "] to [bool].");
}

TEST(TransformSpecTest, TextsThatAreNoXml)
{
    EXPECT_EQ(std::string(stringFailed) + "Unable to parse XML at line 1: [XML_ERROR_MISMATCHED_ELEMENT].",
              failureText([] { CTransformSpec::FromString("<a></b>"); }));
    const std::string expected = std::string(stringFailed) + "Unable to parse XML at line ";
    std::string deep = document("none", "", "<IncrementPointIds>");
    for (int level = 0; level < 10000; ++level)
        deep += "<Guid>";
    for (const std::string& text : {std::string(), std::string("x"), deep, std::string("<a/>\0", 5)})
        EXPECT_EQ(expected, failureText([&] { CTransformSpec::FromString(text); }).substr(0, expected.size()));
}

} // namespace
