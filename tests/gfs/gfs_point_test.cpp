#include <algorithm>
#include <set>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include <zelmodel/structs/gfs/gfs_point.h>

namespace
{

using namespace zelplatform::model::structs::gfs;
using datetime::CDateTime;

SGfsPoint point(const std::string& time, unsigned flags = 0, const std::string& storage = {})
{
    SGfsPoint result;
    result.storageId = guid::guid_t::FromAStr(storage);
    result.gfsFlags = CGfsFlags(flags);
    result.creationTime = CDateTime::fromString(time, "%m/%d/%Y %H:%M:%S");
    return result;
}

TEST(GfsPoint, LogTextNamesStorageTimeAndFlags)
{
    const struct
    {
        SGfsPoint point;
        std::string text;
    } table[] = {
        {point("02/29/2024 23:05:09", 11, "{7A1B2C3D-0000-4000-8000-00000000000F}"),
         "Storage id [7a1b2c3d-0000-4000-8000-00000000000f] creation time [02/29/2024 23:05:09] "
         "gfs flags [Weekly, Monthly, Yearly]"},
        {point("12/31/1999 00:00:00", 8, "ffffffff-ffff-ffff-ffff-ffffffffffff"),
         "Storage id [ffffffff-ffff-ffff-ffff-ffffffffffff] creation time [12/31/1999 00:00:00] gfs flags [Yearly]"},
        {point("01/01/1970 00:00:00"),
         "Storage id [00000000-0000-0000-0000-000000000000] creation time [01/01/1970 00:00:00] gfs flags []"},
        {point("03/06/2024 12:00:00", 4),
         "Storage id [00000000-0000-0000-0000-000000000000] creation time [03/06/2024 12:00:00] gfs flags []"},
    };
    for (const auto& row : table)
        EXPECT_EQ(row.text, row.point.toLogString());
}

TEST(GfsPoint, DefaultHasAllFieldsSet)
{
    const SGfsPoint empty;
    EXPECT_TRUE(empty.storageId.IsEmpty());
    EXPECT_EQ(0U, static_cast<unsigned>(empty.gfsFlags));
    EXPECT_EQ(0, empty.creationTime.toUnixTime());
    EXPECT_EQ("Storage id [00000000-0000-0000-0000-000000000000] creation time [01/01/1970 00:00:00] gfs flags []",
              empty.toLogString());
}

TEST(GfsPoint, EqualityComparesEveryField)
{
    const std::string storage = "7a1b2c3d-0000-4000-8000-00000000000f";
    const SGfsPoint base = point("03/06/2024 12:00:00", 1, storage);
    EXPECT_TRUE(base == point("03/06/2024 12:00:00", 1, storage));
    EXPECT_FALSE(base != point("03/06/2024 12:00:00", 1, storage));
    EXPECT_TRUE(base != point("03/06/2024 12:00:01", 1, storage));
    EXPECT_TRUE(base != point("03/06/2024 12:00:00", 3, storage));
    EXPECT_TRUE(base != point("03/06/2024 12:00:00", 1));
}

TEST(CreationTimeComparator, EarlierComesFirst)
{
    const SCreationTimeComparator isBefore;
    const std::string times[] = {"01/01/1400 00:00:00", "12/31/1969 23:59:59", "01/01/1970 00:00:00",
                                 "02/28/2024 23:59:59", "02/29/2024 00:00:00", "02/29/2024 00:00:01",
                                 "12/31/9999 23:59:59"};
    for (std::size_t i = 0; i < std::size(times); ++i)
    {
        for (std::size_t j = 0; j < std::size(times); ++j)
            EXPECT_EQ(i < j, isBefore(point(times[i]), point(times[j]))) << times[i] << " and " << times[j];
    }
}

TEST(CreationTimeComparator, StorageAndFlagsPlayNoPart)
{
    const SCreationTimeComparator isBefore;
    const SGfsPoint one = point("03/06/2024 12:00:00", 1, "00000000-0000-0000-0000-000000000001");
    const SGfsPoint two = point("03/06/2024 12:00:00", 8, "00000000-0000-0000-0000-000000000002");
    EXPECT_FALSE(isBefore(one, two));
    EXPECT_FALSE(isBefore(two, one));
    EXPECT_FALSE(isBefore(one, one));

    const std::set<SGfsPoint, SCreationTimeComparator> points{one, two};
    EXPECT_EQ(1U, points.size());
}

TEST(CreationTimeComparator, SortsPointsByTime)
{
    std::vector<SGfsPoint> points{
        point("03/06/2024 12:00:00", 1, "00000000-0000-0000-0000-000000000003"),
        point("03/05/2024 12:00:00", 8, "00000000-0000-0000-0000-000000000009"),
        point("03/06/2024 12:00:00", 2, "00000000-0000-0000-0000-000000000001"),
        point("12/31/2023 12:00:00", 0, "00000000-0000-0000-0000-000000000005"),
    };
    std::stable_sort(points.begin(), points.end(), SCreationTimeComparator());
    std::string order;
    for (const auto& each : points)
        order += each.storageId.ToAStr().back();
    EXPECT_EQ("5931", order);
}

TEST(CreationTimeComparator, QuirkLocalAndUtcTimesAreComparedAsTheyStand)
{
    const SCreationTimeComparator isBefore;
    SGfsPoint local = point("03/06/2024 12:00:00");
    local.creationTime = CDateTime(local.creationTime.toUnixTime(), false);
    const SGfsPoint utc = point("03/06/2024 12:00:00");
    EXPECT_FALSE(isBefore(local, utc));
    EXPECT_FALSE(isBefore(utc, local));
}

} // namespace
