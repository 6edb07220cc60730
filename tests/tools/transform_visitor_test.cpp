#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "tree.h"

namespace
{

using zelmodel_test::at;
using zelmodel_test::expectFields;
using zelmodel_test::namesOf;
using zelmodel_test::treeOf;

constexpr const char* Session = "e2a57c90-14fb-4b8d-9d36-05c8f1e6a742";
constexpr const char* Backup = "84b0d3f9-2e61-47ca-8f15-d96c70ab31e5";
constexpr const char* First = "1f6c8a42-90d7-4e35-b3a8-62e5d4c7f019";
constexpr const char* Second = "c7d2e5b8-3a94-4160-8bf7-0e91a6d3c528";

std::string identifiers()
{
    return std::string("\nId=\"") + Session + "\"\nBackupId=\"" + Backup + "\"\n";
}

std::string point(const char* id)
{
    return std::string("<Guid value=\"") + id + "\"/>";
}

TEST(DeletePointTree, HoldsEveryFieldWithItsLine)
{
    const auto root =
        treeOf("<DeletePointTransformSpec" + identifiers() +
               "OperationType=\"0\"\nTransformType=\"5\"\nEnableIntegrityChecks=\"false\">\n"
               "<IncrementPointIds>\n" +
               point(Second) + "\n<other/><Guid>\n" + First + "</Guid></IncrementPointIds></DeletePointTransformSpec>");
    EXPECT_EQ(namesOf(root), (std::vector<std::string>{"sessionId", "backupId", "operationType", "transformType",
                                                       "integrityCheckEnabled", "pointIds", "ignored"}));
    expectFields(root, {{"sessionId", Session, Session, 2},
                        {"backupId", Backup, Backup, 3},
                        {"operationType", "0", "delete restore points", 4},
                        {"transformType", "5", "number 5", 5},
                        {"integrityCheckEnabled", "false", "off", 6},
                        {"pointIds", "", "2 restore points, in this order", 7},
                        {"ignored/part", "other", "element other of IncrementPointIds", 9}});
    const auto& points = at(root, "pointIds").children;
    ASSERT_EQ(points.size(), 2U);
    EXPECT_EQ(points[0].value, Second);
    EXPECT_EQ(points[0].origin.line, 8);
    EXPECT_EQ(points[1].words, First);
    EXPECT_EQ(points[1].label, "2");
    EXPECT_EQ(points[1].origin.line, 9);
}

TEST(DeletePointTree, WithoutPointsSaysSo)
{
    const auto root = treeOf("<DeletePointTransformSpec" + identifiers() +
                             "OperationType=\"-1\" TransformType=\"0\" EnableIntegrityChecks=\"true\">"
                             "<IncrementPointIds/></DeletePointTransformSpec>");
    expectFields(root, {{"operationType", "-1", "of an unknown kind (-1)", 4}, {"pointIds", "", "none", 4}});
    EXPECT_TRUE(at(root, "pointIds").children.empty());
}

// The list counts, not the attribute; the stored operation is not read.
TEST(SyntheticFullTree, HoldsEveryFieldWithItsLine)
{
    const auto root =
        treeOf("<FullTransformSpec" + identifiers() + "LastIncrementPointId=\"" + Second +
               "\"\nJobTargetFile=\"/target\"\nOperationType=\"7\">\n<LastIncrementPointIds>\n" + point(First) + "\n" +
               point(Second) + "\n" + point(First) + "</LastIncrementPointIds></FullTransformSpec>");
    EXPECT_EQ(namesOf(root), (std::vector<std::string>{"sessionId", "backupId", "operationType", "lastIncrementPoints",
                                                       "jobTargetFile"}));
    expectFields(root, {{"sessionId", Session, Session, 2},
                        {"backupId", Backup, Backup, 3},
                        {"jobTargetFile", "/target", "/target", 5},
                        {"operationType", "1", "create a synthetic full", 6},
                        {"lastIncrementPoints", "", "3 restore points, in this order", 7}});
    const auto& points = at(root, "lastIncrementPoints").children;
    ASSERT_EQ(points.size(), 3U);
    EXPECT_EQ(points[1].value, Second);
    EXPECT_EQ(points[1].origin.line, 9);
}

TEST(SyntheticFullTree, TellsThePointOfTheOlderForm)
{
    const auto root =
        treeOf("<FullTransformSpec" + identifiers() + "LastIncrementPointId=\"" + Second + "\"\nJobTargetFile=\"\"/>");
    expectFields(root, {{"lastIncrementPoints", "", "1 restore point", 4},
                        {"lastIncrementPoints/point", Second, Second, 4},
                        {"jobTargetFile", "", "none", 5}});
}

TEST(GfsSyntheticFullTree, HoldsEveryFieldWithItsLine)
{
    const auto root =
        treeOf("<GfsFullTransformSpec" + identifiers() + "JobTargetFile=\"/target\"\nOperationType=\"1\"/>");
    EXPECT_EQ(namesOf(root), (std::vector<std::string>{"sessionId", "backupId", "operationType", "jobTargetFile"}));
    expectFields(root, {{"sessionId", Session, Session, 2},
                        {"backupId", Backup, Backup, 3},
                        {"jobTargetFile", "/target", "/target", 4},
                        {"operationType", "1", "create a synthetic full", 5}});
}

} // namespace
