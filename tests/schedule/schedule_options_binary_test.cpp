#include <memory>
#include <string>

#include <gtest/gtest.h>

#include <zelmodel/structs/schedule/schedule_options.h>

#include "schedule_options_device.h"
#include "support/expect_failure.h"
#include "support/expect_quick.h"
#include "support/golden.h"
#include "support/stream_failures.h"

using namespace zelplatform::model::structs;
using namespace zelmodel_test;

namespace
{

constexpr const char* readFailed = "ScheduleOptions: Failed to deserialize. ";
constexpr const char* writeFailed = "ScheduleOptions: Failed to serialize. ";

template <class TSource>
CScheduleOptions read(TSource&& source)
{
    return readFrom<CScheduleOptions>(source);
}

/// The form of a text, with the two fields before its length.
std::string form(char enabled, unsigned long type, const std::string& text)
{
    return std::string(1, enabled) + fourBytes(type) + fourBytes(text.size()) + text;
}

std::string defaultFulls()
{
    return golden("ActiveFullOptions/default.xml") + golden("SyntheticFullOptions/default.xml");
}

std::string refusedRead(unsigned long received, unsigned long expected)
{
    return readFailed + shortRead(received, expected);
}

std::string refusedWrite(long written, unsigned long expected)
{
    return writeFailed + shortWrite(written, expected);
}

} // namespace

TEST(CScheduleOptionsBinary, EveryTypeByteByByte)
{
    CScheduleOptions options;
    EXPECT_EQ(form(0, 0, golden("Schedule/default.xml") + defaultFulls()), bytesOf(options));
    options.GetJobStartOptions().SetPeriodically(4, 0);
    EXPECT_EQ(form(1, 2, golden("Schedule/periodically.xml") + defaultFulls()), bytesOf(options));
    options.GetJobStartOptions().SetContinuously();
    EXPECT_EQ(form(1, 3, golden("Schedule/continuously.xml") + defaultFulls()), bytesOf(options));
    CMonthMask months(false);
    months.SetMonth(datetime::EMonth::January, true);
    months.SetMonth(datetime::EMonth::July, true);
    options.GetJobStartOptions().SetMonthlyOnDay(1, 0, CDayOfMonth(32), months);
    EXPECT_EQ(form(1, 1, golden("Schedule/monthly_last_day.xml") + defaultFulls()), bytesOf(options));
}

TEST(CScheduleOptionsBinary, TheNumbersAreLittleEndian)
{
    CScheduleOptions options;
    options.GetJobStartOptions().SetContinuously();
    const std::string bytes = bytesOf(options);
    const std::size_t size = (golden("Schedule/continuously.xml") + defaultFulls()).size();
    ASSERT_GT(size, 256U);
    ASSERT_LT(size, 65536U);
    ASSERT_EQ(9 + size, bytes.size());
    EXPECT_EQ(std::string("\1\3\0\0\0", 5), bytes.substr(0, 5));
    EXPECT_EQ(size % 256, static_cast<unsigned char>(bytes[5]));
    EXPECT_EQ(size / 256, static_cast<unsigned char>(bytes[6]));
    EXPECT_EQ(std::string("\0\0<Schedule ", 12), bytes.substr(7, 12));
}

TEST(CScheduleOptionsBinary, RoundTrip)
{
    CScheduleOptions options;
    options.GetJobStartOptions().SetPeriodically(4, 0);
    options.GetActiveFullOptions().SetDefaultWeekly();
    options.GetSyntheticFullOptions().SetDayOfMonthLast();
    const auto again = read(bytesOf(options));
    EXPECT_TRUE(again == options);
    EXPECT_TRUE(again.GetSyntheticFullOptions() == options.GetSyntheticFullOptions());
    EXPECT_EQ(bytesOf(options), bytesOf(again));
}

TEST(CScheduleOptionsBinary, SeveralValuesStandBehindEachOther)
{
    CScheduleOptions other;
    other.SetDefault();
    io::mem_stream_tt device;
    io::binary_stream_tt stream(device);
    CScheduleOptions().Serialize(stream);
    other.Serialize(stream);
    EXPECT_TRUE(CScheduleOptions::Unserialize(stream) == CScheduleOptions());
    EXPECT_TRUE(CScheduleOptions::Unserialize(stream) == other);
}

TEST(CScheduleOptionsBinary, FromADeviceOfUnknownSize)
{
    CTextDevice device(bytesOf(CScheduleOptions()) + "rest");
    EXPECT_TRUE(read(device) == CScheduleOptions());
    EXPECT_EQ(4UL, device.left());
}

TEST(CScheduleOptionsFailures, EveryCutOfTheBytes)
{
    const std::string bytes = bytesOf(CScheduleOptions());
    for (std::size_t size = 0; size < bytes.size(); ++size)
    {
        const std::string expected = size < 1   ? refusedRead(0, 1)
                                     : size < 5 ? refusedRead(size - 1, 4)
                                     : size < 9 ? refusedRead(size - 5, 4)
                                                : refusedRead(size - 9, bytes.size() - 9);
        const std::string cut = bytes.substr(0, size);
        ASSERT_EQ(expected, failureText([&] { read(cut); })) << size;
        CTextDevice unsized(cut);
        ASSERT_EQ(expected, failureText([&] { read(unsized); })) << size;
        CSizedTextDevice sized(cut);
        ASSERT_EQ(expected, failureText([&] { read(sized); })) << size;
    }
}

