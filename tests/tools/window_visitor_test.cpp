#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "tree.h"

namespace
{

using zelmodel_test::at;
using zelmodel_test::namesOf;
using zelmodel_test::treeOf;

TEST(WindowTree, TellsTheWeekFromMonday)
{
    const auto window =
        treeOf("<ScheduleWindow Minutes=\"90\"\nKind=\"1\"><Days>\n<Monday Intervals=\"08-17, 20-24\"/>\n"
               "<Tuesday Intervals=\"00-24\"/></Days></ScheduleWindow>");
    EXPECT_EQ(namesOf(window), (std::vector<std::string>{"monday", "tuesday", "wednesday", "thursday", "friday",
                                                         "saturday", "sunday", "kind", "hourlyOffsetMinutes"}));
    EXPECT_EQ(window.words, "closed except in the hours that the document lists");
    EXPECT_EQ(at(window, "monday").words, "open 08:00-17:00, 20:00-24:00");
    EXPECT_EQ(at(window, "monday").value, "08-17, 20-24");
    EXPECT_EQ(at(window, "monday").origin.line, 3);
    EXPECT_EQ(at(window, "tuesday").words, "open all day");
    EXPECT_EQ(at(window, "tuesday").origin.line, 4);
    EXPECT_EQ(at(window, "sunday").words, "closed");
    EXPECT_EQ(at(window, "sunday").value, "");
    EXPECT_EQ(at(window, "sunday").origin.line, 0);
    EXPECT_EQ(at(window, "kind").value, "1");
    EXPECT_EQ(at(window, "kind").origin.line, 2);
    EXPECT_EQ(at(window, "hourlyOffsetMinutes").words, "90 minutes, stored only: the hours above are not shifted");
    EXPECT_EQ(at(window, "hourlyOffsetMinutes").origin.line, 1);
}

TEST(WindowTree, ListedHoursOfTheOpenKindAreClosed)
{
    const auto window = treeOf("<ScheduleWindow Minutes=\"18446744073709551316\" Kind=\"0\"><Days>"
                               "<Friday Intervals=\"08-17\"/><Saturday Intervals=\"00-24\"/></Days></ScheduleWindow>");
    EXPECT_EQ(window.words, "open except in the hours that the document lists");
    EXPECT_EQ(at(window, "friday").words, "open 00:00-08:00, 17:00-24:00");
    EXPECT_EQ(at(window, "saturday").words, "closed");
    EXPECT_EQ(at(window, "monday").words, "open all day");
    EXPECT_EQ(at(window, "hourlyOffsetMinutes").value, "-300");
}

} // namespace
