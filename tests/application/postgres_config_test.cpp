#include <string>

#include <gtest/gtest.h>

#include <support/expect_failure.h>
#include <support/golden.h>
#include <zelmodel/structs/application_processing_config.h>

namespace
{

using zelmodel_test::failureText;
using zelmodel_test::golden;
using zelplatform::model::structs::EPostgreSqlAuthType;
using Config = zelplatform::model::structs::SApplicationProcessingPostgresConfig;

Config config(const std::wstring& user, EPostgreSqlAuthType::type authType)
{
    Config result;
    result.osUser = CUniString(user);
    result.authType = authType;
    return result;
}

std::string refusal(const std::string& text)
{
    return failureText([&] { Config::FromXmlString(text); });
}

TEST(PostgresConfig, EqualityComparesEveryField)
{
    const Config base = config(L"postgres", EPostgreSqlAuthType::File);
    EXPECT_TRUE(base == config(L"postgres", EPostgreSqlAuthType::File));
    EXPECT_FALSE(base != config(L"postgres", EPostgreSqlAuthType::File));
    EXPECT_TRUE(base != config(L"Postgres", EPostgreSqlAuthType::File));
    EXPECT_TRUE(base != config(L"postgres", EPostgreSqlAuthType::Peer));
}

TEST(PostgresConfig, Documents)
{
    const struct
    {
        std::string name;
        Config value;
    } table[] = {
        {"default", Config()},
        {"peer", config(L"postgres", EPostgreSqlAuthType::Peer)},
        {"file_other_script", config(L"ma\xF1"
                                     L"ana & S\xF6hne",
                                     EPostgreSqlAuthType::File)},
    };
    for (const auto& row : table)
    {
        const std::string text = golden("PostgresConfig/" + row.name + ".xml");
        EXPECT_EQ(text, row.value.ToXmlString());
        EXPECT_TRUE(row.value == Config::FromXmlString(text)) << row.name;
    }
}

TEST(PostgresConfig, ReadsWhatOthersWrite)
{
    const Config expected = config(L"postgres", EPostgreSqlAuthType::Peer);
    for (const std::string text : {
             "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<PostgresConfig authType='peer' osUser='postgres'/>\n",
             "<PostgresConfig osUser=\"postgres\" authType=\"peer\" extra=\"1\"><!-- a --><Other/></PostgresConfig>",
             "<OracleConfig osUser=\"postgres\" authType=\"peer\"/>",
         })
        EXPECT_TRUE(expected == Config::FromXmlString(text)) << text;
}

TEST(PostgresConfig, MissingOrWrongPartsAreRefused)
{
    const struct
    {
        std::string text;
        std::string message;
    } table[] = {
        {"", "Unable to parse XML at line 1: [XML_ERROR_EMPTY_DOCUMENT]."},
        {"<PostgresConfig/>", "Attribute [osUser] is not found in [PostgresConfig]."},
        {"<PostgresConfig authType=\"?\"/>", "Attribute [osUser] is not found in [PostgresConfig]."},
        {"<PostgresConfig osuser=\"a\" authType=\"peer\"/>", "Attribute [osUser] is not found in [PostgresConfig]."},
        {"<PostgresConfig osUser=\"\xC3(\" authType=\"peer\"/>", "Text is not valid UTF-8."},
        {"<PostgresConfig osUser=\"postgres\"/>", "Attribute [authType] is not found in [PostgresConfig]."},
        {"<PostgresConfig osUser=\"postgres\" authType=\"\"/>",
         "Unable to convert string() to EPostgreSqlAuthType Unknown PostgreSql authentication type"},
        {"<PostgresConfig osUser=\"postgres\" authType=\"Peer\"/>",
         "Unable to convert string(Peer) to EPostgreSqlAuthType Unknown PostgreSql authentication type"},
        {"<PostgresConfig osUser=\"postgres\" authType=\"2\"/>",
         "Unable to convert string(2) to EPostgreSqlAuthType Unknown PostgreSql authentication type"},
    };
    for (const auto& row : table)
        EXPECT_EQ(row.message, refusal(row.text)) << row.text;
}

TEST(PostgresConfig, RefusesToWriteWhatNoReaderTakes)
{
    EXPECT_EQ("Unable to convert EPostgreSqlAuthType(3) to str Unknown PostgreSql Authentication type",
              failureText([] { (void)config(L"postgres", static_cast<EPostgreSqlAuthType::type>(3)).ToXmlString(); }));
    EXPECT_EQ(
        "Wide text is not valid Unicode.", failureText([] {
            (void)config(std::wstring(1, static_cast<wchar_t>(0x110000)), EPostgreSqlAuthType::Peer).ToXmlString();
        }));
}

} // namespace
