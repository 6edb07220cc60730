#include <string>

#include <gtest/gtest.h>

#include <zelmodel/structs/schedule/start_job_schedule_options.h>

#include "schedule_options_device.h"
#include "support/expect_failure.h"
#include "support/expect_quick.h"
#include "support/golden.h"
#include "support/stream_failures.h"

using namespace zelplatform::model::structs;
using namespace zelmodel_test;

namespace
{

template <class TSource>
CStartJobScheduleOptions read(TSource&& source)
{
    return readFrom<CStartJobScheduleOptions>(source);
}

std::string withLength(const std::string& text)
{
    return fourBytes(text.size()) + text;
}

} // namespace

TEST(CStartJobScheduleOptionsBinary, LengthAndTextByteByByte)
{
    CStartJobScheduleOptions periodically;
    periodically.SetPeriodically(4, 0);
    CStartJobScheduleOptions continuously;
    continuously.SetContinuously();
    EXPECT_EQ(withLength(golden("Schedule/default.xml")), bytesOf(CStartJobScheduleOptions()));
    EXPECT_EQ(withLength(golden("Schedule/periodically.xml")), bytesOf(periodically));
    EXPECT_EQ(withLength(golden("Schedule/continuously.xml")), bytesOf(continuously));
    EXPECT_TRUE(read(bytesOf(periodically)) == periodically);
    EXPECT_TRUE(read(bytesOf(continuously)) == continuously);
}

TEST(CStartJobScheduleOptionsBinary, TheLengthIsLittleEndian)
{
    const std::string bytes = bytesOf(CStartJobScheduleOptions());
    const std::size_t size = golden("Schedule/default.xml").size();
    ASSERT_GT(size, 256U);
    ASSERT_LT(size, 65536U);
    ASSERT_GT(bytes.size(), 4U);
    EXPECT_EQ(size % 256, static_cast<unsigned char>(bytes[0]));
    EXPECT_EQ(size / 256, static_cast<unsigned char>(bytes[1]));
    EXPECT_EQ('\0', bytes[2]);
    EXPECT_EQ('\0', bytes[3]);
    EXPECT_EQ('<', bytes[4]);
    EXPECT_EQ('>', bytes.back());
}

TEST(CStartJobScheduleOptionsBinary, SeveralValuesStandBehindEachOther)
{
    CStartJobScheduleOptions weekly;
    weekly.SetWeekly(1, 2, CWeekMask(true));
    io::mem_stream_tt device;
    io::binary_stream_tt stream(device);
    CStartJobScheduleOptions().Serialize(stream);
    weekly.Serialize(stream);
    EXPECT_TRUE(CStartJobScheduleOptions::Unserialize(stream) == CStartJobScheduleOptions());
    EXPECT_TRUE(CStartJobScheduleOptions::Unserialize(stream) == weekly);
}

TEST(CStartJobScheduleOptionsBinary, OtherTextsThatAreRead)
{
    EXPECT_TRUE(read(withLength("<Other/>")) == CStartJobScheduleOptions());
    EXPECT_TRUE(read(withLength("<?xml version=\"1.0\" encoding=\"UTF-8\"?><!-- c --><A/>" +
                                golden("Schedule/weekly.xml") + "<B/>"))
                    .IsEnabled());
    // An element around the schedule hides it.
    EXPECT_TRUE(read(withLength("<A>" + golden("Schedule/weekly.xml") + "</A>")) == CStartJobScheduleOptions());
    EXPECT_TRUE(
        read(withLength("<Schedule Version=\"1\" Type=\"2\" Hours=\"4\" Minutes=\"0\"/>")).IsSchedulePeriodically());
}

TEST(CStartJobScheduleOptionsBinary, FromADeviceOfUnknownSize)
{
    const std::string bytes = bytesOf(CStartJobScheduleOptions()) + "rest";
    CTextDevice device(bytes);
    EXPECT_TRUE(read(device) == CStartJobScheduleOptions());
    EXPECT_EQ(4UL, device.left());
}

TEST(CStartJobScheduleOptionsFailures, EveryCutOfTheBytes)
{
    const std::string bytes = bytesOf(CStartJobScheduleOptions());
    for (std::size_t size = 0; size < bytes.size(); ++size)
    {
        const std::string expected = size < 4 ? shortRead(size, 4) : shortRead(size - 4, bytes.size() - 4);
        const std::string cut = bytes.substr(0, size);
        ASSERT_EQ(expected, failureText([&] { read(cut); })) << size;
        CTextDevice unsized(cut);
        ASSERT_EQ(expected, failureText([&] { read(unsized); })) << size;
        CSizedTextDevice sized(cut);
        ASSERT_EQ(expected, failureText([&] { read(sized); })) << size;
    }
}

TEST(CStartJobScheduleOptionsFailures, LyingLengthsAreNotBelieved)
{
    for (const unsigned long length : {11UL, 65536UL, 2147483648UL, 4294967295UL})
    {
        expectQuick([&] {
            const std::string bytes = fourBytes(length) + "<Schedule ";
            EXPECT_EQ(shortRead(10, length), failureText([&] { read(bytes); }));
            CTextDevice unsized(bytes);
            EXPECT_EQ(shortRead(10, length), failureText([&] { read(unsized); }));
            EXPECT_LE(unsized.largestRead(), 65536UL);
        });
    }
}

TEST(CStartJobScheduleOptionsFailures, TextsThatAreNoSchedule)
{
    EXPECT_EQ("Unable to parse XML at line 1: [XML_ERROR_MISMATCHED_ELEMENT].",
              failureText([] { read(withLength("<Schedule></schedule>")); }));
    EXPECT_EQ("CStartJobScheduleOptions: Failed to deserialize from Xml. Unknown version: [4].",
              failureText([] { read(withLength("<Schedule Version=\"4\"/>")); }));
    for (const auto& text : {std::string(), std::string("rubbish"), std::string("<Schedule/>\0", 12)})
    {
        const std::string failure = failureText([&] { read(withLength(text)); });
        EXPECT_EQ("Unable to parse XML at line ", failure.substr(0, 28)) << failure;
    }
}

TEST(CStartJobScheduleOptionsFailures, DevicesThatTakeTooLittle)
{
    const std::size_t size = golden("Schedule/default.xml").size();
    const struct
    {
        unsigned long room;
        std::string failure;
    } rows[] = {
        {0, shortWrite(0, 4)}, {3, shortWrite(3, 4)}, {4, shortWrite(0, size)}, {4 + 100, shortWrite(100, size)}};
    for (const auto& row : rows)
    {
        CTextDevice device("", row.room);
        io::binary_stream_tt stream(device);
        EXPECT_EQ(row.failure, failureText([&] { CStartJobScheduleOptions().Serialize(stream); })) << row.room;
    }
    CBrokenDevice broken;
    io::binary_stream_tt stream(broken);
    EXPECT_EQ(shortWrite(-1, 4), failureText([&] { CStartJobScheduleOptions().Serialize(stream); }));
    EXPECT_EQ("Failed to retrieve value from the binary stream: received less bytes (-1) than expected (4).",
              failureText([&] { CStartJobScheduleOptions::Unserialize(stream); }));
}
