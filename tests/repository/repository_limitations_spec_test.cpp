#include <limits>
#include <string>

#include <gtest/gtest.h>

#include <support/expect_failure.h>
#include <support/golden.h>
#include <zelmodel/repositories.h>
#include <zelplatform/xmlpp/xmlpp.h>

namespace
{

using namespace zelplatform::model::structs;
using zelmodel_test::failureText;
using zelmodel_test::golden;

constexpr const char* RepositoryId = "6b1f2c3d-0a1b-4c2d-8e3f-0123456789ab";

CRepositoryLimitationsSpec fullSpec()
{
    return {guid::guid_t::FromAStr(RepositoryId), static_cast<EBackupMode::type>(2), true, false, true, false, 14};
}

/// A text of ToString as FromString wants it: below a root.
std::string enclosed(const std::string& text)
{
    return "<Repository>" + text + "</Repository>";
}

TEST(RepositoryLimitationsSpec, DefaultIsAllZero)
{
    const CRepositoryLimitationsSpec spec;
    EXPECT_TRUE(spec.GetRepositoryId().IsEmpty());
    EXPECT_EQ(0, static_cast<int>(spec.GetBackupMode()));
    EXPECT_FALSE(spec.IsFullBackupEnabled());
    EXPECT_FALSE(spec.GetIsCompactFullEnabled());
    EXPECT_FALSE(spec.ShouldTransformIncrementsToSynthetic());
    EXPECT_FALSE(spec.ShouldTransformFullToSynthetic());
    EXPECT_EQ(0, spec.GetChainLength());
}

TEST(RepositoryLimitationsSpec, ConstructorTakesTheFieldsInTheirOrder)
{
    const auto id = guid::guid_t::FromAStr(RepositoryId);
    for (int chosen = 0; chosen < 4; ++chosen)
    {
        const CRepositoryLimitationsSpec spec(id, static_cast<EBackupMode::type>(3), chosen == 0, chosen == 1,
                                              chosen == 2, chosen == 3, -8);
        EXPECT_EQ(id, spec.GetRepositoryId());
        EXPECT_EQ(3, static_cast<int>(spec.GetBackupMode()));
        EXPECT_EQ(chosen == 0, spec.IsFullBackupEnabled());
        EXPECT_EQ(chosen == 1, spec.GetIsCompactFullEnabled());
        EXPECT_EQ(chosen == 2, spec.ShouldTransformIncrementsToSynthetic());
        EXPECT_EQ(chosen == 3, spec.ShouldTransformFullToSynthetic());
        EXPECT_EQ(-8, spec.GetChainLength());
    }
}

TEST(RepositoryLimitationsSpec, EachSetterChangesItsOwnFieldAlone)
{
    const auto id = guid::guid_t::FromAStr(RepositoryId);
    const CRepositoryLimitationsSpec empty;
    const struct
    {
        void (*set)(CRepositoryLimitationsSpec&);
        CRepositoryLimitationsSpec expected;
    } cases[] = {
        {[](auto& spec) { spec.SetRepositoryId(guid::guid_t::FromAStr(RepositoryId)); },
         {id, {}, false, false, false, false, 0}},
        {[](auto& spec) { spec.SetBackupMode(static_cast<EBackupMode::type>(99)); },
         {{}, static_cast<EBackupMode::type>(99), false, false, false, false, 0}},
        {[](auto& spec) { spec.SetFullBackupEnabled(true); }, {{}, {}, true, false, false, false, 0}},
        {[](auto& spec) { spec.SetCompactFullEnabled(true); }, {{}, {}, false, true, false, false, 0}},
        {[](auto& spec) { spec.SetTransformIncrementsToSynthetic(true); }, {{}, {}, false, false, true, false, 0}},
        {[](auto& spec) { spec.SetTransformFullToSynthetic(true); }, {{}, {}, false, false, false, true, 0}},
        {[](auto& spec) { spec.SetChainLength(std::numeric_limits<int>::min()); },
         {{}, {}, false, false, false, false, std::numeric_limits<int>::min()}},
    };
    for (const auto& each : cases)
    {
        CRepositoryLimitationsSpec spec;
        each.set(spec);
        EXPECT_TRUE(spec == each.expected);
        EXPECT_TRUE(spec != empty);
    }
}

TEST(RepositoryLimitationsSpec, WritesJobSettingsAsTheRoot)
{
    EXPECT_EQ(golden("JobSettings/full.xml"), fullSpec().ToString());
    EXPECT_EQ(golden("JobSettings/default.xml"), CRepositoryLimitationsSpec().ToString());
    const CRepositoryLimitationsSpec unchecked(guid::guid_t::FromAStr("FFFFFFFF-FFFF-FFFF-FFFF-FFFFFFFFFFFF"),
                                               static_cast<EBackupMode::type>(std::numeric_limits<int>::min()), false,
                                               true, false, true, -1);
    EXPECT_EQ(golden("JobSettings/unchecked.xml"), unchecked.ToString());
}

TEST(RepositoryLimitationsSpec, ReadsBackWhatItWritesOnceItIsEnclosed)
{
    EXPECT_TRUE(CRepositoryLimitationsSpec::FromString(enclosed(golden("JobSettings/full.xml"))) == fullSpec());
    EXPECT_TRUE(CRepositoryLimitationsSpec::FromString(enclosed(golden("JobSettings/default.xml"))) ==
                CRepositoryLimitationsSpec());
    const std::string unchecked = golden("JobSettings/unchecked.xml");
    EXPECT_EQ(unchecked, CRepositoryLimitationsSpec::FromString(enclosed(unchecked)).ToString());
}

TEST(RepositoryLimitationsSpec, ReadsOtherWritersForms)
{
    const auto spec = CRepositoryLimitationsSpec::FromString(golden("JobSettings/enclosed.xml"));
    const CRepositoryLimitationsSpec expected(guid::guid_t::FromAStr(RepositoryId), static_cast<EBackupMode::type>(3),
                                              false, true, false, true, 7);
    EXPECT_TRUE(spec == expected);
}

TEST(RepositoryLimitationsSpec, FromXmlNodeTakesTheParent)
{
    const auto document = xmlpp::CXmlDocument::Unserialize(golden("JobSettings/full.xml"));
    EXPECT_TRUE(CRepositoryLimitationsSpec::FromXmlNode(document.ToNode()) == fullSpec());
    EXPECT_EQ("Unable to parse xml repository limitations specification. "
              "Node [JobSettings] is not found in [JobSettings].",
              failureText([&] { CRepositoryLimitationsSpec::FromXmlNode(document.GetRootNode()); }));
}

TEST(RepositoryLimitationsSpec, FirstOfTwoJobSettingsIsRead)
{
    const std::string text = enclosed(golden("JobSettings/full.xml") + golden("JobSettings/default.xml"));
    EXPECT_TRUE(CRepositoryLimitationsSpec::FromString(text) == fullSpec());
}

// On purpose: what is written has the element as its root, what is read has it below the root.
TEST(RepositoryLimitationsSpec, ItsOwnTextIsRefusedAsItStands)
{
    EXPECT_EQ("Unable to parse string repository limitations specification. "
              "Unable to parse xml repository limitations specification. "
              "Node [JobSettings] is not found in [JobSettings].",
              failureText([] { CRepositoryLimitationsSpec::FromString(fullSpec().ToString()); }));
}

TEST(RepositoryLimitationsSpec, RootOfTheSameNameIsAnEnclosingElementLikeAnyOther)
{
    const auto spec = CRepositoryLimitationsSpec::FromString("<JobSettings ChainLength=\"1\">" +
                                                             golden("JobSettings/full.xml") + "</JobSettings>");
    EXPECT_TRUE(spec == fullSpec());
}

// On purpose: the number belongs to the wider job model and is carried whatever it is; more than 32 bits are cut.
TEST(RepositoryLimitationsSpec, AnyBackupModeIsCarried)
{
    const struct
    {
        const char* text;
        int mode;
    } cases[] = {
        {"0", 0},
        {"77", 77},
        {"-3", -3},
        {"007", 7},
        {"2147483647", 2147483647},
        {"2147483648", std::numeric_limits<int>::min()},
        {"4294967298", 2},
        {"9223372036854775807", -1},
        {"-9223372036854775808", 0},
    };
    for (const auto& each : cases)
    {
        std::string text = golden("JobSettings/full.xml");
        text.replace(text.find("BackupMode=\"2\""), 14, std::string("BackupMode=\"") + each.text + "\"");
        const auto spec = CRepositoryLimitationsSpec::FromString(enclosed(text));
        EXPECT_EQ(each.mode, static_cast<int>(spec.GetBackupMode())) << each.text;
    }
}

TEST(RepositoryLimitationsSpec, AnyChainLengthIsCarried)
{
    for (const int length : {0, -1, 1, 100000, std::numeric_limits<int>::max(), std::numeric_limits<int>::min()})
    {
        auto spec = fullSpec();
        spec.SetChainLength(length);
        EXPECT_EQ(length, CRepositoryLimitationsSpec::FromString(enclosed(spec.ToString())).GetChainLength());
    }
}

} // namespace
