#include <zelmodel/sessions/job_session_progress_details.h>

#include <climits>
#include <thread>
#include <vector>

#include <gtest/gtest.h>

#include <support/expect_failure.h>
#include <support/golden.h>
#include <zelplatform/exc/exc.h>

#include "log_capture.h"

namespace
{

using namespace zelplatform::model;
using zelmodel_test::failureText;
using zelmodel_test::golden;
using zelplatform::CSize;

constexpr const char* readFailed = "Failed to deserialize session progress details. ";

class JobSessionProgressDetailsTest : public zelmodel_test::LogCapture
{
};

unsigned long bytes(const CSize& size)
{
    return size;
}

SJobSessionProgressDetails fullProgress()
{
    SJobSessionProgressDetails progress;
    progress.totalSize = CSize(1099511627776);
    progress.totalUsedSize = CSize(549755813888);
    progress.processedDataSize = CSize(274877906944);
    progress.readDataSize = CSize(137438953472);
    progress.transferredDataSize = CSize(68719476736);
    progress.processingSpeed = CSize(104857600);
    progress.sourceReadLoad = 99;
    progress.sourceProcessingLoad = 12;
    progress.networkLoad = 7;
    progress.targetWriteLoad = 45;
    progress.networkThrottlingEnabled = true;
    return progress;
}

SJobSessionProgressDetails extremeProgress()
{
    SJobSessionProgressDetails progress;
    progress.totalSize = CSize(ULONG_MAX);
    progress.totalUsedSize = CSize(ULONG_MAX - 1);
    progress.processedDataSize = CSize(ULONG_MAX - 2);
    progress.readDataSize = CSize(ULONG_MAX - 3);
    progress.transferredDataSize = CSize(ULONG_MAX - 4);
    progress.processingSpeed = CSize(ULONG_MAX - 5);
    progress.sourceReadLoad = INT_MAX;
    progress.sourceProcessingLoad = INT_MIN;
    progress.networkLoad = -1;
    progress.targetWriteLoad = 1000;
    progress.repositoryThrottlingEnabled = true;
    return progress;
}

std::string attributes(const std::string& but)
{
    std::string text;
    for (const std::string name :
         {"processed_data_size_bytes", "read_data_size_bytes", "transferred_data_size_bytes", "processing_speed",
          "source_read_load", "source_processing_load", "network_load", "target_write_load"})
    {
        if (name != but)
            text += " " + name + "=\"1\"";
    }
    return text;
}

std::string with(const std::string& name, const std::string& text)
{
    return "<ProgressDetails" + attributes(name) + " " + name + "=\"" + text + "\"/>";
}

void expectRefused(const std::string& text, const std::string& reason)
{
    EXPECT_EQ(readFailed + reason, failureText([&] { SJobSessionProgressDetails::FromXml(text); })) << text;
}

TEST_F(JobSessionProgressDetailsTest, Defaults)
{
    const SJobSessionProgressDetails progress;
    for (const CSize& size : {progress.totalSize, progress.totalUsedSize, progress.processedDataSize,
                              progress.readDataSize, progress.transferredDataSize, progress.processingSpeed})
        EXPECT_EQ(0U, bytes(size));
    EXPECT_EQ(0, progress.sourceReadLoad);
    EXPECT_EQ(0, progress.sourceProcessingLoad);
    EXPECT_EQ(0, progress.networkLoad);
    EXPECT_EQ(0, progress.targetWriteLoad);
    EXPECT_FALSE(progress.networkThrottlingEnabled);
    EXPECT_FALSE(progress.repositoryThrottlingEnabled);
    EXPECT_TRUE(progress.IsEmpty());
}

TEST_F(JobSessionProgressDetailsTest, Names)
{
    using Progress = SJobSessionProgressDetails;
    EXPECT_STREQ("ProgressDetails", Progress::m_xml_ProgressDetails);
    EXPECT_STREQ("total_size", Progress::m_xml_TotalSize);
    EXPECT_STREQ("total_used_size", Progress::m_xml_TotalUsedSize);
    EXPECT_STREQ("processed_data_size_bytes", Progress::m_xml_ProcessedDataSize);
    EXPECT_STREQ("read_data_size_bytes", Progress::m_xml_ReadDataSize);
    EXPECT_STREQ("transferred_data_size_bytes", Progress::m_xml_TransferredDataSize);
    EXPECT_STREQ("processing_speed", Progress::m_xml_ProcessingSpeed);
    EXPECT_STREQ("source_read_load", Progress::m_xml_SourceReadLoad);
    EXPECT_STREQ("source_processing_load", Progress::m_xml_SourceProcessingLoad);
    EXPECT_STREQ("network_load", Progress::m_xml_NetworkLoad);
    EXPECT_STREQ("target_write_load", Progress::m_xml_TargetWriteLoad);
    EXPECT_STREQ("network_throttling_enabled", Progress::m_xml_NetworkThrottlingEnabled);
    EXPECT_STREQ("repository_throttling_enabled", Progress::m_xml_RepositoryThrottlingEnabled);
}

TEST_F(JobSessionProgressDetailsTest, IsEmptyIgnoresTotalsLoadsAndFlags)
{
    SJobSessionProgressDetails total;
    total.totalSize = CSize(1);
    EXPECT_TRUE(total.IsEmpty());

    SJobSessionProgressDetails others = fullProgress();
    others.repositoryThrottlingEnabled = true;
    others.processedDataSize = others.readDataSize = others.transferredDataSize = others.processingSpeed = CSize(0);
    EXPECT_TRUE(others.IsEmpty());

    CSize SJobSessionProgressDetails::*const counting[] = {
        &SJobSessionProgressDetails::processedDataSize, &SJobSessionProgressDetails::readDataSize,
        &SJobSessionProgressDetails::transferredDataSize, &SJobSessionProgressDetails::processingSpeed};
    for (const auto field : counting)
    {
        SJobSessionProgressDetails progress;
        progress.*field = CSize(1);
        EXPECT_FALSE(progress.IsEmpty());
    }
}

TEST_F(JobSessionProgressDetailsTest, EqualityComparesEveryField)
{
    using Progress = SJobSessionProgressDetails;
    void (*const changes[])(Progress&) = {
        [](Progress& progress) { progress.totalSize = CSize(0); },
        [](Progress& progress) { progress.totalUsedSize = CSize(0); },
        [](Progress& progress) { progress.processedDataSize = CSize(0); },
        [](Progress& progress) { progress.readDataSize = CSize(0); },
        [](Progress& progress) { progress.transferredDataSize = CSize(0); },
        [](Progress& progress) { progress.processingSpeed = CSize(0); },
        [](Progress& progress) { progress.sourceReadLoad = 0; },
        [](Progress& progress) { progress.sourceProcessingLoad = 0; },
        [](Progress& progress) { progress.networkLoad = 0; },
        [](Progress& progress) { progress.targetWriteLoad = 0; },
        [](Progress& progress) { progress.networkThrottlingEnabled = false; },
        [](Progress& progress) { progress.repositoryThrottlingEnabled = true; },
    };
    EXPECT_TRUE(fullProgress() == fullProgress());
    for (const auto change : changes)
    {
        Progress progress = fullProgress();
        change(progress);
        EXPECT_TRUE(progress != fullProgress());
        EXPECT_FALSE(progress == fullProgress());
    }
}

TEST_F(JobSessionProgressDetailsTest, Text)
{
    EXPECT_EQ(golden("ProgressDetails/default.xml"), SJobSessionProgressDetails().ToXml());
    EXPECT_EQ(golden("ProgressDetails/full.xml"), fullProgress().ToXml());
    EXPECT_EQ(golden("ProgressDetails/extremes.xml"), extremeProgress().ToXml());
}

TEST_F(JobSessionProgressDetailsTest, ReadsBackWhatItWrites)
{
    EXPECT_TRUE(SJobSessionProgressDetails::FromXml(golden("ProgressDetails/default.xml")) ==
                SJobSessionProgressDetails());
    EXPECT_TRUE(SJobSessionProgressDetails::FromXml(golden("ProgressDetails/full.xml")) == fullProgress());
    EXPECT_TRUE(SJobSessionProgressDetails::FromXml(golden("ProgressDetails/extremes.xml")) == extremeProgress());
}

TEST_F(JobSessionProgressDetailsTest, EmptyTextIsAlwaysTheSame)
{
    const std::string expected = golden("ProgressDetails/default.xml");
    EXPECT_EQ(expected, SJobSessionProgressDetails::CreateEmptyXml());
    EXPECT_EQ(expected, SJobSessionProgressDetails::CreateEmptyXml());
    EXPECT_EQ(SJobSessionProgressDetails().ToXml(), SJobSessionProgressDetails::CreateEmptyXml());

    std::string copy = SJobSessionProgressDetails::CreateEmptyXml();
    copy[0] = 'x';
    EXPECT_EQ(expected, SJobSessionProgressDetails::CreateEmptyXml());

    std::vector<std::string> texts(8);
    std::vector<std::thread> threads;
    for (auto& text : texts)
        threads.emplace_back([&text] { text = SJobSessionProgressDetails::CreateEmptyXml(); });
    for (auto& thread : threads)
        thread.join();
    EXPECT_EQ(std::vector<std::string>(8, expected), texts);
}

TEST_F(JobSessionProgressDetailsTest, TotalsAndFlagsMayBeMissing)
{
    const auto progress = SJobSessionProgressDetails::FromXml(golden("legacy/progress_required_only.xml"));
    EXPECT_EQ(0U, bytes(progress.totalSize));
    EXPECT_EQ(0U, bytes(progress.totalUsedSize));
    EXPECT_EQ(11U, bytes(progress.processedDataSize));
    EXPECT_EQ(12U, bytes(progress.readDataSize));
    EXPECT_EQ(13U, bytes(progress.transferredDataSize));
    EXPECT_EQ(14U, bytes(progress.processingSpeed));
    EXPECT_EQ(15, progress.sourceReadLoad);
    EXPECT_EQ(16, progress.sourceProcessingLoad);
    EXPECT_EQ(17, progress.networkLoad);
    EXPECT_EQ(18, progress.targetWriteLoad);
    EXPECT_FALSE(progress.networkThrottlingEnabled);
    EXPECT_FALSE(progress.repositoryThrottlingEnabled);
}

TEST_F(JobSessionProgressDetailsTest, OtherWritersAreRead)
{
    const auto progress = SJobSessionProgressDetails::FromXml(
        "<?xml version=\"1.0\"?><!-- now --><Other/><ProgressDetails" + attributes("network_load") +
        "\n network_load='-0' total_size='007' repository_throttling_enabled='True' network_throttling_enabled='1' "
        "later='x'><!-- inside --><Total/></ProgressDetails><ProgressDetails/>");
    EXPECT_EQ(7U, bytes(progress.totalSize));
    EXPECT_EQ(0, progress.networkLoad);
    EXPECT_TRUE(progress.networkThrottlingEnabled);
    EXPECT_TRUE(progress.repositoryThrottlingEnabled);
}

TEST_F(JobSessionProgressDetailsTest, RequiredAttributes)
{
    for (const std::string name :
         {"processed_data_size_bytes", "read_data_size_bytes", "transferred_data_size_bytes", "processing_speed",
          "source_read_load", "source_processing_load", "network_load", "target_write_load"})
        expectRefused("<ProgressDetails" + attributes(name) + "/>",
                      "Attribute [" + name + "] is not found in [ProgressDetails].");
}

TEST_F(JobSessionProgressDetailsTest, FaultsAreReportedInReadingOrder)
{
    expectRefused("<ProgressDetails/>", "Attribute [processed_data_size_bytes] is not found in [ProgressDetails].");
    expectRefused("<ProgressDetails total_size=\"x\"/>", "Unable to convert string [x] to [unsigned long].");
    expectRefused("<ProgressDetails repository_throttling_enabled=\"x\" network_throttling_enabled=\"y\"" +
                      attributes("none") + "/>",
                  "Unable to convert string [y] to [bool].");
}

TEST_F(JobSessionProgressDetailsTest, SizesAreUnsignedNumbers)
{
    for (const std::string name : {"total_size", "total_used_size", "processed_data_size_bytes", "read_data_size_bytes",
                                   "transferred_data_size_bytes", "processing_speed"})
    {
        for (const std::string text :
             {"", " 7", "7 ", "+7", "12abc", "0x1F", "1e3", "1.5", "-1", "18446744073709551616", "1 KB"})
            expectRefused(with(name, text), "Unable to convert string [" + text + "] to [unsigned long].");
    }
}

TEST_F(JobSessionProgressDetailsTest, LoadsAreSigned32BitNumbers)
{
    for (const std::string name : {"source_read_load", "source_processing_load", "network_load", "target_write_load"})
    {
        for (const std::string text : {"2147483648", "-2147483649", "4294967296", "4294967297", "9223372036854775807"})
            expectRefused(with(name, text), "Unable to cast value from [long] to [int].");
        for (const std::string text : {"", " 7", "+7", "12abc", "0x1F", "1e3", "50%", "9223372036854775808"})
            expectRefused(with(name, text), "Unable to convert string [" + text + "] to [long].");
    }
}

TEST_F(JobSessionProgressDetailsTest, FlagsThatAreThereMustBeFlags)
{
    for (const std::string name : {"network_throttling_enabled", "repository_throttling_enabled"})
    {
        for (const std::string text : {"", "yes", "2", " true", "false "})
            expectRefused(with(name, text), "Unable to convert string [" + text + "] to [bool].");
    }
}

TEST_F(JobSessionProgressDetailsTest, ElementMustStandAtTheTopWithItsName)
{
    for (const char* text : {"<Details/>", "<progressDetails/>", "<Other><ProgressDetails/></Other>"})
        expectRefused(text, "Node [ProgressDetails] is not found in [].");
}

TEST_F(JobSessionProgressDetailsTest, TextsThatAreNoXml)
{
    expectRefused("<ProgressDetails></Other>", "Unable to parse XML at line 1: [XML_ERROR_MISMATCHED_ELEMENT].");
    const std::string expected = std::string(readFailed) + "Unable to parse XML at line ";
    for (const std::string& text : {std::string(), std::string(" "), std::string("<"), std::string("<ProgressDetails>"),
                                    std::string("x<ProgressDetails/>"), std::string("<ProgressDetails/>\0", 19)})
        EXPECT_EQ(expected, failureText([&] { SJobSessionProgressDetails::FromXml(text); }).substr(0, expected.size()));
}

TEST_F(JobSessionProgressDetailsTest, RefusalsAreNotLogged)
{
    expectRefused("<ProgressDetails/>", "Attribute [processed_data_size_bytes] is not found in [ProgressDetails].");
    EXPECT_TRUE(entries().empty());
}

} // namespace
