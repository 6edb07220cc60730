#include <zelmodel/sessions/mount_session_details.h>

#include <gtest/gtest.h>

#include <support/expect_failure.h>
#include <support/golden.h>

namespace
{

using namespace zelplatform::model;
using guid::guid_t;
using zelmodel_test::failureText;
using zelmodel_test::golden;

constexpr const char* readFailed = "SMountSessionDetails: Failed to deserialize from XML. ";
constexpr const char* writeFailed = "SMountSessionDetails: Failed to serialize to XML. ";

SMountSessionDetails mounted()
{
    SMountSessionDetails details;
    details.mountPoint = "/mnt/restore \"Gr\xC3\xB6\xC3\x9F"
                         "e\"";
    details.restorePointId = guid_t::FromAStr("0f8fad5b-d9cb-469f-a165-70867728950e");
    return details;
}

void expectRefused(const std::string& text, const std::string& reason)
{
    EXPECT_EQ(readFailed + reason, failureText([&] { SMountSessionDetails::FromXmlStr(text); })) << text;
}

TEST(MountSessionDetailsTest, IsEmptyLooksAtTheIdOnly)
{
    SMountSessionDetails details;
    EXPECT_EQ("", details.mountPoint);
    EXPECT_TRUE(details.restorePointId.IsEmpty());
    EXPECT_TRUE(details.IsEmpty());
    details.mountPoint = "/mnt/restore";
    EXPECT_TRUE(details.IsEmpty());
    details = mounted();
    EXPECT_FALSE(details.IsEmpty());
    details.mountPoint.clear();
    EXPECT_FALSE(details.IsEmpty());
}

TEST(MountSessionDetailsTest, EqualityComparesBothFields)
{
    EXPECT_TRUE(mounted() == mounted());
    SMountSessionDetails elsewhere = mounted();
    elsewhere.mountPoint = "/mnt";
    EXPECT_TRUE(elsewhere != mounted());
    SMountSessionDetails other = mounted();
    other.restorePointId = guid_t();
    EXPECT_TRUE(other != mounted());
}

TEST(MountSessionDetailsTest, Text)
{
    EXPECT_EQ(golden("MountSessionDetails/default.xml"), SMountSessionDetails().ToXmlStr());
    EXPECT_EQ(golden("MountSessionDetails/mounted.xml"), mounted().ToXmlStr());
}

TEST(MountSessionDetailsTest, ReadsBackWhatItWrites)
{
    EXPECT_TRUE(SMountSessionDetails::FromXmlStr(golden("MountSessionDetails/default.xml")) == SMountSessionDetails());
    EXPECT_TRUE(SMountSessionDetails::FromXmlStr(golden("MountSessionDetails/mounted.xml")) == mounted());
    for (const char* path : {" ", "/a\tb", "/a\r\nb", "/<&>'\"", "/\xFF\x80", "C:\\x", "%1"})
    {
        SMountSessionDetails details = mounted();
        details.mountPoint = path;
        EXPECT_EQ(path, SMountSessionDetails::FromXmlStr(details.ToXmlStr()).mountPoint);
    }
}

TEST(MountSessionDetailsTest, RootOfAnyNameIsRead)
{
    const auto details = SMountSessionDetails::FromXmlStr(
        "<?xml version='1.0'?><!-- a mount --><Any OibId='{0F8FAD5B-D9CB-469F-A165-70867728950E}' MountPoint='/mnt' "
        "Extra='1'><MountSessionDetails/></Any><MountSessionDetails/>");
    EXPECT_EQ("/mnt", details.mountPoint);
    EXPECT_EQ("0f8fad5b-d9cb-469f-a165-70867728950e", details.restorePointId.ToAStr());
}

TEST(MountSessionDetailsTest, EmptyIdIsTheZeroOne)
{
    EXPECT_TRUE(SMountSessionDetails::FromXmlStr("<MountSessionDetails MountPoint=\"/mnt\" OibId=\"\"/>").IsEmpty());
}

TEST(MountSessionDetailsTest, MissingAttributes)
{
    expectRefused("<MountSessionDetails/>", "Attribute [MountPoint] is not found in [MountSessionDetails].");
    expectRefused("<MountSessionDetails OibId=\"x\"/>",
                  "Attribute [MountPoint] is not found in [MountSessionDetails].");
    expectRefused("<MountSessionDetails MountPoint=\"\"/>", "Attribute [OibId] is not found in [MountSessionDetails].");
    expectRefused("<Any mountpoint=\"\" oibid=\"\"/>", "Attribute [MountPoint] is not found in [Any].");
}

TEST(MountSessionDetailsTest, IdsThatAreNone)
{
    for (const std::string text :
         {"x", " ", "0f8fad5b-d9cb-469f-a165-70867728950", "{0f8fad5b-d9cb-469f-a165-70867728950e",
          "0f8fad5bd9cb469fa16570867728950e", "0f8fad5b-d9cb-469f-a165-70867728950e "})
        expectRefused("<MountSessionDetails MountPoint=\"/mnt\" OibId=\"" + text + "\"/>",
                      "Unable to convert string [" + text + "] to GUID.");
}

TEST(MountSessionDetailsTest, TextsThatAreNoXml)
{
    expectRefused("<MountSessionDetails></x>", "Unable to parse XML at line 1: [XML_ERROR_MISMATCHED_ELEMENT].");
    const std::string expected = std::string(readFailed) + "Unable to parse XML at line ";
    for (const std::string& text : {std::string(), std::string("x"), std::string("<MountSessionDetails"),
                                    std::string("<a MountPoint=\"\0\"/>", 20)})
        EXPECT_EQ(expected, failureText([&] { SMountSessionDetails::FromXmlStr(text); }).substr(0, expected.size()));
}

TEST(MountSessionDetailsTest, PathThatXmlCannotCarryIsNotWritten)
{
    for (const char bad : {'\0', '\x01', '\x1B'})
    {
        SMountSessionDetails details = mounted();
        details.mountPoint = std::string("/tell") + bad + "tale";
        const std::string failure = failureText([&] { details.ToXmlStr(); });
        EXPECT_EQ(writeFailed, failure.substr(0, std::string(writeFailed).size()));
        EXPECT_EQ(std::string::npos, failure.find("tell"));
    }
}

} // namespace
