#include "describe/conversion.h"

#include <string>

#include <gtest/gtest.h>

#include <zelplatform/exc/exc.h>

#include "describe/document.h"

namespace
{

using describe::convert;
using describe::Document;

describe::Conversion conversionOf(const std::string& text)
{
    const Document document(text);
    return convert(text, document.kind(), document.describe());
}

TEST(Conversion, SaysWhetherTheResultHoldsSecrets)
{
    const std::string storage =
        "<AmazonS3SpecificParams><Credentials AccessKeyId='' SecretAccessKey='k' SessionToken='' "
        "RoleName='' MetadataHost='' LastUpdateTimeUtc='03/07/2024 13:05:09'/>"
        "<Endpoint ApiEndpoint='' ArnString=''/></AmazonS3SpecificParams>";
    EXPECT_TRUE(conversionOf(storage).holdsSecrets);
    EXPECT_FALSE(conversionOf("<BackupJobState Version='1' ObjectStorageBackupMode='3'/>").holdsSecrets);
}

TEST(Conversion, AValueOfAnSqlVariantStays)
{
    EXPECT_EQ(conversionOf("<SqlVariant Value='a &amp; b' Type='-7'/>").text,
              "<SqlVariant Type=\"-7\" Value=\"a &amp; b\"/>\n");
}

TEST(Conversion, ALoneScheduleStaysAlone)
{
    const auto conversion = conversionOf("<Schedule Version='2' Type='2' Hours='4' Minutes='0'/>");
    EXPECT_EQ(conversion.text.find("<Schedule Version=\"3\" IsEnabled=\"false\""), 0U) << conversion.text;
    EXPECT_NE(conversion.text.find("</Schedule><ActiveFullOptions "), std::string::npos) << conversion.text;
    EXPECT_TRUE(conversion.differences.empty());
}

/// A negative offset is written as a very large number, on purpose, and reads back as itself.
TEST(Conversion, ANegativeOffsetOfAWindowIsSpelledAsALargeNumber)
{
    const auto conversion = conversionOf("<ScheduleWindow Minutes='-300' Kind='0'/>");
    EXPECT_NE(conversion.text.find("Minutes=\"18446744073709551316\""), std::string::npos) << conversion.text;
    EXPECT_TRUE(conversion.differences.empty());
    ASSERT_EQ(conversion.markup.respelled.size(), 1U);
    EXPECT_EQ(conversion.markup.respelled.front().name, "Minutes");
}

/// Without rules nothing says which names a policy uses; both variants write it alike.
TEST(Conversion, APolicyKeepsItsNames)
{
    EXPECT_EQ(conversionOf("<GfsPolicy IsEnabled='1'/>").text, "<GfsPolicy IsEnabled=\"true\"/>\n");
    const std::string rule = " IsEnabled='1' BeginTimeUtc='01/05/2024 00:00:00' DesiredTime='5' ";
    EXPECT_NE(conversionOf("<GfsPolicy IsEnabled='1'><GfsMonthlyPolicy" + rule + "NumberOfMonths='3'/></GfsPolicy>")
                  .text.find("<GfsMonthlyPolicy "),
              std::string::npos);
    EXPECT_NE(
        conversionOf("<GfsPolicy IsEnabled='1'><Monthly" + rule + "KeepBackupsForNumberOfMonths='3'/></GfsPolicy>")
            .text.find("<Monthly "),
        std::string::npos);
}

TEST(Conversion, KindsThatAreNeverWrittenAreRefused)
{
    const std::string text = "<DirectBackupImmutabilitySettings HasImmutableCapacityOrArchiveTierExtent='1'>"
                             "<ImmutabilitySettings IsEnabled='1' IntervalDays='14'/>"
                             "</DirectBackupImmutabilitySettings>";
    EXPECT_THROW(conversionOf(text), exc::CRuntimeExc);
}

} // namespace
