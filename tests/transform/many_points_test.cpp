#include <gtest/gtest.h>

#include <support/expect_failure.h>
#include <support/processor_time.h>
#include <support/slowness.h>
#include <zelmodel/transforms.h>

#include "sample_specs.h"

namespace
{

using namespace zelplatform::model::transform;
using zelmodel_test::backupId;
using zelmodel_test::failureText;
using zelmodel_test::manyPoints;
using zelmodel_test::numberedId;
using zelmodel_test::sessionId;

constexpr unsigned count = 100000;

/// Ample for work that grows with the number of points, on a slow machine and with checks built in; far too little for
/// work that grows with its square.
class ManyPoints : public ::testing::Test
{
protected:
    void TearDown() override { EXPECT_LT(m_time.seconds(), 20.0 * zelmodel_test::slowness()); }

    static std::string guids()
    {
        std::string text;
        for (unsigned number = 0; number < count; ++number)
            text += "<Guid value=\"" + numberedId(number) + "\"/>";
        return text;
    }

private:
    zelmodel_test::ProcessorTime m_time;
};

TEST_F(ManyPoints, DeletePoints)
{
    CTransformSpec spec;
    for (const auto& point : manyPoints(count))
        spec.AddPointId(point);
    const std::string text = spec.ToString();
    EXPECT_TRUE(text == "<DeletePointTransformSpec Id=\"00000000-0000-0000-0000-000000000000\" "
                        "BackupId=\"00000000-0000-0000-0000-000000000000\" OperationType=\"0\" TransformType=\"0\" "
                        "EnableIntegrityChecks=\"false\"><IncrementPointIds>" +
                            guids() + "</IncrementPointIds></DeletePointTransformSpec>");
    EXPECT_TRUE(CTransformSpec::FromString(text)->GetPointIds() == manyPoints(count));
}

TEST_F(ManyPoints, SyntheticFull)
{
    const CCreateSyntheticFullSpec spec(sessionId(), backupId(), manyPoints(count), "f");
    const std::string text = spec.ToString();
    EXPECT_TRUE(text == "<FullTransformSpec Id=\"0f8fad5b-d9cb-469f-a165-70867728950e\" "
                        "BackupId=\"7c9e6679-7425-40de-944b-e07fc1f90ae7\" LastIncrementPointId=\"" +
                            numberedId(count - 1) +
                            "\" JobTargetFile=\"f\" OperationType=\"1\"><LastIncrementPointIds>" + guids() +
                            "</LastIncrementPointIds></FullTransformSpec>");
    EXPECT_TRUE(CCreateSyntheticFullSpec::FromString(text)->GetLastIncrementPoints() == manyPoints(count));
}

TEST_F(ManyPoints, LastOneIsRubbish)
{
    const std::string start = "<a Id=\"\" BackupId=\"\" OperationType=\"0\" TransformType=\"0\" "
                              "EnableIntegrityChecks=\"0\" JobTargetFile=\"\">";
    const std::string points = guids() + "<Guid value=\"x\"/>";
    EXPECT_EQ("Unable to parse string transform specification. Unable to parse xml transform specification. "
              "Unable to convert string [x] to GUID.",
              failureText([&] {
                  CTransformSpec::FromString(start + "<IncrementPointIds>" + points + "</IncrementPointIds></a>");
              }));
    EXPECT_EQ("Unable to parse string create synthetic specification. Unable to parse xml create synthetic "
              "specification. Unable to convert string [x] to GUID.",
              failureText([&] {
                  CCreateSyntheticFullSpec::FromString(start + "<LastIncrementPointIds>" + points +
                                                       "</LastIncrementPointIds></a>");
              }));
}

TEST_F(ManyPoints, OtherElementsAreSteppedOver)
{
    std::string others;
    for (unsigned number = 0; number < count; ++number)
        others += "<Point/>";
    const auto spec = CTransformSpec::FromString(
        "<a Id=\"\" BackupId=\"\" OperationType=\"0\" TransformType=\"0\" EnableIntegrityChecks=\"0\">" + others +
        "<IncrementPointIds>" + others + "<Guid value=\"" + numberedId(7) + "\"/>" + others +
        "</IncrementPointIds></a>");
    ASSERT_EQ(1U, spec->GetPointIds().size());
    EXPECT_EQ(numberedId(7), spec->GetPointIds()[0].ToAStr());
}

} // namespace
