#include <limits>
#include <string>

#include <gtest/gtest.h>

#include <support/expect_failure.h>
#include <zelmodel/structs/archived_logs_truncation.h>
#include <zelplatform/xmlpp/xmlpp.h>

namespace
{

using zelmodel_test::failureText;
using zelplatform::model::structs::EArchivedLogsTruncationMode;
using zelplatform::model::structs::SOracleArchivedLogsTruncationConfig;

constexpr unsigned long Greatest = std::numeric_limits<unsigned long>::max();

constexpr const char* AgeMissing = "Logs 'age' value must be a positive integer.";
constexpr const char* AgeTooGreat = "Maximum allowed 'logs age' value for truncation settings is '999H'.";
constexpr const char* SizeMissing = "'Logs maximum size' value for truncation settings must be greater than zero.";
constexpr const char* SizeTooGreat = "Maximum allowed 'logs size' value for truncation settings is 999G.";

SOracleArchivedLogsTruncationConfig config(int mode, unsigned long sizeGB, unsigned long lifetimeHours)
{
    SOracleArchivedLogsTruncationConfig result;
    result.mode = static_cast<EArchivedLogsTruncationMode::type>(mode);
    result.sizeGB = sizeGB;
    result.lifetimeHours = lifetimeHours;
    return result;
}

std::string written(const SOracleArchivedLogsTruncationConfig& value)
{
    xmlpp::CXmlDocument document;
    xmlpp::CXmlNode node = document.AddRootNode("LogsTruncateConfig");
    value.ToXml(node);
    return document.Serialize();
}

void readInto(SOracleArchivedLogsTruncationConfig& value, const std::string& text)
{
    value.FromXml(xmlpp::CXmlDocument::Unserialize(text).GetRootNode());
}

SOracleArchivedLogsTruncationConfig read(const std::string& text)
{
    SOracleArchivedLogsTruncationConfig value;
    readInto(value, text);
    return value;
}

TEST(ArchivedLogsTruncation, DefaultTruncatesNothing)
{
    EXPECT_TRUE(SOracleArchivedLogsTruncationConfig() == config(0, 0, 0));
    EXPECT_NO_THROW(SOracleArchivedLogsTruncationConfig().Validate());
}

TEST(ArchivedLogsTruncation, EqualityComparesEveryField)
{
    EXPECT_TRUE(config(1, 2, 3) == config(1, 2, 3));
    EXPECT_FALSE(config(1, 2, 3) != config(1, 2, 3));
    EXPECT_TRUE(config(1, 2, 3) != config(2, 2, 3));
    EXPECT_TRUE(config(1, 2, 3) != config(1, 3, 3));
    EXPECT_TRUE(config(1, 2, 3) != config(1, 2, 4));
}

TEST(ArchivedLogsTruncation, SettingsThatAreValid)
{
    for (const auto& value : {config(0, 999, 999), config(1, 0, 1), config(1, 0, 999), config(1, 999, 999),
                              config(2, 1, 0), config(2, 999, 999), config(7, 0, 0), config(-1, 999, 999)})
        EXPECT_NO_THROW(value.Validate()) << written(config(0, value.sizeGB, value.lifetimeHours));
}

TEST(ArchivedLogsTruncation, SettingsThatAreRefused)
{
    const struct
    {
        SOracleArchivedLogsTruncationConfig value;
        std::string message;
    } table[] = {
        {config(1, 0, 0), AgeMissing},           {config(1, 999, 0), AgeMissing},
        {config(1, 0, 1000), AgeTooGreat},       {config(1, 5, Greatest), AgeTooGreat},
        {config(2, 5, 1000), AgeTooGreat},       {config(2, 0, 0), SizeMissing},
        {config(2, 0, 999), SizeMissing},        {config(2, 1000, 0), SizeTooGreat},
        {config(2, Greatest, 24), SizeTooGreat}, {config(1, 1000, 24), SizeTooGreat},
    };
    for (const auto& row : table)
        EXPECT_EQ(row.message, failureText([&] { row.value.Validate(); }));
}

TEST(ArchivedLogsTruncation, ChecksComeInTheirOrder)
{
    EXPECT_EQ(AgeMissing, failureText([] { config(1, 1000, 0).Validate(); }));
    EXPECT_EQ(AgeTooGreat, failureText([] { config(1, 1000, 1000).Validate(); }));
    EXPECT_EQ(AgeTooGreat, failureText([] { config(2, 0, 1000).Validate(); }));
    EXPECT_EQ(AgeTooGreat, failureText([] { config(0, 1000, 1000).Validate(); }));
}

TEST(ArchivedLogsTruncation, QuirkUpperBoundsHoldInEveryMode)
{
    for (const int mode : {0, 1, 2, 3, -1})
    {
        EXPECT_EQ(AgeTooGreat, failureText([&] { config(mode, 1, 1000).Validate(); })) << mode;
        EXPECT_EQ(SizeTooGreat, failureText([&] { config(mode, 1000, 1).Validate(); })) << mode;
    }
}

TEST(ArchivedLogsTruncation, QuirkZeroIsRefusedForTheActiveModeAlone)
{
    EXPECT_NO_THROW(config(0, 0, 0).Validate());
    EXPECT_NO_THROW(config(1, 0, 999).Validate());
    EXPECT_NO_THROW(config(2, 999, 0).Validate());
}

TEST(ArchivedLogsTruncation, WritesAllAttributes)
{
    EXPECT_EQ("<LogsTruncateConfig mode=\"Disabled\" sizeGB=\"0\" lifetimeHours=\"0\"/>", written(config(0, 0, 0)));
    EXPECT_EQ("<LogsTruncateConfig mode=\"ByAge\" sizeGB=\"5\" lifetimeHours=\"72\"/>", written(config(1, 5, 72)));
    EXPECT_EQ("<LogsTruncateConfig mode=\"BySize\" sizeGB=\"18446744073709551615\" lifetimeHours=\"1000\"/>",
              written(config(2, Greatest, 1000)));
}

TEST(ArchivedLogsTruncation, WritesOnTheElementGiven)
{
    xmlpp::CXmlDocument document;
    xmlpp::CXmlNode node = document.AddRootNode("Other");
    node.SetAttribute("before", "1");
    config(1, 2, 3).ToXml(node);
    EXPECT_EQ("<Other before=\"1\" mode=\"ByAge\" sizeGB=\"2\" lifetimeHours=\"3\"/>", document.Serialize());
}

TEST(ArchivedLogsTruncation, RefusesToWriteUnknownModes)
{
    for (const int mode : {-1, 3, 100})
        EXPECT_EQ("Failed to convert EArchivedLogsTruncationMode::type to string "
                  "Unknown EArchivedLogsTruncationMode::type: " +
                      std::to_string(mode),
                  failureText([&] { written(config(mode, 1, 1)); }));
}

TEST(ArchivedLogsTruncation, Reads)
{
    const struct
    {
        std::string attributes;
        SOracleArchivedLogsTruncationConfig value;
    } table[] = {
        {"mode=\"ByAge\" sizeGB=\"5\" lifetimeHours=\"72\"", config(1, 5, 72)},
        {"lifetimeHours=\"72\" sizeGB=\"5\" mode=\"BySize\"", config(2, 5, 72)},
        {"mode=\"ByAge\"", config(1, 0, 0)},
        {"mode=\"BySize\" sizeGB=\"7\"", config(2, 7, 0)},
        {"mode=\"ByAge\" lifetimeHours=\"007\"", config(1, 0, 7)},
        {"mode=\"Disabled\" unknown=\"x\" sizeGb=\"9\"", config(0, 0, 0)},
        {"mode=\"ByAge\" sizeGB=\"18446744073709551615\" lifetimeHours=\"1000\"", config(1, Greatest, 1000)},
        {"mode=\"ByAge\" lifetimeHours=\"0\"", config(1, 0, 0)},
    };
    for (const auto& row : table)
        EXPECT_TRUE(row.value == read("<LogsTruncateConfig " + row.attributes + "/>")) << row.attributes;
}

TEST(ArchivedLogsTruncation, AbsentNumbersKeepTheirValue)
{
    auto value = config(0, 5, 72);
    readInto(value, "<LogsTruncateConfig mode=\"ByAge\"/>");
    EXPECT_TRUE(config(1, 5, 72) == value);
}

TEST(ArchivedLogsTruncation, ReadsBackWhatItWrites)
{
    for (const auto& value : {config(0, 0, 0), config(1, 1000, 0), config(2, Greatest, Greatest)})
        EXPECT_TRUE(value == read(written(value))) << written(value);
}

TEST(ArchivedLogsTruncation, FailedReadsChangeNothing)
{
    const std::string unknownMode = "Failed to convert string to EArchivedLogsTruncationMode::type Unknown string: ";
    const std::string number = "Unable to convert string [";
    const struct
    {
        std::string attributes;
        std::string message;
    } table[] = {
        {"", "Attribute [mode] is not found in [LogsTruncateConfig]."},
        {"sizeGB=\"5\" lifetimeHours=\"72\"", "Attribute [mode] is not found in [LogsTruncateConfig]."},
        {"Mode=\"ByAge\"", "Attribute [mode] is not found in [LogsTruncateConfig]."},
        {"mode=\"\"", unknownMode},
        {"mode=\"byage\"", unknownMode + "byage"},
        {"mode=\"1\"", unknownMode + "1"},
        {"mode=\"ByAge \" sizeGB=\"x\"", unknownMode + "ByAge "},
        {"mode=\"ByAge\" sizeGB=\"\"", number + "] to [unsigned long]."},
        {"mode=\"ByAge\" sizeGB=\"12abc\"", number + "12abc] to [unsigned long]."},
        {"mode=\"ByAge\" sizeGB=\" 7\"", number + " 7] to [unsigned long]."},
        {"mode=\"ByAge\" sizeGB=\"+7\"", number + "+7] to [unsigned long]."},
        {"mode=\"ByAge\" sizeGB=\"0x1F\"", number + "0x1F] to [unsigned long]."},
        {"mode=\"ByAge\" sizeGB=\"1e3\"", number + "1e3] to [unsigned long]."},
        {"mode=\"ByAge\" sizeGB=\"5\" lifetimeHours=\"-1\"", number + "-1] to [unsigned long]."},
        {"mode=\"ByAge\" sizeGB=\"5\" lifetimeHours=\"18446744073709551616\"",
         number + "18446744073709551616] to [unsigned long]."},
        {"mode=\"ByAge\" sizeGB=\"5\" lifetimeHours=\"1.5\"", number + "1.5] to [unsigned long]."},
    };
    for (const auto& row : table)
    {
        auto value = config(2, 11, 22);
        EXPECT_EQ(row.message, failureText([&] { readInto(value, "<LogsTruncateConfig " + row.attributes + "/>"); }));
        EXPECT_TRUE(config(2, 11, 22) == value) << row.attributes;
    }
}

} // namespace
