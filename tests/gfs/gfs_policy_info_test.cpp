#include <climits>

#include <gtest/gtest.h>

#include <support/expect_failure.h>
#include <support/golden.h>
#include <zelmodel/structs/gfs/gfs_policy_info.h>
#include <zelplatform/xmlpp/xmlpp.h>

namespace
{

using namespace zelplatform::model::structs::gfs;
using datetime::CDateTime;
using zelmodel_test::failureText;
using zelmodel_test::golden;

using WeeklyRule = SGfsPolicyInfoBase<SGfsWeeklyPolicyInfoTraits>;
using MonthlyRule = SGfsPolicyInfoBase<SMonthlyGfsPolicyInfoTraits>;
using YearlyRule = SGfsPolicyInfoBase<SYearlyGfsPolicyInfoTraits>;

SGfsPolicyInfo fullPolicy()
{
    SGfsPolicyInfo policy;
    policy.isEnabled = true;
    policy.weekly.emplace();
    policy.weekly->isEnabled = true;
    policy.weekly->keepCount = 4;
    policy.weekly->beginTimeUtc = CDateTime::fromString("03/01/2024 00:00:00", CDateTime::QorDateFormat);
    policy.weekly->desiredTime = 6;
    policy.monthly.emplace();
    policy.monthly->isEnabled = true;
    policy.monthly->keepCount = 12;
    policy.monthly->beginTimeUtc = CDateTime::fromString("01/15/2024 23:59:58", CDateTime::QorDateFormat);
    policy.yearly.emplace();
    policy.yearly->keepCount = 3;
    policy.yearly->desiredTime = 2;
    return policy;
}

/// Reads a text whose top is the policy.
SGfsPolicyInfo read(const std::string& text, bool isShortNames)
{
    return SGfsPolicyInfo::fromXml(xmlpp::CXmlDocument::Unserialize(text).ToNode(), isShortNames);
}

WeeklyRule readWeekly(const std::string& attributes)
{
    return read("<GfsPolicy IsEnabled=\"true\"><Weekly " + attributes + "/></GfsPolicy>", true).weekly.value();
}

TEST(GfsPolicyInfo, Defaults)
{
    const SGfsPolicyInfo policy;
    EXPECT_FALSE(policy.isEnabled);
    EXPECT_FALSE(policy.weekly);
    EXPECT_FALSE(policy.monthly);
    EXPECT_FALSE(policy.yearly);

    const YearlyRule rule;
    EXPECT_FALSE(rule.isEnabled);
    EXPECT_EQ(1, rule.keepCount);
    EXPECT_EQ(0, rule.beginTimeUtc.toUnixTime());
    EXPECT_TRUE(rule.beginTimeUtc.isUtcTime());
    EXPECT_EQ(1, rule.desiredTime);
}

TEST(GfsPolicyInfo, ElementNames)
{
    EXPECT_STREQ("Weekly", WeeklyRule::getElementName(true));
    EXPECT_STREQ("Monthly", MonthlyRule::getElementName(true));
    EXPECT_STREQ("Yearly", YearlyRule::getElementName(true));
    EXPECT_STREQ("GfsWeeklyPolicy", WeeklyRule::getElementName(false));
    EXPECT_STREQ("GfsMonthlyPolicy", MonthlyRule::getElementName(false));
    EXPECT_STREQ("GfsYearlyPolicy", YearlyRule::getElementName(false));
}

TEST(GfsPolicyInfo, TextInBothVariants)
{
    EXPECT_EQ(golden("GfsPolicy/short.xml"), fullPolicy().toXmlString(true));
    EXPECT_EQ(golden("GfsPolicy/long.xml"), fullPolicy().toXmlString(false));
    EXPECT_EQ(golden("GfsPolicy/default.xml"), SGfsPolicyInfo().toXmlString(true));
    EXPECT_EQ(golden("GfsPolicy/default.xml"), SGfsPolicyInfo().toXmlString(false));

    SGfsPolicyInfo yearlyOnly;
    yearlyOnly.yearly.emplace();
    EXPECT_EQ(golden("GfsPolicy/yearly_only.xml"), yearlyOnly.toXmlString(true));
}

TEST(GfsPolicyInfo, WrittenBelowAParent)
{
    xmlpp::CXmlDocument document;
    xmlpp::CXmlNode parent = document.AddRootNode("Parent");
    fullPolicy().toXml(parent, true);
    EXPECT_EQ("<Parent>" + golden("GfsPolicy/short.xml") + "</Parent>", document.Serialize());
    EXPECT_TRUE(SGfsPolicyInfo::isExistInXml(parent));
    EXPECT_TRUE(SGfsPolicyInfo::fromXml(parent, true) == fullPolicy());
}

TEST(GfsPolicyInfo, ReadsBackWhatItWrites)
{
    for (const bool isShortNames : {true, false})
    {
        const SGfsPolicyInfo policy =
            read(golden(isShortNames ? "GfsPolicy/short.xml" : "GfsPolicy/long.xml"), isShortNames);
        EXPECT_TRUE(policy.isEnabled);
        EXPECT_TRUE(policy == fullPolicy());
        EXPECT_TRUE(policy.weekly->beginTimeUtc.isUtcTime());
        EXPECT_EQ(fullPolicy().toXmlString(isShortNames), policy.toXmlString(isShortNames));
    }
    const SGfsPolicyInfo yearlyOnly = read(golden("GfsPolicy/yearly_only.xml"), true);
    EXPECT_FALSE(yearlyOnly.isEnabled);
    EXPECT_FALSE(yearlyOnly.weekly);
    EXPECT_FALSE(yearlyOnly.monthly);
    EXPECT_TRUE(yearlyOnly.yearly == YearlyRule());
}

TEST(GfsPolicyInfo, VariantsDoNotReadEachOther)
{
    for (const bool isShortNames : {true, false})
    {
        const SGfsPolicyInfo policy =
            read(golden(isShortNames ? "GfsPolicy/long.xml" : "GfsPolicy/short.xml"), isShortNames);
        EXPECT_TRUE(policy.isEnabled);
        EXPECT_FALSE(policy.weekly);
        EXPECT_FALSE(policy.monthly);
        EXPECT_FALSE(policy.yearly);
    }
}

TEST(GfsPolicyInfo, EnabledWithoutRules)
{
    const SGfsPolicyInfo policy = read("<GfsPolicy IsEnabled=\"True\"><!-- none --><Daily/></GfsPolicy>", true);
    EXPECT_TRUE(policy.isEnabled);
    EXPECT_FALSE(policy.weekly || policy.monthly || policy.yearly);
}

TEST(GfsPolicyInfo, ExistsAsAChildOnly)
{
    const auto exists = [](const char* text) {
        return SGfsPolicyInfo::isExistInXml(xmlpp::CXmlDocument::Unserialize(text).GetRootNode());
    };
    EXPECT_TRUE(exists("<a><GfsPolicy/></a>"));
    EXPECT_FALSE(exists("<a GfsPolicy=\"true\"/>"));
    EXPECT_FALSE(exists("<a><b><GfsPolicy/></b></a>"));
    EXPECT_FALSE(exists("<GfsPolicy/>"));
    EXPECT_FALSE(exists("<a><gfspolicy/></a>"));
}

TEST(GfsPolicyInfo, FirstOfRepeatedElementsIsRead)
{
    const SGfsPolicyInfo policy = read(
        "<GfsPolicy IsEnabled=\"true\">"
        "<Weekly IsEnabled=\"1\" KeepBackupsForNumberOfWeeks=\"2\" BeginTimeUtc=\"1/2/2024 3:4:5\" DesiredTime=\"0\"/>"
        "<Weekly/></GfsPolicy><GfsPolicy/>",
        true);
    EXPECT_EQ(2, policy.weekly->keepCount);
    EXPECT_EQ("01/02/2024 03:04:05", policy.weekly->beginTimeUtc.toStdString(CDateTime::QorDateFormat));
}

TEST(GfsPolicyInfo, EqualityNeedsAllThreeRulesOnBothSides)
{
    // A policy without a rule is unequal even to itself: on purpose.
    const SGfsPolicyInfo empty;
    EXPECT_FALSE(empty == empty);
    EXPECT_TRUE(empty != empty);
    EXPECT_FALSE(SGfsPolicyInfo() == SGfsPolicyInfo());

    for (int missing = 0; missing < 3; ++missing)
    {
        SGfsPolicyInfo policy = fullPolicy();
        if (missing == 0)
            policy.weekly.reset();
        else if (missing == 1)
            policy.monthly.reset();
        else
            policy.yearly.reset();
        const SGfsPolicyInfo copy = policy;
        EXPECT_FALSE(policy == copy);
        EXPECT_TRUE(policy != copy);
        EXPECT_FALSE(policy == fullPolicy());
        EXPECT_FALSE(fullPolicy() == policy);
    }
    EXPECT_TRUE(fullPolicy() == fullPolicy());
    EXPECT_FALSE(fullPolicy() != fullPolicy());
}

TEST(GfsPolicyInfo, EqualityLeavesOutTheFlagOfThePolicy)
{
    SGfsPolicyInfo disabled = fullPolicy();
    disabled.isEnabled = false;
    EXPECT_TRUE(disabled == fullPolicy());
    EXPECT_FALSE(disabled != fullPolicy());
}

TEST(GfsPolicyInfo, EqualityComparesEveryFieldOfARule)
{
    void (*const changes[])(SGfsPolicyInfo&) = {
        [](SGfsPolicyInfo& policy) { policy.weekly->isEnabled = false; },
        [](SGfsPolicyInfo& policy) { policy.weekly->keepCount = 5; },
        [](SGfsPolicyInfo& policy) { policy.weekly->beginTimeUtc = CDateTime(1, true); },
        [](SGfsPolicyInfo& policy) { policy.weekly->desiredTime = 7; },
        [](SGfsPolicyInfo& policy) { policy.monthly->keepCount = 13; },
        [](SGfsPolicyInfo& policy) { policy.yearly->isEnabled = true; },
        [](SGfsPolicyInfo& policy) { policy.yearly->desiredTime = -2; },
    };
    for (const auto change : changes)
    {
        SGfsPolicyInfo policy = fullPolicy();
        change(policy);
        EXPECT_FALSE(policy == fullPolicy());
    }
    // Begin times are compared as date-times are: by the clock, not by the flag.
    SGfsPolicyInfo local = fullPolicy();
    local.yearly->beginTimeUtc = CDateTime(false);
    EXPECT_TRUE(local == fullPolicy());
}

TEST(GfsPolicyInfo, KeepCountIsChecked)
{
    const auto withCount = [](const std::string& count) {
        return "IsEnabled=\"true\" KeepBackupsForNumberOfWeeks=\"" + count +
               "\" BeginTimeUtc=\"03/01/2024 00:00:00\" DesiredTime=\"1\"";
    };
    EXPECT_EQ(0, readWeekly(withCount("0")).keepCount);
    EXPECT_EQ(2147483647, readWeekly(withCount("2147483647")).keepCount);
    for (const char* count : {"2147483648", "4294967296", "4294967297", "18446744073709551615"})
        EXPECT_EQ("Unable to parse [Weekly]. Unable to cast value from [unsigned long] to [int].",
                  failureText([&] { readWeekly(withCount(count)); }));
    for (const std::string count : {"", "-1", "+1", " 1", "1 ", "12abc", "0x1F", "1e3", "18446744073709551616"})
        EXPECT_EQ("Unable to parse [Weekly]. Unable to convert string [" + count + "] to [unsigned long].",
                  failureText([&] { readWeekly(withCount(count)); }));
}

TEST(GfsPolicyInfo, NegativeKeepCountIsWrittenAndCannotBeReadBack)
{
    SGfsPolicyInfo policy = fullPolicy();
    policy.yearly->keepCount = -5;
    const std::string text = policy.toXmlString(false);
    EXPECT_NE(std::string::npos, text.find(" NumberOfYears=\"-5\" "));
    EXPECT_EQ("Unable to parse [GfsYearlyPolicy]. Unable to convert string [-5] to [unsigned long].",
              failureText([&] { read(text, false); }));
}

TEST(GfsPolicyInfo, DesiredTimeIsCut)
{
    const struct
    {
        const char* text;
        int expected;
    } cases[] = {
        {"0", 0},
        {"-1", -1},
        {"2147483647", INT_MAX},
        {"-2147483648", INT_MIN},
        {"2147483648", INT_MIN},
        {"4294967295", -1},
        {"4294967296", 0},
        {"4294967303", 7},
        {"-4294967295", 1},
        {"9223372036854775807", -1},
        {"-9223372036854775808", 0},
    };
    const std::string others =
        "IsEnabled=\"true\" KeepBackupsForNumberOfWeeks=\"1\" BeginTimeUtc=\"03/01/2024 00:00:00\" DesiredTime=\"";
    for (const auto& each : cases)
        EXPECT_EQ(each.expected, readWeekly(others + each.text + "\"").desiredTime) << each.text;
    for (const std::string text : {"", "x", " 1", "+1", "1.5", "9223372036854775808", "18446744073709551615"})
        EXPECT_EQ("Unable to parse [Weekly]. Unable to convert string [" + text + "] to [long].",
                  failureText([&] { readWeekly(others + text + "\""); }));
}

TEST(GfsPolicyInfo, ExtremeNumbersAreWritten)
{
    SGfsPolicyInfo policy = fullPolicy();
    policy.weekly->keepCount = INT_MAX;
    policy.weekly->desiredTime = INT_MIN;
    EXPECT_NE(std::string::npos,
              policy.toXmlString(true).find("KeepBackupsForNumberOfWeeks=\"2147483647\" "
                                            "BeginTimeUtc=\"03/01/2024 00:00:00\" DesiredTime=\"-2147483648\""));
    EXPECT_TRUE(read(policy.toXmlString(true), true) == policy);
}

TEST(GfsPolicyInfo, MissingElementsAndAttributes)
{
    EXPECT_EQ("Node [GfsPolicy] is not found in [].", failureText([] { read("<Other/>", true); }));
    EXPECT_EQ("Attribute [IsEnabled] is not found in [GfsPolicy].", failureText([] { read("<GfsPolicy/>", true); }));
    EXPECT_EQ("Unable to convert string [] to [bool].", failureText([] { read("<GfsPolicy IsEnabled=\"\"/>", true); }));

    const auto policy = xmlpp::CXmlDocument::Unserialize("<GfsPolicy IsEnabled=\"true\"/>").GetRootNode();
    EXPECT_EQ("Unable to parse [Weekly]. Node [Weekly] is not found in [GfsPolicy].",
              failureText([&] { WeeklyRule::fromXml(policy, true); }));
    EXPECT_EQ("Unable to parse [GfsMonthlyPolicy]. Node [GfsMonthlyPolicy] is not found in [GfsPolicy].",
              failureText([&] { MonthlyRule::fromXml(policy, false); }));

    const struct
    {
        const char* attributes;
        const char* reason;
    } cases[] = {
        {"", "Attribute [IsEnabled] is not found in [Weekly]."},
        {"IsEnabled=\"yes\"", "Unable to convert string [yes] to [bool]."},
        {"IsEnabled=\"true\"", "Attribute [KeepBackupsForNumberOfWeeks] is not found in [Weekly]."},
        {"IsEnabled=\"true\" NumberOfWeeks=\"1\"", "Attribute [KeepBackupsForNumberOfWeeks] is not found in [Weekly]."},
        {"IsEnabled=\"true\" KeepBackupsForNumberOfWeeks=\"1\"", "Attribute [BeginTimeUtc] is not found in [Weekly]."},
        {"IsEnabled=\"true\" KeepBackupsForNumberOfWeeks=\"1\" BeginTimeUtc=\"03/01/2024 00:00:00\"",
         "Attribute [DesiredTime] is not found in [Weekly]."},
        {"DesiredTime=\"x\" BeginTimeUtc=\"03/01/2024 00:00:00\" KeepBackupsForNumberOfWeeks=\"y\" IsEnabled=\"true\"",
         "Unable to convert string [y] to [unsigned long]."},
    };
    for (const auto& each : cases)
        EXPECT_EQ(std::string("Unable to parse [Weekly]. ") + each.reason,
                  failureText([&] { readWeekly(each.attributes); }));
}

TEST(GfsPolicyInfo, RulesAreReadInTheirOrder)
{
    EXPECT_EQ("Unable to parse [Weekly]. Attribute [IsEnabled] is not found in [Weekly].", failureText([] {
                  read("<GfsPolicy IsEnabled=\"true\"><Yearly/><Monthly/><Weekly/></GfsPolicy>", true);
              }));
    EXPECT_EQ("Unable to parse [Monthly]. Attribute [IsEnabled] is not found in [Monthly].",
              failureText([] { read("<GfsPolicy IsEnabled=\"true\"><Yearly/><Monthly/></GfsPolicy>", true); }));
    EXPECT_EQ("Attribute [IsEnabled] is not found in [GfsPolicy].",
              failureText([] { read("<GfsPolicy><Weekly/></GfsPolicy>", true); }));
}

} // namespace
