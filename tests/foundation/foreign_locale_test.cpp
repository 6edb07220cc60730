#include <locale>
#include <string>

#include <gtest/gtest.h>

#include <zelmodel/binary_io.h>
#include <zelmodel/data_size.h>
#include <zelmodel/date_time.h>
#include <zelmodel/enumerations.h>

#include "support/expect_failure.h"

using namespace zelplatform;
using namespace zelplatform::model;
using zelmodel_test::failureText;

namespace
{

struct CommaAndGroups : std::numpunct<char>
{
    char do_decimal_point() const override { return ','; }
    char do_thousands_sep() const override { return '.'; }
    std::string do_grouping() const override { return "\3"; }
    std::string do_truename() const override { return "wahr"; }
};

/// Every stream of the process writes 1.234.567,5 here, on any machine: no installed locale is needed.
class ForeignLocaleTest : public testing::Test
{
protected:
    void SetUp() override { m_before = std::locale::global(std::locale(std::locale(), new CommaAndGroups)); }
    void TearDown() override { std::locale::global(m_before); }

private:
    std::locale m_before;
};

TEST_F(ForeignLocaleTest, LeavesNumbersPlain)
{
    EXPECT_EQ(ToString(static_cast<EBObjectType>(1234567)), "1234567");
    EXPECT_EQ(ParseBObjectType("1234567"), 1234567);
    EXPECT_EQ(failureText([] { KbBlockSize::toStr(static_cast<KbBlockSize::type>(-1234567)); }),
              "Unable to convert KbBlockSize::type [-1234567] to string.");
    EXPECT_EQ(failureText([] { CTimeSpanEx::fromHours(9223372036854775807L); }),
              "The product of [9223372036854775807] and [3600] is out of range.");
}

TEST_F(ForeignLocaleTest, LeavesThePointOfSizes)
{
    EXPECT_EQ(CSize(1536).ToNBytesStr(), "1.5 KB");
    EXPECT_EQ(CSize(1023).ToNBytesStr(), "1023.0 B");
    EXPECT_EQ(CSize(1536).ToStr(8, false), "1.5K");
    EXPECT_EQ(CSize::FromStr("1.5K"), 1536UL);
    EXPECT_EQ(failureText([] { CSize::FromStr("1,5K"); }),
              "EDataSizeUnit: Failed to convert from string [,5K]. Unknown data unit: [,5K].");
}

TEST_F(ForeignLocaleTest, LeavesDatesAndCountsPlain)
{
    EXPECT_EQ(CDate(datetime::CDateTime(1709769600, true)).toString(), "03/07/2024");
    EXPECT_EQ(CTimeSpanEx(12345).toStdString("%H:%M:%S"), "03:25:45");
    io::mem_stream_tt memory;
    std::string target(7654321, 'x');
    EXPECT_EQ(failureText([&] { io::detail::read_from_device(memory, target.data(), target.size()); }),
              "Failed to retrieve value from the binary stream: received less bytes (0) than expected (7654321).");
}

} // namespace
