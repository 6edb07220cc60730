#include <zelmodel/transform/i_transform_spec.h>

#include <climits>
#include <type_traits>

#include <gtest/gtest.h>

#include <support/expect_failure.h>
#include <support/golden.h>
#include <zelmodel/transforms.h>

#include "sample_specs.h"

namespace
{

using namespace zelplatform::model::transform;
using zelmodel_test::failureText;
using zelmodel_test::golden;
using zelmodel_test::rootOf;
using zelmodel_test::sessionId;
using zelmodel_test::threePoints;

std::shared_ptr<ITransformSpec> read(const std::string& text, int type)
{
    return ITransformSpec::UnserializeSpec(rootOf(text), static_cast<ETransformOperationType::type>(type));
}

TEST(TransformSpecInterface, Numbers)
{
    EXPECT_EQ(0, static_cast<int>(ETransformOperationType::DeletePoint));
    EXPECT_EQ(1, static_cast<int>(ETransformOperationType::CreateSyntheticFull));
    EXPECT_EQ(4U, sizeof(ETransformOperationType::type));
    EXPECT_EQ(4U, sizeof(ETransformType::type));
    static_assert(std::has_virtual_destructor_v<ITransformSpec>);
}

TEST(TransformSpecInterface, TypeZeroDeletesPoints)
{
    const auto spec = read(golden("DeletePointTransformSpec/three_points.xml"), 0);
    const auto deletion = std::dynamic_pointer_cast<CTransformSpec>(spec);
    ASSERT_TRUE(deletion);
    EXPECT_TRUE(sessionId() == spec->GetSessionId());
    EXPECT_EQ(ETransformOperationType::DeletePoint, spec->GetTrasformOperationType());
    EXPECT_TRUE(threePoints() == deletion->GetPointIds());
    EXPECT_EQ(golden("DeletePointTransformSpec/three_points.xml"), spec->ToString());
}

TEST(TransformSpecInterface, TypeOneCreatesASyntheticFull)
{
    const auto spec = read(golden("FullTransformSpec/three_points.xml"), 1);
    EXPECT_TRUE(std::dynamic_pointer_cast<CCreateSyntheticFullSpec>(spec));
    EXPECT_TRUE(sessionId() == spec->GetSessionId());
    EXPECT_EQ(ETransformOperationType::CreateSyntheticFull, spec->GetTrasformOperationType());
    EXPECT_EQ(golden("FullTransformSpec/three_points.xml"), spec->ToString());
}

TEST(TransformSpecInterface, GfsTypeIsNotImplemented)
{
    for (const int type : {2, 3, -1, INT_MAX, INT_MIN})
    {
        for (const char* path : {"GfsFullTransformSpec/weekly.xml", "DeletePointTransformSpec/three_points.xml",
                                 "FullTransformSpec/three_points.xml"})
            EXPECT_EQ("Not implemented.", failureText([&] { read(golden(path), type); })) << type;
    }
}

TEST(TransformSpecInterface, TypeDecidesAndNotTheDocument)
{
    EXPECT_EQ("Unable to parse xml transform specification. Attribute [TransformType] is not found in "
              "[FullTransformSpec].",
              failureText([] { read(golden("FullTransformSpec/three_points.xml"), 0); }));
    EXPECT_EQ("Unable to parse xml create synthetic specification. Mandatory arguments not set "
              "(v11:LastIncrementPointId or v12:LastIncrementPointIds)",
              failureText([] { read(golden("DeletePointTransformSpec/three_points.xml"), 1); }));

    CTransformSpec other;
    other.SetTransformOperationType(static_cast<ETransformOperationType::type>(2));
    EXPECT_EQ(2, static_cast<int>(read(other.ToString(), 0)->GetTrasformOperationType()));
}

} // namespace
