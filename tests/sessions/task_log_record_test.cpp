#include <zelmodel/sessions/task_log_record.h>

#include <climits>
#include <functional>
#include <utility>

#include <gtest/gtest.h>

#include <support/expect_failure.h>

namespace
{

using namespace zelplatform::model;
using datetime::CDateTime;
using mivo::CMivoCommandArgs;
using zelmodel_test::failureText;

constexpr const char* readFailed = "STaskLogRecord: Failed to unserial from mivo ";

CDateTime at(const std::string& text)
{
    return CDateTime::fromString(text, "%Y-%m-%d %H:%M:%S");
}

STaskLogRecord fullRecord()
{
    STaskLogRecord record;
    record.status = "warn";
    record.ordinalId = 17;
    record.updateUsn = 40012;
    record.title = "Volume /srv was read twice";
    record.description = "Two blocks changed & were read again";
    record.updateTime = at("2024-03-07 13:05:09");
    record.object = "/srv";
    record.startTime = at("2024-03-07 12:59:58");
    record.cookie = "c-17";
    return record;
}

struct Argument
{
    std::string key;
    std::function<void(CMivoCommandArgs&)> set;
    std::function<void(CMivoCommandArgs&)> setWrongly;
};

/// The arguments of fullRecord.
std::vector<Argument> fullArguments()
{
    const auto text = [](const std::string& key, const std::string& value) {
        return Argument{key, [key, value](CMivoCommandArgs& bag) { bag.SetString(key, value); },
                        [key](CMivoCommandArgs& bag) { bag.SetUInt64(key, 1); }};
    };
    const auto number = [](const std::string& key, unsigned long value) {
        return Argument{key, [key, value](CMivoCommandArgs& bag) { bag.SetUInt64(key, value); },
                        [key](CMivoCommandArgs& bag) { bag.SetString(key, "1"); }};
    };
    const auto date = [](const std::string& key, const std::string& value) {
        return Argument{key, [key, value](CMivoCommandArgs& bag) { bag.SetDateTime(key, at(value)); },
                        [key, value](CMivoCommandArgs& bag) { bag.SetString(key, value); }};
    };
    return {text("status", "warn"),
            number("ordinalId", 17),
            number("usn", 40012),
            text("title", "Volume /srv was read twice"),
            text("description", "Two blocks changed & were read again"),
            date("updateTimeUtc", "2024-03-07 13:05:09"),
            text("object", "/srv"),
            date("startTimeUtc", "2024-03-07 12:59:58"),
            text("cookie", "c-17")};
}

std::shared_ptr<CMivoCommandArgs> bagOf(const std::vector<Argument>& arguments)
{
    auto bag = std::make_shared<CMivoCommandArgs>();
    for (const auto& each : arguments)
        each.set(*bag);
    return bag;
}

TEST(TaskLogRecordTest, Defaults)
{
    const STaskLogRecord record;
    EXPECT_EQ("", record.status + record.title + record.description + record.object + record.cookie);
    EXPECT_EQ(0U, record.ordinalId);
    EXPECT_EQ(0U, record.updateUsn);
    for (const auto& time : {record.updateTime, record.startTime})
    {
        EXPECT_EQ(0, time.toUnixTime());
        EXPECT_TRUE(time.isUtcTime());
    }
}

TEST(TaskLogRecordTest, EqualityComparesEveryField)
{
    void (*const changes[])(STaskLogRecord&) = {
        [](STaskLogRecord& record) { record.status = "info"; },
        [](STaskLogRecord& record) { record.ordinalId = 18; },
        [](STaskLogRecord& record) { record.updateUsn = 0; },
        [](STaskLogRecord& record) { record.title.clear(); },
        [](STaskLogRecord& record) { record.description.clear(); },
        [](STaskLogRecord& record) { record.updateTime = CDateTime(true); },
        [](STaskLogRecord& record) { record.object.clear(); },
        [](STaskLogRecord& record) { record.startTime = CDateTime(true); },
        [](STaskLogRecord& record) { record.cookie.clear(); },
    };
    EXPECT_TRUE(fullRecord() == fullRecord());
    for (const auto change : changes)
    {
        STaskLogRecord record = fullRecord();
        change(record);
        EXPECT_TRUE(record != fullRecord());
        EXPECT_FALSE(record == fullRecord());
    }
}

TEST(TaskLogRecordTest, ArgumentsThatAreWritten)
{
    const auto bag = fullRecord().ToMivo();
    ASSERT_TRUE(bag);
    EXPECT_EQ("warn", bag->GetString("status"));
    EXPECT_EQ(17U, bag->GetUInt64("ordinalId"));
    EXPECT_EQ(40012U, bag->GetUInt64("usn"));
    EXPECT_EQ("Volume /srv was read twice", bag->GetString("title"));
    EXPECT_EQ("Two blocks changed & were read again", bag->GetString("description"));
    EXPECT_EQ("2024-03-07 13:05:09", bag->GetDateTime("updateTimeUtc").toStdString("%Y-%m-%d %H:%M:%S"));
    EXPECT_TRUE(bag->GetDateTime("updateTimeUtc").isUtcTime());
    EXPECT_EQ("/srv", bag->GetString("object"));
    EXPECT_EQ("2024-03-07 12:59:58", bag->GetDateTime("startTimeUtc").toStdString("%Y-%m-%d %H:%M:%S"));
    EXPECT_TRUE(bag->GetDateTime("startTimeUtc").isUtcTime());
    EXPECT_EQ("c-17", bag->GetString("cookie"));
}

TEST(TaskLogRecordTest, KeysAreNotTheAttributesOfTheXmlForm)
{
    const auto bag = fullRecord().ToMivo();
    for (const char* key : {"updateUsn", "updateTime", "startTime", "style", "visibility"})
        EXPECT_FALSE(bag->Has(key)) << key;
}

TEST(TaskLogRecordTest, EachBagIsANewOne)
{
    const STaskLogRecord record = fullRecord();
    const auto first = record.ToMivo();
    first->SetString("title", "changed");
    EXPECT_EQ(record.title, record.ToMivo()->GetString("title"));
}

TEST(TaskLogRecordTest, ReadsArguments)
{
    const STaskLogRecord record = STaskLogRecord::FromMivo(bagOf(fullArguments()));
    EXPECT_TRUE(record == fullRecord());
    EXPECT_TRUE(record.updateTime.isUtcTime());
    EXPECT_TRUE(record.startTime.isUtcTime());
}

TEST(TaskLogRecordTest, ReadsBackWhatItWrites)
{
    STaskLogRecord extreme;
    extreme.status = "processing";
    extreme.ordinalId = ULONG_MAX;
    extreme.updateUsn = ULONG_MAX;
    extreme.title = std::string("a\0b\x01\r\n%1", 8);
    extreme.updateTime = at("9999-12-31 23:59:59");
    extreme.startTime = at("1400-01-01 00:00:00");
    extreme.cookie = std::string(1UL << 20, '\xFF');
    for (const auto& record : {STaskLogRecord(), fullRecord(), extreme})
    {
        const auto back = STaskLogRecord::FromMivo(record.ToMivo());
        EXPECT_TRUE(back == record);
        EXPECT_TRUE(back.updateTime.isUtcTime());
    }
}

TEST(TaskLogRecordTest, StyleAndVisibilityAreIgnored)
{
    const auto bag = bagOf(fullArguments());
    bag->SetUInt64("style", 7);
    bag->SetDateTime("visibility", CDateTime(true));
    bag->SetString("updateUsn", "x");
    const auto record = STaskLogRecord::FromMivo(bag);
    EXPECT_TRUE(record == fullRecord());
    EXPECT_FALSE(record.ToMivo()->Has("style"));
    EXPECT_FALSE(record.ToMivo()->Has("visibility"));
}

TEST(TaskLogRecordTest, StatusOfArgumentsIsCarriedAsItIs)
{
    for (const char* status : {"", "Warn", "EWarning", "nobody knows"})
    {
        const auto bag = bagOf(fullArguments());
        bag->SetString("status", status);
        EXPECT_EQ(status, STaskLogRecord::FromMivo(bag).status);
    }
}

TEST(TaskLogRecordTest, EveryArgumentIsNeededWithItsType)
{
    const auto arguments = fullArguments();
    for (std::size_t index = 0; index < arguments.size(); ++index)
    {
        auto others = arguments;
        others.erase(others.begin() + static_cast<std::ptrdiff_t>(index));
        const auto bag = bagOf(others);
        const auto& key = arguments[index].key;
        EXPECT_EQ(readFailed + ("Argument [" + key + "] is not found."),
                  failureText([&] { STaskLogRecord::FromMivo(bag); }));
        arguments[index].setWrongly(*bag);
        EXPECT_EQ(readFailed + ("Argument [" + key + "] has another type."),
                  failureText([&] { STaskLogRecord::FromMivo(bag); }));
        arguments[index].set(*bag);
        EXPECT_TRUE(STaskLogRecord::FromMivo(bag) == fullRecord());
    }
    EXPECT_EQ(std::string(readFailed) + "Argument [status] is not found.",
              failureText([] { STaskLogRecord::FromMivo(std::make_shared<CMivoCommandArgs>()); }));
}

TEST(TaskLogRecordTest, TheFirstMissingArgumentIsTold)
{
    const auto bag = std::make_shared<CMivoCommandArgs>();
    for (const auto& argument : fullArguments())
    {
        EXPECT_EQ(readFailed + ("Argument [" + argument.key + "] is not found."),
                  failureText([&] { STaskLogRecord::FromMivo(bag); }));
        argument.set(*bag);
    }
    EXPECT_TRUE(STaskLogRecord::FromMivo(bag) == fullRecord());
}

TEST(TaskLogRecordTest, NoArgumentsAtAll)
{
    const std::string failure = failureText([] { STaskLogRecord::FromMivo(nullptr); });
    EXPECT_EQ(readFailed, failure.substr(0, std::string(readFailed).size()));
    EXPECT_LT(std::string(readFailed).size(), failure.size());
}

} // namespace
