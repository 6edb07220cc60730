#include <zelmodel/enums/snapshot_mode.h>

#include <gtest/gtest.h>

using zelplatform::model::ESnapshotMode;

namespace
{

TEST(SnapshotModeTest, RequiresASnapshotByDefault)
{
    EXPECT_EQ(static_cast<int>(ESnapshotMode::GetDefault()), 0);
    EXPECT_EQ(ESnapshotMode::ToString(ESnapshotMode::GetDefault()), "SnapshotRequired");
}

} // namespace
