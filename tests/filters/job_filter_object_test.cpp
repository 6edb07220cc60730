#include <limits>
#include <string>

#include <gtest/gtest.h>

#include <support/expect_failure.h>
#include <zelmodel/sessions/job_filter_object.h>

namespace
{

using zelmodel_test::failureText;
using zelplatform::model::CJobFilterObject;
using zelplatform::model::EJobFilterObject;

EJobFilterObject::type type(int number)
{
    return static_cast<EJobFilterObject::type>(number);
}

CJobFilterObject object(int number)
{
    return CJobFilterObject(type(number));
}

/// The names of the classes that the object belongs to.
std::string classes(const CJobFilterObject& value)
{
    std::string names;
    const auto add = [&](bool isMember, const char* name) {
        if (isMember)
            names += (names.empty() ? "" : " ") + std::string(name);
    };
    add(value.IsUnknown(), "unknown");
    add(value.IsAllSystem(), "system");
    add(value.IsVolumeLevel(), "volume");
    add(value.IsDevice(), "device");
    add(value.IsMountpoint(), "mount");
    add(value.IsFileLevel(), "file");
    return names;
}

TEST(JobFilterObject, ClassOfEveryNumber)
{
    const struct
    {
        int number;
        std::string classes;
    } table[] = {
        {0, "unknown"},
        {1, "volume device"},
        {2, "system"},
        {3, "unknown"},
        {4, "file"},
        {5, "file"},
        {6, "unknown"},
        {7, "volume mount"},
        {9, "file"},
        {10, "file"},
        {8, "volume device"},
        {11, "unknown"},
        {99, "unknown"},
        {-1, "unknown"},
        {std::numeric_limits<int>::max(), "unknown"},
        {std::numeric_limits<int>::min(), "unknown"},
    };
    for (const auto& row : table)
    {
        EXPECT_EQ(row.classes, classes(object(row.number))) << row.number;
        EXPECT_EQ(type(row.number), object(row.number).GetType());
    }
}

TEST(JobFilterObject, RefusesUnknownObjects)
{
    for (const int number : {0, 3, 6, 11, 99, -1})
        EXPECT_EQ("Unknown filter object type: [" + std::to_string(number) + "].",
                  failureText([&] { object(number).CheckUnknown(); }));
    for (const int number : {1, 2, 4, 5, 7, 8, 9, 10})
        EXPECT_NO_THROW(object(number).CheckUnknown()) << number;
}

TEST(JobFilterObject, WordsForPeople)
{
    EXPECT_EQ("Unknown object", object(0).GetUserFriendlyStr());
    EXPECT_EQ("Disk", object(1).GetUserFriendlyStr());
    EXPECT_EQ("All System", object(2).GetUserFriendlyStr());
    EXPECT_EQ("File mask", object(4).GetUserFriendlyStr());
    EXPECT_EQ("Directory", object(5).GetUserFriendlyStr());
    EXPECT_EQ("Mount point", object(7).GetUserFriendlyStr());
    EXPECT_EQ("Disk", object(8).GetUserFriendlyStr());
    EXPECT_EQ("User profile", object(9).GetUserFriendlyStr());
    EXPECT_EQ("USB drive", object(10).GetUserFriendlyStr());
}

TEST(JobFilterObject, RetiredNumbersHaveNoWords)
{
    for (const int number : {3, 6, 11, -1})
    {
        const std::string inner = " Unknown filter type: [" + std::to_string(number) + "].";
        EXPECT_EQ("Unable to convert filter type to string." + inner,
                  failureText([&] { object(number).GetUserFriendlyStr(); }));
        EXPECT_EQ("Unable to convert filter to string." + inner,
                  failureText([&] { EJobFilterObject::toStr(type(number)); }));
    }
}

TEST(JobFilterObject, RefusesTextsInOtherLetters)
{
    for (const std::string text :
         {"simpledisk", "LvmObject", "lvmobject", "All System", "USBDrive", "Device", "", "%1"})
        EXPECT_EQ("Unable to convert string to filter type. Unknown filter type string: [" + text + "].",
                  failureText([&] { EJobFilterObject::fromStr(text); }));
}

TEST(JobFilterObject, QuirkSecondKindOfDeviceComesBackAsASimpleDisk)
{
    EXPECT_EQ("SimpleDisk", EJobFilterObject::toStr(EJobFilterObject::Device));
    EXPECT_EQ(EJobFilterObject::SimpleDisk,
              EJobFilterObject::fromStr(EJobFilterObject::toStr(EJobFilterObject::Device)));
    EXPECT_EQ(EJobFilterObject::SimpleDisk, EJobFilterObject::fromStr("LVMObject"));
    EXPECT_TRUE(object(8).IsDevice());
}

TEST(JobFilterObject, QuirkUnknownHasAWordButIsRefused)
{
    EXPECT_EQ(EJobFilterObject::Unknown, EJobFilterObject::fromStr("Unknown"));
    EXPECT_EQ("Unknown", EJobFilterObject::toStr(EJobFilterObject::Unknown));
    EXPECT_EQ("Unknown filter object type: [0].", failureText([] { object(0).CheckUnknown(); }));
}

} // namespace
