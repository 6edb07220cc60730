#include <string>
#include <string_view>

#include <gtest/gtest.h>

#include <support/expect_failure.h>
#include <zelmodel/structs/ownership_mode.h>

namespace
{

using zelmodel_test::failureText;
using zelplatform::model::structs::EOwnershipMode;

// Clients use the texts in objects that are built when their library is loaded.
static_assert(std::string_view(EOwnershipMode::NotSet) == "NotSet");
static_assert(std::string_view(EOwnershipMode::_CategoryQOR) == "QOR");
static_assert(std::string_view(EOwnershipMode::QOR_Job) == "QOR.Job");
static_assert(std::string_view(EOwnershipMode::QOR_Policy) == "QOR.Policy");
static_assert(std::string_view(EOwnershipMode::QOR_CatchAll) == "QOR.CatchAll");
static_assert(std::string_view(EOwnershipMode::_CategoryPEL) == "PEL");
static_assert(std::string_view(EOwnershipMode::PEL_ReadOnly) == "PEL.ReadOnly");

std::string refusal(const std::string& mode)
{
    return "EOwnershipMode: Failed to convert [" + mode + "] to friendly name. Unexpected value: [" + mode + "].";
}

TEST(OwnershipMode, CategoryIsThePrefixOfTheMode)
{
    const struct
    {
        std::string category;
        std::string mode;
        bool isIncluded;
    } table[] = {
        {"QOR", "QOR.Job", true},      {"QOR", "QOR.Policy", true},
        {"QOR", "QOR", true},          {"QOR", "QOR.", true},
        {"QOR", "QOR.Anything", true}, {"PEL", "PEL.ReadOnly", true},
        {"QOR", "QO", false},          {"QOR", "", false},
        {"QOR", "qor.Job", false},     {"QOR", " QOR.Job", false},
        {"QOR", "PEL.QOR", false},     {"PEL", "QOR.Job", false},
        {"QOR", "NotSet", false},      {"PEL", "NotSet", false},
        {"", "QOR.Job", true},         {"", "", true},
        {"NotSet", "NotSet", true},
    };
    for (const auto& row : table)
        EXPECT_EQ(row.isIncluded, EOwnershipMode::IsInclude(row.category, row.mode))
            << row.category << " and " << row.mode;
}

TEST(OwnershipMode, CategoryIsTheFirstArgument)
{
    EXPECT_TRUE(EOwnershipMode::IsInclude("QOR", "QOR.Job"));
    EXPECT_FALSE(EOwnershipMode::IsInclude("QOR.Job", "QOR"));
}

TEST(OwnershipMode, FriendlyNames)
{
    EXPECT_EQ("Standalone", EOwnershipMode::ToFriendlyName("NotSet"));
    EXPECT_EQ("Job", EOwnershipMode::ToFriendlyName("QOR.Job"));
    EXPECT_EQ("Policy", EOwnershipMode::ToFriendlyName("QOR.Policy"));
    EXPECT_EQ("Pre-installed agent", EOwnershipMode::ToFriendlyName("QOR.CatchAll"));
    EXPECT_EQ("Read-only", EOwnershipMode::ToFriendlyName("PEL.ReadOnly"));
}

TEST(OwnershipMode, EveryOtherModeHasNoFriendlyName)
{
    for (const std::string mode :
         {"", "notset", "NotSet ", "Standalone", "qor.job", "QOR.job", "QOR.Job ", " QOR.Job", "QOR.", "QOR.ReadOnly",
          "PEL", "PEL.", "PEL.Job", "PEL.Policy", "PEL.readonly", "ReadOnly", "Job", "%1%2"})
        EXPECT_EQ(refusal(mode), failureText([&] { EOwnershipMode::ToFriendlyName(mode); }));
}

TEST(OwnershipMode, QuirkPrefixNeedsNoDotAndNamesNothing)
{
    for (const std::string mode : {"QOR", "QORX", "QOR.Anything"})
    {
        EXPECT_TRUE(EOwnershipMode::IsInclude(EOwnershipMode::_CategoryQOR, mode));
        EXPECT_EQ(refusal(mode), failureText([&] { EOwnershipMode::ToFriendlyName(mode); }));
    }
    EXPECT_TRUE(EOwnershipMode::IsInclude(EOwnershipMode::_CategoryPEL, "PELX"));
}

} // namespace
