#include <algorithm>
#include <string>

#include <gtest/gtest.h>

#include "document_kinds.h"
#include "markdown.h"
#include "xml_edit.h"

using namespace zelmodel_test;

// What the lists under "Kept on purpose" say, as far as one change of an example shows it.
TEST(FormatsOddities, KeptOnPurpose)
{
    struct Case
    {
        const char* kind;
        const char* element;
        const char* document;
        const char* attribute;
        const char* expected;
    };
    constexpr Case cases[] = {
        {"xml JobOptions", "JobOptions", "<JobOptions IsSnapshotRequired='true'/>", "SnapshotMode", "NoSnapshot"},
        {"xml JobOptions", "JobOptions", "<JobOptions IsSnapshotRequired='0'/>", "SnapshotMode", "SnapshotRequired"},
        {"xml JobOptions", "JobOptions", "<JobOptions SnapshotMode='Hybrid' IsSnapshotRequired='true'/>",
         "SnapshotMode", "Hybrid"},
        {"xml JobOptions", "JobOptions", "<JobOptions MaxPoints='900'/>", "MaxPoints", "900"},
        {"xml JobOptions", "JobOptions", "<JobOptions RetentionType='Days' MaxPoints='0'/>", "MaxPoints", "0"},
        {"xml JobOptions", "JobOptions", "<JobOptions Compression='' BlockSize=''/>", "Compression", "Lz4"},
        {"xml JobOptions", "JobOptions",
         "<JobOptions Compression='Rle'/><JobOptionsRoot><CompressionLevel>9</CompressionLevel></JobOptionsRoot>",
         "Compression", "Zstd9"},
        {"xml JobOptions", "Indexing", "<JobOptions IndexOnly='/b' IndexExcept='/a'/>", "Folders", "/a"},
        {"xml JobOptionsRoot", "JobOptions",
         "<JobOptionsRoot><RetentionType>Days</RetentionType><RetainCycles>0</RetainCycles></JobOptionsRoot>",
         "MaxPoints", "7"},
        {"xml JobOptionsRoot", "JobOptions", "<JobOptionsRoot><RetainCycles>0</RetainCycles></JobOptionsRoot>",
         "MaxPoints", "0"},
        {"xml ScheduleWindow", "ScheduleWindow", "<ScheduleWindow Minutes='-300' Kind='1'/>", "Minutes",
         "18446744073709551316"},
        {"xml ScheduleWindow", "ScheduleWindow", "<ScheduleWindow Minutes='18446744073709551316' Kind='1'/>", "Minutes",
         "18446744073709551316"},
        {"xml ScheduleWindow", "ScheduleWindow", "<ScheduleWindow Minutes='4294967356' Kind='1'/>", "Minutes", "60"},
        {"xml ScheduleWindow", "Monday",
         "<ScheduleWindow Minutes='0' Kind='1'><Days><Monday Intervals='1-2, 05-05, 07-03, 24-24'/>"
         "<Monday Intervals='8-9'/></Days></ScheduleWindow>",
         "Intervals", "01-02, 08-09"},
        {"xml GfsPolicy short", "Weekly",
         "<GfsPolicy IsEnabled='1'><Weekly IsEnabled='1' KeepBackupsForNumberOfWeeks='1' BeginTimeUtc='soon' "
         "DesiredTime='4294967297'/></GfsPolicy>",
         "BeginTimeUtc", "01/01/1970 00:00:00"},
        {"xml GfsPolicy short", "Weekly",
         "<GfsPolicy IsEnabled='1'><Weekly IsEnabled='1' KeepBackupsForNumberOfWeeks='1' BeginTimeUtc='' "
         "DesiredTime='4294967297'/></GfsPolicy>",
         "DesiredTime", "1"},
    };
    for (const auto& one : cases)
        EXPECT_EQ(XmlEdit(findKind(one.kind)->rewrite(one.document)).attribute(one.element, one.attribute),
                  one.expected)
            << one.document;
}

TEST(FormatsOddities, RetainDaysInBothForms)
{
    const auto retained = [](const char* document) {
        return XmlEdit(findKind("xml JobOptions")->rewrite(document)).innerText("RetainDays");
    };
    EXPECT_EQ(retained("<JobOptions><RetainDays RetainDays='45'>30</RetainDays></JobOptions>"), "45");
    EXPECT_EQ(retained("<JobOptions><RetainDays> 30 </RetainDays></JobOptions>"), "30");
    EXPECT_EQ(retained("<JobOptionsRoot><RetainDays>soon</RetainDays></JobOptionsRoot>"), "");
    EXPECT_EQ(retained("<JobOptionsRoot><EnableDeletedVmDataRetention>TRUE</EnableDeletedVmDataRetention>"
                       "<RetainDays>30</RetainDays></JobOptionsRoot>"),
              "30");
}

TEST(FormatsOddities, Calendars)
{
    struct Case
    {
        const char* path;
        const char* attribute;
        const char* value;
        const char* readBack;
    };
    constexpr Case cases[] = {
        {"Schedule/Time", "Hours", "300", "44"},         {"Schedule/Time", "Minutes", "99", "99"},
        {"Schedule", "DayOfMonth", "40", "0"},           {"Schedule", "Type", "7", "7"},
        {"Schedule", "WeekDayNumber", "fIRST", "First"}, {"Schedule", "Version", "0", "3"},
        {"ActiveFullOptions", "Version", "0", "1"},
    };
    const auto parts = partsOf("docs/formats.md");
    const auto example =
        std::find_if(parts.begin(), parts.end(), [](const Part& part) { return part.info == "xml ScheduleOptions"; });
    ASSERT_NE(example, parts.end());
    for (const auto& one : cases)
    {
        XmlEdit edit(example->text);
        edit.setAttribute(one.path, one.attribute, one.value);
        EXPECT_EQ(XmlEdit(findKind(example->info)->rewrite(edit.text())).attribute(one.path, one.attribute),
                  one.readBack)
            << one.attribute << ' ' << one.value;
    }
}
