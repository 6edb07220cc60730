#include <limits>
#include <string>

#include <gtest/gtest.h>

#include <support/golden.h>
#include <zelmodel/repositories.h>
#include <zelplatform/xmlpp/xmlpp.h>

namespace
{

using namespace zelplatform::model;
using namespace zelplatform::model::structs;
using zelmodel_test::golden;

SObjectStorageImmutabilitySettings readObjectStorage(const std::string& text)
{
    return SObjectStorageImmutabilitySettings::FromXml(xmlpp::CXmlDocument::Unserialize(text).GetRootNode());
}

SDirectBackupImmutabilitySettings readDirect(const std::string& text)
{
    return SDirectBackupImmutabilitySettings::FromXml(xmlpp::CXmlDocument::Unserialize(text).GetRootNode());
}

std::string written(const SObjectStorageImmutabilitySettings& settings)
{
    xmlpp::CXmlDocument document;
    xmlpp::CXmlNode parent = document.AddRootNode("Repository");
    settings.ToXml(parent);
    return document.Serialize();
}

std::string withMode(const std::string& mode)
{
    return R"(<a><ImmutabilitySettings IsEnabled="true" IntervalDays="5" ImmutabilityMode=")" + mode + R"("/></a>)";
}

std::string withInterval(const std::string& days)
{
    return R"(<a><ImmutabilitySettings IsEnabled="true" IntervalDays=")" + days + R"("/></a>)";
}

// On purpose: off, and still with ten days.
TEST(ImmutabilitySettings, DisabledCarriesTenDays)
{
    const auto settings = SObjectStorageImmutabilitySettings::CreateDisabled();
    EXPECT_FALSE(settings.isEnabled);
    EXPECT_EQ(10, settings.intervalDays);
    EXPECT_EQ(ERepositoryImmutabilityMode::ByRepositorySettings, settings.mode);

    const auto direct = SDirectBackupImmutabilitySettings::CreateDisabled();
    EXPECT_TRUE(direct.immutabilitySettings == settings);
    EXPECT_EQ(0, direct.numberDaysForCapacityTierMoveOrArchiveTier);
    EXPECT_FALSE(direct.hasImmutableCapacityOrArchiveTierExtent);
}

TEST(ImmutabilitySettings, ModeByDefaultFollowsTheRepository)
{
    EXPECT_EQ(0, static_cast<int>(ERepositoryImmutabilityMode::Default()));
    EXPECT_EQ(1, static_cast<int>(ERepositoryImmutabilityMode::ByRetentionSettings));
}

TEST(ImmutabilitySettings, EqualityComparesEveryField)
{
    const SObjectStorageImmutabilitySettings settings = {true, 30, ERepositoryImmutabilityMode::ByRetentionSettings};
    for (const auto& other : {SObjectStorageImmutabilitySettings{false, 30, settings.mode},
                              SObjectStorageImmutabilitySettings{true, 31, settings.mode},
                              SObjectStorageImmutabilitySettings{true, 30, ERepositoryImmutabilityMode::Default()}})
    {
        EXPECT_FALSE(settings == other);
        EXPECT_TRUE(settings != other);
    }
    const SDirectBackupImmutabilitySettings direct = {settings, 7, true};
    const SObjectStorageImmutabilitySettings disabled = SObjectStorageImmutabilitySettings::CreateDisabled();
    for (const auto& other :
         {SDirectBackupImmutabilitySettings{disabled, 7, true}, SDirectBackupImmutabilitySettings{settings, 8, true},
          SDirectBackupImmutabilitySettings{settings, 7, false}})
    {
        EXPECT_FALSE(direct == other);
        EXPECT_TRUE(direct != other);
    }
    EXPECT_TRUE(direct == direct);
}

TEST(ImmutabilitySettings, PresenceIsOfADirectChild)
{
    const auto root = [](const char* text) { return xmlpp::CXmlDocument::Unserialize(text).GetRootNode(); };
    EXPECT_TRUE(SObjectStorageImmutabilitySettings::HasXmlNode(root("<a><b/><ImmutabilitySettings/></a>")));
    EXPECT_TRUE(SDirectBackupImmutabilitySettings::HasXmlNode(root("<a><DirectBackupImmutabilitySettings/></a>")));
    for (const char* text :
         {"<a/>", "<ImmutabilitySettings/>", "<DirectBackupImmutabilitySettings/>",
          "<a ImmutabilitySettings=\"1\" DirectBackupImmutabilitySettings=\"1\"/>",
          "<a><b><ImmutabilitySettings/><DirectBackupImmutabilitySettings/></b></a>",
          "<a><immutabilitySettings/><directBackupImmutabilitySettings/><!-- <ImmutabilitySettings/> --></a>"})
    {
        EXPECT_FALSE(SObjectStorageImmutabilitySettings::HasXmlNode(root(text))) << text;
        EXPECT_FALSE(SDirectBackupImmutabilitySettings::HasXmlNode(root(text))) << text;
    }
    EXPECT_FALSE(SObjectStorageImmutabilitySettings::HasXmlNode(root("<a><DirectBackupImmutabilitySettings/></a>")));
    EXPECT_FALSE(SDirectBackupImmutabilitySettings::HasXmlNode(root("<a><ImmutabilitySettings/></a>")));
}

TEST(ImmutabilitySettings, DirectNodeIsTheFirstOfItsName)
{
    const auto document = xmlpp::CXmlDocument::Unserialize(
        "<a><b/><DirectBackupImmutabilitySettings n=\"1\"/><DirectBackupImmutabilitySettings n=\"2\"/></a>");
    const auto node = SDirectBackupImmutabilitySettings::GetXmlNode(document.GetRootNode());
    EXPECT_EQ("DirectBackupImmutabilitySettings", node.GetName());
    EXPECT_EQ("1", node.GetAttribute("n"));
}

TEST(ImmutabilitySettings, WritesAChild)
{
    EXPECT_EQ(golden("ImmutabilitySettings/enabled.xml"),
              written({true, 30, ERepositoryImmutabilityMode::ByRepositorySettings}));
    EXPECT_EQ(golden("ImmutabilitySettings/disabled.xml"),
              written(SObjectStorageImmutabilitySettings::CreateDisabled()));
}

// On purpose: the managing side supplies the mode, so that it is lost on a round trip.
TEST(ImmutabilitySettings, ModeIsNeverWritten)
{
    const SObjectStorageImmutabilitySettings settings = {true, 30, ERepositoryImmutabilityMode::ByRetentionSettings};
    EXPECT_EQ(golden("ImmutabilitySettings/enabled.xml"), written(settings));
    const auto read = readObjectStorage(written(settings));
    EXPECT_TRUE(read.isEnabled);
    EXPECT_EQ(30, read.intervalDays);
    EXPECT_EQ(ERepositoryImmutabilityMode::ByRepositorySettings, read.mode);
}

TEST(ImmutabilitySettings, ReadsTheMode)
{
    const auto settings = readObjectStorage(golden("ImmutabilitySettings/with_mode.xml"));
    EXPECT_TRUE(settings.isEnabled);
    EXPECT_EQ(14, settings.intervalDays);
    EXPECT_EQ(ERepositoryImmutabilityMode::ByRetentionSettings, settings.mode);
    EXPECT_EQ(ERepositoryImmutabilityMode::ByRepositorySettings,
              readObjectStorage(golden("ImmutabilitySettings/enabled.xml")).mode);
}

// On purpose: any number is carried, and more than 32 bits are cut.
TEST(ImmutabilitySettings, ModeIsANumberThatNobodyLooksAt)
{
    const struct
    {
        const char* text;
        int mode;
    } cases[] = {
        {"0", 0},          {"1", 1},          {"2", 2},
        {"-1", -1},        {"0001", 1},       {"2147483648", std::numeric_limits<int>::min()},
        {"4294967297", 1}, {"4294967296", 0}, {"9223372036854775807", -1},
    };
    for (const auto& each : cases)
        EXPECT_EQ(each.mode, static_cast<int>(readObjectStorage(withMode(each.text)).mode)) << each.text;
}

TEST(ImmutabilitySettings, IntervalHasThirtyTwoBits)
{
    for (const int days : {0, -1, 2147483647, std::numeric_limits<int>::min()})
    {
        EXPECT_EQ(days, readObjectStorage(withInterval(std::to_string(days))).intervalDays);
        EXPECT_EQ(days, readObjectStorage(written({true, days, ERepositoryImmutabilityMode::Default()})).intervalDays);
    }
}

TEST(ImmutabilitySettings, FirstOfTwoIsRead)
{
    const auto settings = readObjectStorage("<a><ImmutabilitySettings IsEnabled=\"0\" IntervalDays=\"3\"/>"
                                            "<ImmutabilitySettings/></a>");
    EXPECT_FALSE(settings.isEnabled);
    EXPECT_EQ(3, settings.intervalDays);
}

TEST(ImmutabilitySettings, ReadsTheDirectForm)
{
    const auto full = readDirect(golden("DirectBackupImmutabilitySettings/full.xml"));
    EXPECT_EQ(21, full.numberDaysForCapacityTierMoveOrArchiveTier);
    EXPECT_TRUE(full.hasImmutableCapacityOrArchiveTierExtent);
    EXPECT_TRUE(full.immutabilitySettings.isEnabled);
    EXPECT_EQ(30, full.immutabilitySettings.intervalDays);
    EXPECT_EQ(ERepositoryImmutabilityMode::ByRetentionSettings, full.immutabilitySettings.mode);

    const auto bare = readDirect(golden("DirectBackupImmutabilitySettings/bare.xml"));
    EXPECT_TRUE(bare == SDirectBackupImmutabilitySettings::CreateDisabled());
}

TEST(ImmutabilitySettings, DaysOfTheTierHaveThirtyTwoBits)
{
    for (const int days : {0, -1, 2147483647, std::numeric_limits<int>::min()})
    {
        const auto settings =
            readDirect("<a><DirectBackupImmutabilitySettings NumberDaysForCapacityTierMoveOrArchiveTier=\"" +
                       std::to_string(days) +
                       "\" HasImmutableCapacityOrArchiveTierExtent=\"1\">"
                       "<ImmutabilitySettings IsEnabled=\"0\" IntervalDays=\"1\"/>"
                       "</DirectBackupImmutabilitySettings></a>");
        EXPECT_EQ(days, settings.numberDaysForCapacityTierMoveOrArchiveTier);
    }
}

} // namespace