TEST(CScheduleOptionsFailures, LyingLengthsAreNotBelieved)
{
    for (const unsigned long length : {11UL, 65536UL, 1073741824UL, 4294967295UL})
    {
        expectQuick([&] {
            const std::string bytes = std::string(1, '\1') + fourBytes(0) + fourBytes(length) + "<Schedule ";
            EXPECT_EQ(refusedRead(10, length), failureText([&] { read(bytes); }));
            CTextDevice unsized(bytes);
            EXPECT_EQ(refusedRead(10, length), failureText([&] { read(unsized); }));
            EXPECT_LE(unsized.largestRead(), 65536UL);
            CSizedTextDevice sized(bytes);
            EXPECT_EQ(refusedRead(10, length), failureText([&] { read(sized); }));
            EXPECT_LE(sized.largestRead(), 65536UL);
        });
    }
}

TEST(CScheduleOptionsFailures, ALengthThatCutsTheTextGivesBrokenXml)
{
    const std::string text = golden("Schedule/default.xml");
    const std::string bytes = std::string(1, '\0') + fourBytes(0) + fourBytes(text.size() - 1) + text;
    const std::string expected = std::string(readFailed) + "Unable to parse XML at line ";
    EXPECT_EQ(expected, failureText([&] { read(bytes); }).substr(0, expected.size()));
}

TEST(CScheduleOptionsFailures, TextsThatAreNoSchedule)
{
    EXPECT_EQ(std::string(readFailed) + "Unable to parse XML at line 1: [XML_ERROR_MISMATCHED_ELEMENT].",
              failureText([] { read(form(0, 0, "<Schedule></schedule>")); }));
    EXPECT_EQ(std::string(readFailed) +
                  "ScheduleOptions: Failed to deserialize from Xml. "
                  "CStartJobScheduleOptions: Failed to deserialize from Xml. Unknown version: [4].",
              failureText([] { read(form(0, 0, "<Schedule Version=\"4\"/>")); }));
    for (const auto& text : {std::string(), std::string("rubbish"), std::string("<Schedule/>\0", 12)})
    {
        const std::string expected = std::string(readFailed) + "Unable to parse XML at line ";
        EXPECT_EQ(expected, failureText([&] { read(form(0, 0, text)); }).substr(0, expected.size()));
    }
}

TEST(CScheduleOptionsFailures, DevicesThatTakeTooLittle)
{
    const std::size_t size = (golden("Schedule/default.xml") + defaultFulls()).size();
    const struct
    {
        unsigned long room;
        std::string failure;
    } rows[] = {{0, refusedWrite(0, 1)},
                {1, refusedWrite(0, 4)},
                {4, refusedWrite(3, 4)},
                {7, refusedWrite(2, 4)},
                {9, refusedWrite(0, size)},
                {109, refusedWrite(100, size)},
                {8 + size, refusedWrite(static_cast<long>(size) - 1, size)}};
    for (const auto& row : rows)
    {
        CTextDevice device("", row.room);
        io::binary_stream_tt stream(device);
        EXPECT_EQ(row.failure, failureText([&] { CScheduleOptions().Serialize(stream); })) << row.room;
    }
    CTextDevice enough("", 9 + size);
    io::binary_stream_tt enoughStream(enough);
    CScheduleOptions().Serialize(enoughStream);
    EXPECT_EQ(bytesOf(CScheduleOptions()), enough.written());
}

TEST(CScheduleOptionsFailures, BrokenDevices)
{
    CBrokenDevice broken;
    io::binary_stream_tt stream(broken);
    EXPECT_EQ(refusedWrite(-1, 1), failureText([&] { CScheduleOptions().Serialize(stream); }));
    EXPECT_EQ(std::string(readFailed) +
                  "Failed to retrieve value from the binary stream: received less bytes (-1) than expected (1).",
              failureText([&] { CScheduleOptions::Unserialize(stream); }));
}

TEST(CScheduleOptionsQuirks, TheFieldsBeforeTheTextArePassedOver)
{
    const std::string text = golden("Schedule/periodically.xml") + defaultFulls();
    for (const char enabled : {'\0', '\1', '\2', '\xFF'})
        for (const unsigned long type : {0UL, 2UL, 7UL, 2147483648UL, 4294967295UL})
        {
            const auto options = read(form(enabled, type, text));
            EXPECT_TRUE(options.GetJobStartOptions().IsEnabled());
            EXPECT_TRUE(options.GetJobStartOptions().IsSchedulePeriodically());
        }
    EXPECT_FALSE(read(form(1, 0, golden("Schedule/default.xml"))).GetJobStartOptions().IsEnabled());
}

TEST(CScheduleOptionsQuirks, TheTextHasNoRoot)
{
    // The parts below a root are not seen; an older layout at the top has no flag beside it.
    EXPECT_TRUE(read(form(1, 2, golden("ScheduleOptions/periodically.xml"))) == CScheduleOptions());
    const auto legacy = read(form(1, 2, "<Schedule Version=\"1\" Type=\"2\" Hours=\"4\" Minutes=\"0\"/>"));
    EXPECT_TRUE(legacy.GetJobStartOptions().IsSchedulePeriodically());
    EXPECT_FALSE(legacy.GetJobStartOptions().IsEnabled());
}

TEST(CScheduleOptionsQuirks, TheWindowIsNotInTheBytes)
{
    CScheduleOptions options;
    options.setBackupWindow(std::make_shared<BackupWindow>(DayHourMatrix(EScheduleWindowKind::Disabled), 60));
    EXPECT_EQ(bytesOf(CScheduleOptions()), bytesOf(options));
    EXPECT_EQ(nullptr, read(bytesOf(options)).getBackupWindow());
}
