#include <string>

#include <gtest/gtest.h>

#include <support/expect_failure.h>
#include <zelmodel/structs/application_processing_type.h>
#include <zelmodel/structs/postgresql_auth_type.h>

namespace
{

using zelmodel_test::failureText;
using zelplatform::model::structs::EApplicationProcessingType;
using zelplatform::model::structs::EPostgreSqlAuthType;

TEST(ApplicationProcessingType, ComparesExactly)
{
    EXPECT_EQ(EApplicationProcessingType::Required, EApplicationProcessingType::FromStr("required"));
    for (const std::string text : {"Required", "DISABLED", "Try", "try ", "", "2", "%1"})
        EXPECT_EQ("Failed to convert string(" + text +
                      ") to EApplicationProcessingType Unknown application processing type",
                  failureText([&] { EApplicationProcessingType::FromStr(text); }));
}

TEST(ApplicationProcessingType, UnknownNumberIsToldAsADecimal)
{
    EXPECT_EQ(
        "Failed to convert EApplicationProcessingType(-7) to str Unknown application processing type",
        failureText([] { EApplicationProcessingType::ToStr(static_cast<EApplicationProcessingType::type>(-7)); }));
}

TEST(PostgreSqlAuthType, ComparesExactly)
{
    EXPECT_EQ(EPostgreSqlAuthType::Peer, EPostgreSqlAuthType::FromStr("peer"));
    for (const std::string text : {"Password", "FILE", " peer", "", "0", "%1"})
        EXPECT_EQ("Unable to convert string(" + text +
                      ") to EPostgreSqlAuthType "
                      "Unknown PostgreSql authentication type",
                  failureText([&] { EPostgreSqlAuthType::FromStr(text); }));
}

TEST(PostgreSqlAuthType, QuirkOnlyTheWriterSpellsAuthenticationWithACapital)
{
    EXPECT_EQ("Unable to convert EPostgreSqlAuthType(3) to str Unknown PostgreSql Authentication type",
              failureText([] { EPostgreSqlAuthType::ToStr(static_cast<EPostgreSqlAuthType::type>(3)); }));
    EXPECT_EQ("Unable to convert string(trust) to EPostgreSqlAuthType Unknown PostgreSql authentication type",
              failureText([] { EPostgreSqlAuthType::FromStr("trust"); }));
}

} // namespace
