#include <zelmodel/sessions/task_log_record.h>

#include <climits>

#include <gtest/gtest.h>

#include <support/expect_failure.h>
#include <support/golden.h>
#include <zelplatform/xmlpp/xmlpp.h>

namespace
{

using namespace zelplatform::model;
using zelmodel_test::failureText;
using zelmodel_test::golden;

constexpr const char* readFailed = "STaskLogRecord: Failed to unserial from xml. ";
constexpr const char* names[] = {"status",     "ordinalId", "updateUsn", "title", "description",
                                 "updateTime", "object",    "startTime", "cookie"};

STaskLogRecord read(const std::string& text)
{
    return STaskLogRecord::FromXml(xmlpp::CXmlDocument::Unserialize(text).GetRootNode());
}

std::string with(const std::string& changed, const std::string& changedText)
{
    const char* texts[] = {"ENone", "1", "2", "", "", "03/07/2024 13:05:09", "", "03/07/2024 13:05:09", ""};
    std::string text = "<Record";
    for (std::size_t index = 0; index < std::size(names); ++index)
        text += std::string(" ") + names[index] + "=\"" + (changed == names[index] ? changedText : texts[index]) + "\"";
    return text + "/>";
}

std::string without(const std::string& missing)
{
    std::string text = with("none", "");
    const auto at = text.find(" " + missing + "=");
    const auto end = text.find('"', text.find('"', at) + 1);
    return text.erase(at, end + 1 - at);
}

std::string stamp(const datetime::CDateTime& time)
{
    return time.toStdString("%Y-%m-%d %H:%M:%S");
}

TEST(TaskLogRecordXml, WholeRecord)
{
    const STaskLogRecord record = read(golden("Record/warning.xml"));
    EXPECT_EQ("warn", record.status);
    EXPECT_EQ(17U, record.ordinalId);
    EXPECT_EQ(40012U, record.updateUsn);
    EXPECT_EQ("Volume /srv was read twice", record.title);
    EXPECT_EQ("Two blocks changed & were read again", record.description);
    EXPECT_EQ("2024-03-07 13:05:09", stamp(record.updateTime));
    EXPECT_TRUE(record.updateTime.isUtcTime());
    EXPECT_EQ("/srv", record.object);
    EXPECT_EQ("2024-03-07 12:59:58", stamp(record.startTime));
    EXPECT_TRUE(record.startTime.isUtcTime());
    EXPECT_EQ("c-17", record.cookie);
}

TEST(TaskLogRecordXml, StatusesBecomeSeverityWords)
{
    EXPECT_EQ("processing", read(with("status", "ENone")).status);
    EXPECT_EQ("info", read(with("status", "ESucceeded")).status);
    EXPECT_EQ("warn", read(with("status", "EWarning")).status);
    EXPECT_EQ("error", read(with("status", "EFailed")).status);
}

TEST(TaskLogRecordXml, ArgumentsCarryTheWordAndNotTheStatus)
{
    const auto record = read(golden("Record/warning.xml"));
    EXPECT_EQ("warn", record.ToMivo()->GetString("status"));
    EXPECT_TRUE(STaskLogRecord::FromMivo(record.ToMivo()) == record);
}

TEST(TaskLogRecordXml, AnyElementWithTheAttributes)
{
    const auto document = xmlpp::CXmlDocument::Unserialize(
        "<Log><!-- one --><any cookie='c' startTime='1/2/2024 3:4:5' object='o' updateTime='01/01/1400 00:00:00'\n"
        " description='' title='&lt;t&#10;&gt;' updateUsn='18446744073709551615' ordinalId='007' status='EFailed'\n"
        " style='s' visibility='v'><x/>text</any></Log>");
    const auto record = STaskLogRecord::FromXml(document.GetRootNode().GetFirstChildNode("any"));
    EXPECT_EQ("error", record.status);
    EXPECT_EQ(7U, record.ordinalId);
    EXPECT_EQ(ULONG_MAX, record.updateUsn);
    EXPECT_EQ("<t\n>", record.title);
    EXPECT_EQ("1400-01-01 00:00:00", stamp(record.updateTime));
    EXPECT_EQ("o", record.object);
    EXPECT_EQ("2024-01-02 03:04:05", stamp(record.startTime));
    EXPECT_EQ("c", record.cookie);
}

TEST(TaskLogRecordXml, StatusThatNobodyKnows)
{
    for (const char* status : {"ENone2", "", "enone", "ENONE", " ENone", "None", "processing", "info", "warn", "error",
                               "0", "EInfo", "EError", "%1"})
        EXPECT_EQ(std::string(readFailed) + "map::at", failureText([&] { read(with("status", status)); })) << status;
}

TEST(TaskLogRecordXml, EveryAttributeIsNeeded)
{
    EXPECT_EQ("processing", read(with("none", "")).status);
    for (const std::string name : names)
        EXPECT_EQ(readFailed + ("Attribute [" + name + "] is not found in [Record]."),
                  failureText([&] { read(without(name)); }));
    EXPECT_EQ(std::string(readFailed) + "Attribute [status] is not found in [Record].",
              failureText([] { read("<Record Status=\"ENone\"><status>ENone</status></Record>"); }));
}

TEST(TaskLogRecordXml, KeysOfTheArgumentsAreNotRead)
{
    std::string text = without("updateUsn");
    text.insert(text.size() - 2, " usn=\"5\"");
    EXPECT_EQ(std::string(readFailed) + "Attribute [updateUsn] is not found in [Record].",
              failureText([&] { read(text); }));
    text = without("updateTime");
    text.insert(text.size() - 2, " updateTimeUtc=\"03/07/2024 13:05:09\"");
    EXPECT_EQ(std::string(readFailed) + "Attribute [updateTime] is not found in [Record].",
              failureText([&] { read(text); }));
}

TEST(TaskLogRecordXml, FaultsAreReportedInReadingOrder)
{
    EXPECT_EQ(std::string(readFailed) + "map::at", failureText([] { read("<Record ordinalId=\"x\" status=\"y\"/>"); }));
    EXPECT_EQ(std::string(readFailed) + "Unable to convert string [x] to [unsigned long].",
              failureText([] { read("<Record updateUsn=\"y\" ordinalId=\"x\" status=\"ENone\"/>"); }));
    EXPECT_EQ(std::string(readFailed) + "Attribute [title] is not found in [Record].",
              failureText([] { read("<Record updateTime=\"y\" updateUsn=\"2\" ordinalId=\"1\" status=\"ENone\"/>"); }));
}

TEST(TaskLogRecordXml, NumbersAreUnsigned)
{
    for (const std::string name : {"ordinalId", "updateUsn"})
    {
        for (const std::string text :
             {"", " 7", "7 ", "+7", "-1", "12abc", "0x1F", "1e3", "1.0", "18446744073709551616", "\xD9\xA3"})
            EXPECT_EQ(readFailed + ("Unable to convert string [" + text + "] to [unsigned long]."),
                      failureText([&] { read(with(name, text)); }));
    }
}

TEST(TaskLogRecordXml, DatesMustExistAndHaveTheForm)
{
    for (const std::string name : {"updateTime", "startTime"})
    {
        for (const char* text : {"",
                                 "now",
                                 "2024-03-07 13:05:09",
                                 "03/07/2024",
                                 "03/07/2024 13:05",
                                 "03/07/2024 13:05:09 ",
                                 " 03/07/2024 13:05:09",
                                 "03/07/2024  13:05:09",
                                 "03/07/24 13:05:09",
                                 "02/30/2024 00:00:00",
                                 "02/29/2023 00:00:00",
                                 "13/01/2024 00:00:00",
                                 "00/01/2024 00:00:00",
                                 "01/00/2024 00:00:00",
                                 "01/01/1399 00:00:00",
                                 "01/01/0001 00:00:00",
                                 "01/01/10000 00:00:00",
                                 "03/07/2024 24:00:00",
                                 "03/07/2024 00:60:00",
                                 "03/07/2024 00:00:60",
                                 "03/07/2024 13:05:09Z",
                                 "03/07/2024T13:05:09",
                                 "+3/07/2024 13:05:09",
                                 "03/07/2024 1e1:05:09"})
        {
            const std::string failure = failureText([&] { read(with(name, text)); });
            EXPECT_EQ(readFailed, failure.substr(0, std::string(readFailed).size())) << text;
            EXPECT_LT(std::string(readFailed).size(), failure.size()) << text;
        }
    }
}

TEST(TaskLogRecordXml, SentencesOfTheTwoFormsDifferInTheirFullStop)
{
    EXPECT_EQ("STaskLogRecord: Failed to unserial from xml. Attribute [status] is not found in [Record].",
              failureText([] { read("<Record/>"); }));
    EXPECT_EQ("STaskLogRecord: Failed to unserial from mivo Argument [status] is not found.",
              failureText([] { STaskLogRecord::FromMivo(std::make_shared<mivo::CMivoCommandArgs>()); }));
}

} // namespace
