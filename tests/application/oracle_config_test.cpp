#include <limits>
#include <string>

#include <gtest/gtest.h>

#include <support/expect_failure.h>
#include <support/golden.h>
#include <zelmodel/structs/application_processing_config.h>

namespace
{

using zelmodel_test::failureText;
using zelmodel_test::golden;
using zelplatform::model::structs::EArchivedLogsTruncationMode;
using Config = zelplatform::model::structs::SApplicationProcessingOracleConfig;

Config config(const std::wstring& user, EArchivedLogsTruncationMode::type mode, unsigned long sizeGB,
              unsigned long lifetimeHours)
{
    Config result;
    result.username = CUniString(user);
    result.truncation.mode = mode;
    result.truncation.sizeGB = sizeGB;
    result.truncation.lifetimeHours = lifetimeHours;
    return result;
}

std::string refusal(const std::string& text)
{
    return failureText([&] { Config::FromXmlString(text); });
}

TEST(OracleConfig, EqualityComparesEveryField)
{
    const Config base = config(L"oracle", EArchivedLogsTruncationMode::ByAge, 1, 2);
    EXPECT_TRUE(base == config(L"oracle", EArchivedLogsTruncationMode::ByAge, 1, 2));
    EXPECT_FALSE(base != config(L"oracle", EArchivedLogsTruncationMode::ByAge, 1, 2));
    EXPECT_TRUE(base != config(L"Oracle", EArchivedLogsTruncationMode::ByAge, 1, 2));
    EXPECT_TRUE(base != config(L"oracle", EArchivedLogsTruncationMode::ByAge, 1, 3));
}

TEST(OracleConfig, Documents)
{
    const struct
    {
        std::string name;
        Config value;
    } table[] = {
        {"default", Config()},
        {"by_age", config(L"oracle", EArchivedLogsTruncationMode::ByAge, 10, 24)},
        {"by_size_other_script",
         config(L"\x432\x43B\x430\x434\x435\x43B\x435\x446 \x1F600", EArchivedLogsTruncationMode::BySize, 999, 0)},
        {"markup_and_bounds", config(L"a&b <\"c'>\td", EArchivedLogsTruncationMode::Disabled,
                                     std::numeric_limits<unsigned long>::max(), 1000)},
    };
    for (const auto& row : table)
    {
        const std::string text = golden("OracleConfig/" + row.name + ".xml");
        EXPECT_EQ(text, row.value.ToXmlString());
        EXPECT_TRUE(row.value == Config::FromXmlString(text)) << row.name;
    }
}

TEST(OracleConfig, TruncationMayBeAbsent)
{
    EXPECT_TRUE(config(L"oracle", EArchivedLogsTruncationMode::Disabled, 0, 0) ==
                Config::FromXmlString("<OracleConfig username=\"oracle\"/>"));
    EXPECT_TRUE(config(L"", EArchivedLogsTruncationMode::Disabled, 0, 0) ==
                Config::FromXmlString("<OracleConfig username=\"\"><logstruncateconfig mode=\"x\"/></OracleConfig>"));
}

TEST(OracleConfig, TruncationWithModeAloneKeepsTheDefaults)
{
    EXPECT_TRUE(config(L"oracle", EArchivedLogsTruncationMode::BySize, 0, 0) ==
                Config::FromXmlString(
                    "<OracleConfig username=\"oracle\"><LogsTruncateConfig mode=\"BySize\"/></OracleConfig>"));
}

TEST(OracleConfig, ReadsWhatOthersWrite)
{
    const Config expected = config(L"oracle", EArchivedLogsTruncationMode::ByAge, 1, 2);
    const std::string truncation = "<LogsTruncateConfig mode=\"ByAge\" sizeGB=\"1\" lifetimeHours=\"2\"/>";
    for (const std::string& text : {
             "<?xml version=\"1.0\"?>\n<OracleConfig username='oracle'>\n  " + truncation + "\n</OracleConfig>\n",
             "<OracleConfig username=\"oracle\"><!-- ages --><Other mode=\"x\"/>" + truncation + "</OracleConfig>",
             "<OracleConfig extra=\"1\" username=\"oracle\">text" + truncation + "</OracleConfig>",
             "<OracleConfig username=\"oracle\">" + truncation + "<LogsTruncateConfig mode=\"?\"/></OracleConfig>",
             "<!-- first --><OracleConfig username=\"oracle\">" + truncation + "</OracleConfig><Second/>",
             "<AnyRoot username=\"&#111;racle\">" + truncation + "</AnyRoot>",
         })
        EXPECT_TRUE(expected == Config::FromXmlString(text)) << text;
}

TEST(OracleConfig, ReadingDoesNotValidate)
{
    const Config value = Config::FromXmlString(
        "<OracleConfig username=\"oracle\"><LogsTruncateConfig mode=\"ByAge\" sizeGB=\"1000\" lifetimeHours=\"0\"/>"
        "</OracleConfig>");
    EXPECT_EQ(1000UL, value.truncation.sizeGB);
    EXPECT_EQ("Logs 'age' value must be a positive integer.", failureText([&] { value.truncation.Validate(); }));
    EXPECT_NE("", value.ToXmlString());
}

TEST(OracleConfig, MalformedTextsAreRefusedByTheParser)
{
    EXPECT_EQ("Unable to parse XML at line 1: [XML_ERROR_EMPTY_DOCUMENT].", refusal(""));
    EXPECT_EQ("Unable to parse XML at line 1: [XML_ERROR_MISMATCHED_ELEMENT].",
              refusal("<OracleConfig username=\"oracle\"></Oracle>"));
    for (const std::string text : {"oracle", "<OracleConfig username=\"a\" username=\"b\"/>", "<OracleConfig",
                                   "<OracleConfig username=\"&#0;\"/>", "<!-- nothing -->"})
        EXPECT_EQ(0U, refusal(text).find("Unable to parse XML at line 1: [")) << text;
}

TEST(OracleConfig, MissingOrWrongPartsAreRefused)
{
    const std::string truncation = "<OracleConfig username=\"oracle\"><LogsTruncateConfig ";
    const struct
    {
        std::string text;
        std::string message;
    } table[] = {
        {"<OracleConfig/>", "Attribute [username] is not found in [OracleConfig]."},
        {"<OracleConfig Username=\"oracle\"/>", "Attribute [username] is not found in [OracleConfig]."},
        {"<OracleConfig><LogsTruncateConfig mode=\"?\"/></OracleConfig>",
         "Attribute [username] is not found in [OracleConfig]."},
        {"<OracleConfig><username>oracle</username></OracleConfig>",
         "Attribute [username] is not found in [OracleConfig]."},
        {"<OracleConfig username=\"\xFFx\"/>", "Text is not valid UTF-8."},
        {"<OracleConfig username=\"\xED\xA0\x80\"/>", "Text is not valid UTF-8."},
        {truncation + "/></OracleConfig>", "Attribute [mode] is not found in [LogsTruncateConfig]."},
        {truncation + "mode=\"byAge\"/></OracleConfig>",
         "Failed to convert string to EArchivedLogsTruncationMode::type Unknown string: byAge"},
        {truncation + "mode=\"ByAge\" lifetimeHours=\"1 \"/></OracleConfig>",
         "Unable to convert string [1 ] to [unsigned long]."},
    };
    for (const auto& row : table)
        EXPECT_EQ(row.message, refusal(row.text)) << row.text;
}

TEST(OracleConfig, RefusesToWriteWhatNoReaderTakes)
{
    Config value = config(L"oracle", static_cast<EArchivedLogsTruncationMode::type>(3), 1, 1);
    EXPECT_EQ("Failed to convert EArchivedLogsTruncationMode::type to string "
              "Unknown EArchivedLogsTruncationMode::type: 3",
              failureText([&] { (void)value.ToXmlString(); }));

    value = config(std::wstring(1, static_cast<wchar_t>(0xD800)), EArchivedLogsTruncationMode::Disabled, 0, 0);
    EXPECT_EQ("Wide text is not valid Unicode.", failureText([&] { (void)value.ToXmlString(); }));

    value = config(L"quiet\x01user", EArchivedLogsTruncationMode::Disabled, 0, 0);
    EXPECT_EQ(std::string::npos, failureText([&] { (void)value.ToXmlString(); }).find("quiet"));
}

} // namespace
