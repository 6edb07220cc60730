#include <string>

#include <gtest/gtest.h>

#include <support/expect_failure.h>
#include <zelmodel/structs/ownership_info.h>

namespace
{

using zelmodel_test::failureText;
using zelplatform::model::structs::COwnershipInfo;
using zelplatform::model::structs::EOwnershipMode;
using zelplatform::model::structs::EOwnershipType;

/// Built before anything of this program runs, as clients may do.
const COwnershipInfo OwnedByServer(EOwnershipType::QOR, EOwnershipMode::QOR_Job);
const COwnershipInfo OwnedByNobody;

EOwnershipType::type type(int number)
{
    return static_cast<EOwnershipType::type>(number);
}

TEST(OwnershipInfo, DefaultHasNoOwner)
{
    const COwnershipInfo info;
    EXPECT_EQ(EOwnershipType::NoOwner, info.GetType());
    EXPECT_EQ("NotSet", info.GetMode());
    EXPECT_TRUE(info.HasNoOwner());
    EXPECT_TRUE(info == COwnershipInfo(EOwnershipType::NoOwner, "NotSet"));
}

TEST(OwnershipInfo, CanBeBuiltWhileTheProgramLoads)
{
    EXPECT_TRUE(OwnedByServer.HasQOR_Job());
    EXPECT_EQ("QOR.Job", OwnedByServer.GetMode());
    EXPECT_EQ("NotSet", OwnedByNobody.GetMode());
}

TEST(OwnershipInfo, Predicates)
{
    const struct
    {
        int type;
        std::string mode;
        std::string holding;
    } table[] = {
        {0, "NotSet", "HasNoOwner"},
        {1, "NotSet", "HasQOR"},
        {1, "QOR.Job", "HasQOR HasQOR_Job"},
        {1, "QOR.Policy", "HasQOR HasQOR_Policy"},
        {1, "QOR.CatchAll", "HasQOR HasQOR_CatchAll"},
        {1, "QOR", "HasQOR"},
        {1, "QOR.Anything", "HasQOR"},
        {1, "QOR.job", "HasQOR"},
        {1, "QOR.Job ", "HasQOR"},
        {1, "QOR.JobX", "HasQOR"},
        {2, "NotSet", "HasPEL"},
        {2, "PEL.ReadOnly", "HasPEL HasPEL_ReadOnly"},
        {2, "PEL.readonly", "HasPEL"},
        {2, "PEL.Job", "HasPEL"},
    };
    for (const auto& row : table)
    {
        const COwnershipInfo info(type(row.type), row.mode);
        EXPECT_EQ(type(row.type), info.GetType());
        EXPECT_EQ(row.mode, info.GetMode());

        std::string holding;
        const auto add = [&](bool holds, const char* name) {
            if (holds)
                holding += (holding.empty() ? "" : " ") + std::string(name);
        };
        add(info.HasNoOwner(), "HasNoOwner");
        add(info.HasQOR(), "HasQOR");
        add(info.HasQOR_Job(), "HasQOR_Job");
        add(info.HasQOR_Policy(), "HasQOR_Policy");
        add(info.HasQOR_CatchAll(), "HasQOR_CatchAll");
        add(info.HasPEL(), "HasPEL");
        add(info.HasPEL_ReadOnly(), "HasPEL_ReadOnly");
        EXPECT_EQ(row.holding, holding) << row.type << " " << row.mode;
    }
}

TEST(OwnershipInfo, EqualityComparesTypeAndMode)
{
    const COwnershipInfo info(EOwnershipType::QOR, "QOR.Job");
    EXPECT_TRUE(info == COwnershipInfo(EOwnershipType::QOR, "QOR.Job"));
    EXPECT_FALSE(info != COwnershipInfo(EOwnershipType::QOR, "QOR.Job"));
    EXPECT_FALSE(info == COwnershipInfo(EOwnershipType::QOR, "QOR.job"));
    EXPECT_TRUE(info != COwnershipInfo(EOwnershipType::QOR, "QOR.Policy"));
    EXPECT_TRUE(COwnershipInfo(EOwnershipType::QOR, "NotSet") != COwnershipInfo(EOwnershipType::PEL, "NotSet"));
}

TEST(OwnershipInfo, Compatibility)
{
    const struct
    {
        std::string mode;
        bool withNone;
        bool withServer;
        bool withConsole;
    } table[] = {
        {"NotSet", true, true, true},         {"QOR", false, true, false},
        {"QOR.Job", false, true, false},      {"QOR.Policy", false, true, false},
        {"QOR.CatchAll", false, true, false}, {"QOR.Anything", false, true, false},
        {"PEL", false, false, true},          {"PEL.ReadOnly", false, false, true},
        {"PEL.Anything", false, false, true}, {"", false, false, false},
        {"notset", false, false, false},      {"NotSet ", false, false, false},
        {"NotSet.Job", false, false, false},  {"qor.Job", false, false, false},
        {" QOR.Job", false, false, false},    {"pel.ReadOnly", false, false, false},
        {"Job", false, false, false},         {"QO", false, false, false},
    };
    for (const auto& row : table)
    {
        EXPECT_EQ(row.withNone, COwnershipInfo::IsOwnershipAndModeCompatible(type(0), row.mode)) << row.mode;
        EXPECT_EQ(row.withServer, COwnershipInfo::IsOwnershipAndModeCompatible(type(1), row.mode)) << row.mode;
        EXPECT_EQ(row.withConsole, COwnershipInfo::IsOwnershipAndModeCompatible(type(2), row.mode)) << row.mode;
        EXPECT_FALSE(COwnershipInfo::IsOwnershipAndModeCompatible(type(3), row.mode)) << row.mode;
        EXPECT_FALSE(COwnershipInfo::IsOwnershipAndModeCompatible(type(-1), row.mode)) << row.mode;
    }
}

TEST(OwnershipInfo, IncompatiblePairsAreRefused)
{
    const struct
    {
        int type;
        std::string mode;
    } table[] = {
        {0, "QOR.Job"}, {0, "PEL.ReadOnly"}, {0, ""},        {2, "QOR.Policy"}, {1, "PEL.ReadOnly"}, {1, ""},
        {3, "NotSet"},  {-1, "NotSet"},      {3, "QOR.Job"}, {1, "qor.Job"},    {0, "%1 %2"},
    };
    for (const auto& row : table)
    {
        const std::string chain = "COwnershipInfo: Failed to check that type and mode is compatible. Ownership type [" +
                                  std::to_string(row.type) + "] and mode [" + row.mode + "] are not compatible.";
        EXPECT_EQ(chain, failureText([&] { COwnershipInfo(type(row.type), row.mode); }));
        EXPECT_EQ(chain,
                  failureText([&] { COwnershipInfo::CheckOwnershipAndModeCompatibility(type(row.type), row.mode); }));
    }
}

TEST(OwnershipInfo, CompatiblePairsPassTheCheck)
{
    EXPECT_NO_THROW(COwnershipInfo::CheckOwnershipAndModeCompatibility(EOwnershipType::NoOwner, "NotSet"));
    EXPECT_NO_THROW(COwnershipInfo::CheckOwnershipAndModeCompatibility(EOwnershipType::QOR, "NotSet"));
    EXPECT_NO_THROW(COwnershipInfo::CheckOwnershipAndModeCompatibility(EOwnershipType::QOR, "QOR.Policy"));
    EXPECT_NO_THROW(COwnershipInfo::CheckOwnershipAndModeCompatibility(EOwnershipType::PEL, "PEL.ReadOnly"));
}

TEST(OwnershipInfo, QuirkPlainPrefixIsCompatible)
{
    EXPECT_TRUE(COwnershipInfo(EOwnershipType::QOR, "QORX").HasQOR());
    EXPECT_FALSE(COwnershipInfo(EOwnershipType::QOR, "QORX").HasQOR_Job());
    EXPECT_TRUE(COwnershipInfo(EOwnershipType::PEL, "PELX").HasPEL());
    EXPECT_FALSE(COwnershipInfo(EOwnershipType::PEL, "PELX").HasPEL_ReadOnly());

    const COwnershipInfo categoryAlone(EOwnershipType::QOR, "QOR");
    EXPECT_EQ("EOwnershipMode: Failed to convert [QOR] to friendly name. Unexpected value: [QOR].",
              failureText([&] { EOwnershipMode::ToFriendlyName(categoryAlone.GetMode()); }));
}

} // namespace
