#include <gtest/gtest.h>

#include <support/expect_failure.h>

#include "sample_jobs.h"

namespace
{

using namespace zelplatform::model;
using zelmodel_test::agentContext;
using zelmodel_test::failureText;
using zelmodel_test::failureTrace;
using zelmodel_test::fromStrContext;

void expectRefusal(const std::string& text, const std::string& chainAfterContext)
{
    EXPECT_EQ(agentContext(text) + chainAfterContext, failureText([&] { SBackupJobOptions::fromStr(text); }));
}

TEST(BadJobOptions, RootOfAnotherName)
{
    for (const char* text :
         {"<a/>", "<joboptions/>", "<JobOptionsroot/>", "<a><JobOptions/></a>", "<a JobOptions=\"1\"/>"})
        expectRefusal(text, "Node [JobOptions] is not found in [].");

    const auto document = xml::TiXmlParseExc("<Envelope/>");
    EXPECT_EQ("BackupJobOptions: Converting KIV Job options from XML failed. "
              "Node [JobOptions] is not found in [Envelope].",
              failureText([&] { SBackupJobOptions::parseKivJobOptions(document.GetFirstChildNode("Envelope")); }));
}

TEST(BadJobOptions, AttributesThatAreNoNumbers)
{
    for (const char* name : {"MaxPoints", "MaxDays", "RetryCount", "RetryTimeOutMs"})
        for (const std::string value : {"", " ", "12abc", " 7", "7 ", "+7", "0x1F", "1e3", "-1", "-0", "1.0", "1,000",
                                        "18446744073709551616", "99999999999999999999999", "true", "\xD9\xA1"})
            expectRefusal("<JobOptions RetentionType=\"Days\" " + std::string(name) + "=\"" + value + "\"/>",
                          "Unable to convert string [" + value + "] to [unsigned long].");
    for (const std::string value : {"", " ", "12abc", " 7", "+7", "0x1F", "1e3", "--1", "-", "9223372036854775808",
                                    "-9223372036854775809", "18446744073709551615"})
        expectRefusal("<JobOptions FreezeThawScriptsTimeout=\"" + value + "\"/>",
                      "Unable to convert string [" + value + "] to [long].");
}

TEST(BadJobOptions, AttributesThatAreNoBooleans)
{
    for (const char* name : {"IsDedupEnabled", "IsSnapshotRequired", "IgnoreFreezeThawFailures"})
        for (const std::string value : {"", " ", "yes", "no", "on", "2", "-1", "01", "1abc", " true", "true ", "t"})
            expectRefusal("<JobOptions " + std::string(name) + "=\"" + value + "\"/>",
                          "Unable to convert string [" + value + "] to [bool].");
}

TEST(BadJobOptions, WordsOutsideTheTables)
{
    const struct
    {
        const char* attributes;
        const char* reason;
    } cases[] = {
        {"Compression=\"lz4\"", "Unable to convert string [lz4] to BackupJobCompression::type."},
        {"Compression=\"5\"", "Unable to convert string [5] to BackupJobCompression::type."},
        {"Compression=\" \"", "Unable to convert string [ ] to BackupJobCompression::type."},
        {"BlockSize=\"kbblocksize256\"", "Unable to convert string [kbblocksize256] to KbBlockSize::type."},
        {"BlockSize=\"1024\"", "Unable to convert string [1024] to KbBlockSize::type."},
        {"RetentionType=\"\"", "Failed to convert retention type from string."},
        {"RetentionType=\"days\"", "Failed to convert retention type from string."},
        {"RetentionType=\"1\"", "Failed to convert retention type from string."},
        {"SnapshotMode=\"\"", "ESnapshotMode: Failed to convert from string []. Unknown snapshot mode string: []."},
        {"SnapshotMode=\"hybrid\"",
         "ESnapshotMode: Failed to convert from string [hybrid]. Unknown snapshot mode string: [hybrid]."},
        {"SnapshotMode=\"%1 %2\"",
         "ESnapshotMode: Failed to convert from string [%1 %2]. Unknown snapshot mode string: [%1 %2]."},
    };
    for (const auto& each : cases)
        expectRefusal("<JobOptions " + std::string(each.attributes) + "/>", each.reason);
}

TEST(BadJobOptions, PartsOfTheJob)
{
    const struct
    {
        const char* attributes;
        const char* children;
        const char* reason;
    } cases[] = {
        {"", "<RetainDays/>", "Unable to convert string [] to [unsigned long]."},
        {"", "<RetainDays>12abc</RetainDays>", "Unable to convert string [12abc] to [unsigned long]."},
        {"", "<RetainDays RetainDays=\"\">30</RetainDays>", "Unable to convert string [] to [unsigned long]."},
        {"", "<RetainDays RetainDays=\" 30\"/>", "Unable to convert string [ 30] to [unsigned long]."},
        {"", "<Indexing Version=\"3\" Type=\"IndexAll\" Folders=\"\"/>",
         "IndexingOptions: Failed to deserialize from Xml. Unknown version: [3]."},
        {"IndexAll=\"maybe\"", "",
         "IndexingOptions: Failed to deserialize from Xml. Unable to convert string [maybe] to [bool]."},
        {"", "<Schedule Version=\"4\"/>",
         "ScheduleOptions: Failed to deserialize from Xml. CStartJobScheduleOptions: Failed to deserialize from Xml. "
         "Unknown version: [4]."},
        {"", "<Schedule Version=\"3\"/>",
         "ScheduleOptions: Failed to deserialize from Xml. CStartJobScheduleOptions: Failed to deserialize from Xml. "
         "Attribute [IsEnabled] is not found in [Schedule]."},
        {"", "<Schedule Version=\"3\" IsEnabled=\"true\"/>",
         "ScheduleOptions: Failed to deserialize from Xml. CStartJobScheduleOptions: Failed to deserialize from Xml. "
         "ScheduleCalendar: Failed to deserialize from Xml. Attribute [WeekDayNumber] is not found in [Schedule]."},
        {"", "<ActiveFullOptions Version=\"2\"/>",
         "ScheduleOptions: Failed to deserialize from Xml. ActiveFullOptions: Failed to deserialize from Xml. "
         "Unknown version: [2]."},
        {"", "<SyntheticFullOptions Version=\"2\"/>",
         "ScheduleOptions: Failed to deserialize from Xml. ActiveFullOptions: Failed to deserialize from Xml. "
         "Unknown version: [2]."},
        {"", "<GfsPolicy/>", "Attribute [IsEnabled] is not found in [GfsPolicy]."},
        {"", "<GfsPolicy IsEnabled=\"yes\"/>", "Unable to convert string [yes] to [bool]."},
        {"", "<GfsPolicy IsEnabled=\"true\"><Monthly/></GfsPolicy>",
         "Unable to parse [Monthly]. Attribute [IsEnabled] is not found in [Monthly]."},
    };
    for (const auto& each : cases)
        expectRefusal("<JobOptions " + std::string(each.attributes) + ">" + each.children + "</JobOptions>",
                      each.reason);
}

TEST(BadJobOptions, FaultsAreToldInTheReadersOrder)
{
    struct Fault
    {
        const char* attribute;
        const char* child;
        const char* reason;
    };
    // As the reader goes through the document; whatever the order in the text, the first of two faults is told.
    const Fault faults[] = {
        {"Compression=\"x\"", "", "Unable to convert string [x] to BackupJobCompression::type."},
        {"BlockSize=\"x\"", "", "Unable to convert string [x] to KbBlockSize::type."},
        {"RetentionType=\"x\"", "", "Failed to convert retention type from string."},
        {"MaxPoints=\"a\"", "", "Unable to convert string [a] to [unsigned long]."},
        {"MaxDays=\"b\"", "", "Unable to convert string [b] to [unsigned long]."},
        {"IsDedupEnabled=\"c\"", "", "Unable to convert string [c] to [bool]."},
        {"IsSnapshotRequired=\"d\"", "", "Unable to convert string [d] to [bool]."},
        {"RetryCount=\"e\"", "", "Unable to convert string [e] to [unsigned long]."},
        {"RetryTimeOutMs=\"f\"", "", "Unable to convert string [f] to [unsigned long]."},
        {"", "<RetainDays>g</RetainDays>", "Unable to convert string [g] to [unsigned long]."},
        {"", "<Indexing Version=\"5\"/>", "IndexingOptions: Failed to deserialize from Xml. Unknown version: [5]."},
        {"", "<Schedule Version=\"4\"/>",
         "ScheduleOptions: Failed to deserialize from Xml. CStartJobScheduleOptions: Failed to deserialize from Xml. "
         "Unknown version: [4]."},
        {"IgnoreFreezeThawFailures=\"h\"", "", "Unable to convert string [h] to [bool]."},
        {"FreezeThawScriptsTimeout=\"i\"", "", "Unable to convert string [i] to [long]."},
        {"SnapshotMode=\"j\"", "",
         "ESnapshotMode: Failed to convert from string [j]. Unknown snapshot mode string: [j]."},
        {"", "<GfsPolicy/>", "Attribute [IsEnabled] is not found in [GfsPolicy]."},
    };
    for (const Fault* first = std::begin(faults); first != std::end(faults); ++first)
        for (const Fault* second = first + 1; second != std::end(faults); ++second)
        {
            expectRefusal("<JobOptions " + std::string(first->attribute) + " " + second->attribute + ">" +
                              first->child + second->child + "</JobOptions>",
                          first->reason);
            expectRefusal("<JobOptions " + std::string(second->attribute) + " " + first->attribute + ">" +
                              second->child + first->child + "</JobOptions>",
                          first->reason);
        }
}

TEST(BadJobOptions, MessageHoldsTheTextToTheLetter)
{
    // Placeholders and brackets of the text are no part of any format.
    const std::string text = "<JobOptions Compression=\"%1 %2 %% {} [x]\" PrejobCommand=\"%1\"/>";
    expectRefusal(text, "Unable to convert string [%1 %2 %% {} [x]] to BackupJobCompression::type.");
}

TEST(BadJobOptions, TraceTellsTheContextAndTheWholeCause)
{
    const std::string text = "<JobOptions Compression=\"x\"/>";
    const std::vector<std::string> trace = failureTrace([&] { SBackupJobOptions::fromStr(text); });
    ASSERT_EQ(2U, trace.size());
    EXPECT_EQ("BackupJobOptions: Converting from string [" + text + "] failed.", trace[0]);
    EXPECT_EQ("BackupJobOptions: Converting from XML failed. BackupJobOptions: Converting KIV Job options from XML "
              "failed. Unable to convert string [x] to BackupJobCompression::type.",
              trace[1]);
}

} // namespace
