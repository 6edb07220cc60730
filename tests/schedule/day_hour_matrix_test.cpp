#include <climits>
#include <type_traits>

#include <gtest/gtest.h>

#include <zelmodel/structs/schedule/day_hour_matrix.h>

#include "backup_window_failure.h"
#include "support/expect_failure.h"

using namespace zelplatform::model::structs;
using zelmodel_test::failureText;
using zelmodel_test::pointerFailureText;

namespace
{

constexpr const char* outOfRange = "Backup window matrix indices out of range.";

struct SCell
{
    int day;
    int hour;
};

constexpr SCell falseCells[] = {{7, 0},   {0, 24},      {7, 24},      {6, 24},      {INT_MAX, 0},      {0, INT_MAX},
                                {-1, 0},  {0, -1},      {-1, 24},     {1, -1},      {INT_MIN, 0},      {0, INT_MIN},
                                {-1, -1}, {INT_MAX, 1}, {8, INT_MIN}, {INT_MIN, 5}, {INT_MAX, INT_MAX}};

} // namespace

TEST(DayHourMatrixValue, EnabledIsOpenAllWeek)
{
    const DayHourMatrix matrix(EScheduleWindowKind::Enabled);
    EXPECT_EQ(EScheduleWindowKind::Enabled, matrix.getScheduleWindowKind());
    EXPECT_EQ(1U, matrix.getDefaultValue());
    for (int day = 0; day < 7; ++day)
        for (int hour = 0; hour < 24; ++hour)
            EXPECT_EQ(1U, matrix(day, hour)) << day << ' ' << hour;
}

TEST(DayHourMatrixValue, DisabledIsClosedAllWeek)
{
    const DayHourMatrix matrix(EScheduleWindowKind::Disabled);
    EXPECT_EQ(EScheduleWindowKind::Disabled, matrix.getScheduleWindowKind());
    EXPECT_EQ(0U, matrix.getDefaultValue());
    for (int day = 0; day < 7; ++day)
        for (int hour = 0; hour < 24; ++hour)
            EXPECT_EQ(0U, matrix(day, hour)) << day << ' ' << hour;
}

TEST(DayHourMatrixValue, KindNumbersAreThoseOfDocuments)
{
    EXPECT_EQ(0, static_cast<int>(EScheduleWindowKind::Enabled));
    EXPECT_EQ(1, static_cast<int>(EScheduleWindowKind::Disabled));
    EXPECT_EQ(4U, sizeof(EScheduleWindowKind));
}

TEST(DayHourMatrixValue, EveryCellIsItsOwn)
{
    for (int day = 0; day < 7; ++day)
        for (int hour = 0; hour < 24; ++hour)
        {
            DayHourMatrix matrix(EScheduleWindowKind::Disabled);
            matrix(day, hour) = 1;
            unsigned sum = 0;
            for (int otherDay = 0; otherDay < 7; ++otherDay)
                for (int otherHour = 0; otherHour < 24; ++otherHour)
                    sum += matrix(otherDay, otherHour);
            EXPECT_EQ(1U, sum) << day << ' ' << hour;
            EXPECT_EQ(1U, matrix(day, hour)) << day << ' ' << hour;
        }
}

TEST(DayHourMatrixValue, CopiesAreIndependent)
{
    DayHourMatrix matrix(EScheduleWindowKind::Enabled);
    DayHourMatrix copy(matrix);
    copy(3, 12) = 0;
    EXPECT_EQ(1U, matrix(3, 12));
    matrix = copy;
    EXPECT_EQ(0U, matrix(3, 12));
    copy(3, 12) = 1;
    EXPECT_EQ(0U, matrix(3, 12));
}

TEST(DayHourMatrixValue, AssignmentTakesTheKindToo)
{
    DayHourMatrix matrix(EScheduleWindowKind::Enabled);
    matrix = DayHourMatrix(EScheduleWindowKind::Disabled);
    EXPECT_EQ(EScheduleWindowKind::Disabled, matrix.getScheduleWindowKind());
    EXPECT_EQ(0U, matrix.getDefaultValue());
    EXPECT_EQ(0U, matrix(0, 0));
}

TEST(DayHourMatrixValue, IsPolymorphic)
{
    EXPECT_TRUE(std::has_virtual_destructor_v<DayHourMatrix>);
}

TEST(DayHourMatrixFailures, CellsOutsideTheWeek)
{
    DayHourMatrix matrix(EScheduleWindowKind::Disabled);
    const DayHourMatrix& fixed = matrix;
    for (const auto& cell : falseCells)
    {
        EXPECT_EQ(outOfRange, failureText([&] { matrix(cell.day, cell.hour) = 1; })) << cell.day << ' ' << cell.hour;
        EXPECT_EQ(outOfRange, failureText([&] { (void)fixed(cell.day, cell.hour); })) << cell.day << ' ' << cell.hour;
    }
    for (int day = 0; day < 7; ++day)
        for (int hour = 0; hour < 24; ++hour)
            EXPECT_EQ(0U, fixed(day, hour));
}

TEST(DayHourMatrixQuirks, CellsTakeAnyNumber)
{
    DayHourMatrix matrix(EScheduleWindowKind::Disabled);
    matrix(2, 5) = UINT_MAX;
    EXPECT_EQ(UINT_MAX, matrix(2, 5));
}

TEST(DayHourMatrixQuirks, AnUnknownKindIsThrownAsAPointerWithEmptyBrackets)
{
    for (const int kind : {2, -1, 3, 255, INT_MAX, INT_MIN})
        EXPECT_EQ("An unsupported schedule window kind occurred: [].",
                  pointerFailureText([&] { DayHourMatrix(static_cast<EScheduleWindowKind>(kind)); }))
            << kind;
}
