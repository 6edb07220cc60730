#include <string>

#include <gtest/gtest.h>

#include <support/expect_failure.h>
#include <zelmodel/sessions/application_job_filter_type.h>

namespace
{

using zelmodel_test::failureText;
using zelplatform::model::EApplicationJobFilterType;

/// Read before anything of this program runs, as clients may do.
const std::string OracleAtLoad = EApplicationJobFilterType::OracleDb.ToAStr();
const std::string PostgresNameAtLoad = EApplicationJobFilterType::ToStr(EApplicationJobFilterType::PostgresDb);

struct Engine
{
    guid::guid_t id;
    std::string idText;
    std::string name;
    std::string words;
};

const Engine engines[] = {
    {EApplicationJobFilterType::OracleDb, "7929741c-d273-43c0-848a-7e2157894e4a", "OracleDb", "Oracle database"},
    {EApplicationJobFilterType::MySqlDb, "cfe9f04a-d964-4e5e-9400-6b1deea81076", "MySqlDb", "MySQL database"},
    {EApplicationJobFilterType::PostgresDb, "4c411960-1738-11e9-ab14-d663bd873d93", "PostgreSqlDb",
     "Postgres database"},
};

TEST(ApplicationJobFilterType, EveryEngineHasItsIdentifierNameAndWords)
{
    for (const auto& engine : engines)
    {
        EXPECT_EQ(engine.idText, engine.id.ToAStr());
        const auto id = guid::guid_t::FromAStr(engine.idText);
        EXPECT_EQ(engine.name, EApplicationJobFilterType::ToStr(id));
        EXPECT_EQ(engine.words, EApplicationJobFilterType::ToUserFriendlyStr(id));
        EXPECT_EQ(engine.idText, EApplicationJobFilterType::FromStr(engine.name).ToAStr());
    }
}

TEST(ApplicationJobFilterType, CanBeUsedWhileTheProgramLoads)
{
    EXPECT_EQ("7929741c-d273-43c0-848a-7e2157894e4a", OracleAtLoad);
    EXPECT_EQ("PostgreSqlDb", PostgresNameAtLoad);
}

TEST(ApplicationJobFilterType, IdentifierMayBeSpeltInAnyLetters)
{
    EXPECT_EQ("MySqlDb",
              EApplicationJobFilterType::ToStr(guid::guid_t::FromAStr("{CFE9F04A-D964-4E5E-9400-6B1DEEA81076}")));
}

TEST(ApplicationJobFilterType, RefusesOtherIdentifiers)
{
    for (const std::string id : {"00000000-0000-0000-0000-000000000000", "ffffffff-ffff-ffff-ffff-ffffffffffff",
                                 "7929741c-d273-43c0-848a-7e2157894e4b", "4c411960-1738-11e9-ab14-d663bd873d92"})
    {
        EXPECT_EQ("Cannot convert application job filter type to string: unknown record type [" + id + "]",
                  failureText([&] { EApplicationJobFilterType::ToStr(guid::guid_t::FromAStr(id)); }));
        EXPECT_EQ("Cannot convert application job filter type to user-friendly string: unknown record type [" + id +
                      "]",
                  failureText([&] { EApplicationJobFilterType::ToUserFriendlyStr(guid::guid_t::FromAStr(id)); }));
    }
}

TEST(ApplicationJobFilterType, RefusesOtherTexts)
{
    for (const std::string text : {"", "oracledb", "MYSQLDB", "OracleDb ", "Oracle database", "Unknown",
                                   "7929741c-d273-43c0-848a-7e2157894e4a", "%1"})
        EXPECT_EQ("Failed to convert string(" + text +
                      ") to EApplicationJobFilterType::type Unknown application job filter type",
                  failureText([&] { EApplicationJobFilterType::FromStr(text); }));
}

TEST(ApplicationJobFilterType, QuirkPostgresIsStoredUnderAnotherName)
{
    EXPECT_EQ("PostgreSqlDb", EApplicationJobFilterType::ToStr(EApplicationJobFilterType::PostgresDb));
    EXPECT_EQ("Failed to convert string(PostgresDb) to EApplicationJobFilterType::type "
              "Unknown application job filter type",
              failureText([] { EApplicationJobFilterType::FromStr("PostgresDb"); }));
}

} // namespace
