#include <gtest/gtest.h>

#include <support/expect_failure.h>
#include <support/golden.h>
#include <zelmodel/structs/indexing_options.h>
#include <zelplatform/xmlpp/xmlpp.h>

namespace
{

using namespace zelplatform::model::structs;
using zelmodel_test::failureText;
using zelmodel_test::golden;

SIndexingOptions options(EIndexingType::type type, const std::string& folders)
{
    SIndexingOptions result;
    result.type = type;
    result.folders = folders;
    return result;
}

std::string written(const SIndexingOptions& value)
{
    xmlpp::CXmlDocument document;
    xmlpp::CXmlNode owner = document.AddRootNode("Owner");
    value.ToXml(owner);
    return document.Serialize();
}

SIndexingOptions read(const std::string& text)
{
    return SIndexingOptions::FromXml(xmlpp::CXmlDocument::Unserialize(text).GetRootNode());
}

TEST(IndexingOptions, Defaults)
{
    EXPECT_EQ(EIndexingType::IsOff, SIndexingOptions().type);
    EXPECT_EQ("", SIndexingOptions().folders);
    EXPECT_EQ(2UL, SIndexingOptions::s_version);
}

TEST(IndexingOptions, Equality)
{
    EXPECT_TRUE(options(EIndexingType::IndexOnly, "a") == options(EIndexingType::IndexOnly, "a"));
    EXPECT_TRUE(options(EIndexingType::IndexOnly, "a") != options(EIndexingType::IndexOnly, "b"));
    EXPECT_TRUE(options(EIndexingType::IndexOnly, "a") != options(EIndexingType::IndexExcept, "a"));
}

TEST(IndexingOptions, LogTexts)
{
    EXPECT_EQ("File system indexing is disabled", SIndexingOptions().ToLogStr());
    EXPECT_EQ("Index all files and directories selected for backup", options(EIndexingType::IndexAll, "").ToLogStr());
    EXPECT_EQ("Index all files and directories selected for backup",
              options(EIndexingType::IndexAll, "/ignored").ToLogStr());
    EXPECT_EQ("File system indexing is disabled", options(EIndexingType::IsOff, "/ignored").ToLogStr());
}

TEST(IndexingOptions, FoldersFollowTheColonWithoutABlank)
{
    EXPECT_EQ("Index only selected files and directories the following folders:/home;/srv",
              options(EIndexingType::IndexOnly, "/home;/srv").ToLogStr());
    EXPECT_EQ("Index all files and directories but selected the following folders:/tmp",
              options(EIndexingType::IndexExcept, "/tmp").ToLogStr());
    EXPECT_EQ("Index only selected files and directories the following folders:",
              options(EIndexingType::IndexOnly, "").ToLogStr());
    EXPECT_EQ("Index only selected files and directories the following folders:%1 %2",
              options(EIndexingType::IndexOnly, "%1 %2").ToLogStr());
}

TEST(IndexingOptions, UnknownTypeHasNoLogText)
{
    for (const int number : {-1, 4, 100})
        EXPECT_EQ("Unknown type of indexing [" + std::to_string(number) + "].",
                  failureText([&] { (void)options(static_cast<EIndexingType::type>(number), "a").ToLogStr(); }));
}

TEST(IndexingOptions, Documents)
{
    const struct
    {
        const char* path;
        SIndexingOptions value;
    } cases[] = {
        {"Indexing/off.xml", SIndexingOptions()},
        {"Indexing/all.xml", options(EIndexingType::IndexAll, "")},
        {"Indexing/only.xml", options(EIndexingType::IndexOnly, "/home;/srv & co")},
        {"Indexing/except.xml", options(EIndexingType::IndexExcept, "/tmp")},
    };
    for (const auto& each : cases)
    {
        EXPECT_EQ(golden(each.path), written(each.value));
        EXPECT_TRUE(read(golden(each.path)) == each.value) << each.path;
    }
}

TEST(IndexingOptions, OffWritesNothingAtAll)
{
    EXPECT_EQ("<Owner/>", written(options(EIndexingType::IsOff, "/lost")));
    EXPECT_TRUE(read(written(options(EIndexingType::IsOff, "/lost"))) == SIndexingOptions());
}

TEST(IndexingOptions, FoldersOfIndexAllAreWritten)
{
    const SIndexingOptions value = options(EIndexingType::IndexAll, "/x");
    EXPECT_EQ("<Owner IndexAll=\"true\"><Indexing Version=\"2\" Type=\"IndexAll\" Folders=\"/x\"/></Owner>",
              written(value));
    EXPECT_TRUE(read(written(value)) == value);
}

TEST(IndexingOptions, FoldersComeBackToTheLetter)
{
    for (const std::string folders : {"", " ", "a\r\nb\tc", "<&>\"'", "/\xFF\xFE", "&#10;"})
        for (const auto type : {EIndexingType::IndexOnly, EIndexingType::IndexExcept})
            EXPECT_TRUE(read(written(options(type, folders))) == options(type, folders)) << folders;
}

TEST(IndexingOptions, OlderAttributes)
{
    EXPECT_TRUE(read(golden("legacy/indexing_all.xml")) == options(EIndexingType::IndexAll, ""));
    EXPECT_TRUE(read(golden("legacy/indexing_only.xml")) == options(EIndexingType::IndexOnly, "/home;/srv"));
    EXPECT_TRUE(read(golden("legacy/indexing_except.xml")) == options(EIndexingType::IndexExcept, "/tmp"));
    EXPECT_TRUE(read("<Owner IndexAll=\"false\"/>") == SIndexingOptions());
    EXPECT_TRUE(read("<Owner IndexAll=\"TRUE\"/>") == options(EIndexingType::IndexAll, ""));
    EXPECT_TRUE(read("<Owner IndexOnly=\"\"/>") == options(EIndexingType::IndexOnly, ""));
    EXPECT_TRUE(read("<Owner IndexExcept=\"\"/>") == options(EIndexingType::IndexExcept, ""));
    EXPECT_TRUE(read("<Owner indexall=\"true\"/>") == SIndexingOptions());
}

TEST(IndexingOptions, OlderAttributesAreReadInTheirOrder)
{
    EXPECT_TRUE(read("<Owner IndexAll=\"true\" IndexOnly=\"a\" IndexExcept=\"b\"/>") ==
                options(EIndexingType::IndexExcept, "b"));
    EXPECT_TRUE(read("<Owner IndexAll=\"true\" IndexOnly=\"a\"/>") == options(EIndexingType::IndexOnly, "a"));
    EXPECT_TRUE(read("<Owner IndexAll=\"false\" IndexOnly=\"a\"/>") == options(EIndexingType::IndexOnly, "a"));
}

TEST(IndexingOptions, ElementIsAuthoritative)
{
    EXPECT_TRUE(read("<Owner IndexAll=\"true\"><Indexing Version=\"2\" Type=\"IsOff\" Folders=\"\"/></Owner>") ==
                SIndexingOptions());
    EXPECT_TRUE(read("<Owner IndexAll=\"rubbish\"><Indexing Type=\"IndexOnly\" Folders=\"f\"/></Owner>") ==
                options(EIndexingType::IndexOnly, "f"));
    EXPECT_TRUE(read("<Owner><Indexing Type=\"IsOff\" Folders=\"kept\"/></Owner>") ==
                options(EIndexingType::IsOff, "kept"));
    // An attribute of the element's name is no element.
    EXPECT_TRUE(read("<Owner Indexing=\"true\"/>") == SIndexingOptions());
    EXPECT_TRUE(read("<Owner><a/><!-- c --><Indexing Type=\"IndexAll\" Folders=\"\"><b/></Indexing>"
                     "<Indexing Type=\"rubbish\"/></Owner>") == options(EIndexingType::IndexAll, ""));
}

TEST(IndexingOptions, Versions)
{
    for (const char* version : {"", "Version=\"0\"", "Version=\"1\"", "Version=\"2\"", "Version=\"02\""})
        EXPECT_TRUE(read("<Owner><Indexing " + std::string(version) + " Type=\"IndexAll\" Folders=\"\"/></Owner>") ==
                    options(EIndexingType::IndexAll, ""))
            << version;
    for (const std::string version : {"3", "4", "18446744073709551615"})
        EXPECT_EQ("IndexingOptions: Failed to deserialize from Xml. Unknown version: [" + version + "].",
                  failureText([&] { read("<Owner><Indexing Version=\"" + version + "\" Type=\"x\"/></Owner>"); }));
}

TEST(IndexingOptions, BadDocuments)
{
    const struct
    {
        const char* text;
        const char* reason;
    } cases[] = {
        {"<Owner><Indexing/></Owner>", "Attribute [Type] is not found in [Indexing]."},
        {"<Owner><Indexing Type=\"IndexAll\"/></Owner>", "Attribute [Folders] is not found in [Indexing]."},
        {"<Owner><Indexing Folders=\"a\"/></Owner>", "Attribute [Type] is not found in [Indexing]."},
        {"<Owner><Indexing Type=\"\" Folders=\"a\"/></Owner>", "Unable to convert string [] to EIndexingType::type."},
        {"<Owner><Indexing Type=\"indexall\" Folders=\"a\"/></Owner>",
         "Unable to convert string [indexall] to EIndexingType::type."},
        {"<Owner><Indexing Type=\"1\" Folders=\"a\"/></Owner>", "Unable to convert string [1] to EIndexingType::type."},
        {"<Owner><Indexing Version=\"\" Type=\"IndexAll\" Folders=\"a\"/></Owner>",
         "Unable to convert string [] to [unsigned long]."},
        {"<Owner><Indexing Version=\"2.0\" Type=\"IndexAll\" Folders=\"a\"/></Owner>",
         "Unable to convert string [2.0] to [unsigned long]."},
        {"<Owner><Indexing Version=\"-1\" Type=\"IndexAll\" Folders=\"a\"/></Owner>",
         "Unable to convert string [-1] to [unsigned long]."},
        {"<Owner IndexAll=\"\"/>", "Unable to convert string [] to [bool]."},
        {"<Owner IndexAll=\"1abc\"/>", "Unable to convert string [1abc] to [bool]."},
    };
    for (const auto& each : cases)
        EXPECT_EQ(std::string("IndexingOptions: Failed to deserialize from Xml. ") + each.reason,
                  failureText([&] { read(each.text); }));
}

TEST(IndexingOptions, UnknownTypeIsNotWritten)
{
    for (const int number : {-1, 4})
        EXPECT_EQ("IndexingOptions: Failed to serialize to Xml. Unable to convert EIndexingType::type [" +
                      std::to_string(number) + "] to string.",
                  failureText([&] { written(options(static_cast<EIndexingType::type>(number), "a")); }));
}

TEST(IndexingOptions, FoldersThatXmlCannotCarryAreNotWrittenAndNotQuoted)
{
    const std::string context = "IndexingOptions: Failed to serialize to Xml. ";
    const std::string message =
        failureText([] { written(options(EIndexingType::IndexOnly, std::string("/secret\0/secret", 15))); });
    EXPECT_EQ(context, message.substr(0, context.size()));
    EXPECT_EQ(std::string::npos, message.find("secret"));
}

TEST(IndexingType, ConvertsEveryRow)
{
    const struct
    {
        int number;
        const char* text;
    } rows[] = {{0, "IsOff"}, {1, "IndexAll"}, {2, "IndexOnly"}, {3, "IndexExcept"}};
    for (const auto& row : rows)
    {
        EXPECT_EQ(row.text, EIndexingType::ToStr(static_cast<EIndexingType::type>(row.number)));
        EXPECT_EQ(row.number, static_cast<int>(EIndexingType::FromStr(row.text)));
    }
}

TEST(IndexingType, RefusesOtherValuesAndTexts)
{
    for (const int number : {-1, 4, 1000})
        EXPECT_EQ("Unable to convert EIndexingType::type [" + std::to_string(number) + "] to string.",
                  failureText([&] { EIndexingType::ToStr(static_cast<EIndexingType::type>(number)); }));
    for (const std::string text : {"", "isoff", "ISOFF", " IndexAll", "IndexAll ", "0", "Off"})
        EXPECT_EQ("Unable to convert string [" + text + "] to EIndexingType::type.",
                  failureText([&] { EIndexingType::FromStr(text); }));
}

} // namespace
