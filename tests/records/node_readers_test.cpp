#include <memory>
#include <ostream>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include <zelmodel/zelmodel.h>
#include <zelplatform/exc/exc.h>
#include <zelplatform/logging/logging.h>
#include <zelplatform/xmlpp/xmlpp.h>

namespace
{

using namespace zelplatform::model;
using namespace zelplatform::model::structs;
using xmlpp::CXmlDocument;
using xmlpp::CXmlNode;

/// A record that is read from a text and from an element.
struct RecordCase
{
    const char* name;
    std::string (*rewriteText)(const std::string& text);
    std::string (*rewriteNode)(const CXmlNode& root);
    const char* document;
    const char* refused;
    std::vector<std::string> trace;
    int line;
};

std::ostream& operator<<(std::ostream& stream, const RecordCase& test)
{
    return stream << test.name;
}

template <class TConfig>
std::string rewriteConfig(const std::string& text)
{
    return TConfig::FromXmlString(text).ToXmlString();
}

template <class TConfig>
std::string rewriteConfigNode(const CXmlNode& root)
{
    return TConfig::FromXmlNode(root).ToXmlString();
}

const std::vector<RecordCase>& recordCases()
{
    static const std::vector<RecordCase> cases{
        {"OracleConfig",
         rewriteConfig<SApplicationProcessingOracleConfig>,
         rewriteConfigNode<SApplicationProcessingOracleConfig>,
         "<OracleConfig username=\"ora\"><LogsTruncateConfig mode=\"ByAge\" sizeGB=\"1\" lifetimeHours=\"2\"/>"
         "</OracleConfig>",
         "<OracleConfig\nusername=\"ora\">\n<LogsTruncateConfig\nmode=\"byage\"/></OracleConfig>",
         {"Failed to convert string to EArchivedLogsTruncationMode::type", "Unknown string: byage"},
         4},
        {"PostgresConfig",
         rewriteConfig<SApplicationProcessingPostgresConfig>,
         rewriteConfigNode<SApplicationProcessingPostgresConfig>,
         "<PostgresConfig osUser=\"pg\" authType=\"peer\"/>",
         "<PostgresConfig\nosUser=\"pg\"\nauthType=\"ticket\"\n/>",
         {"Unable to convert string(ticket) to EPostgreSqlAuthType", "Unknown PostgreSql authentication type"},
         3},
        {"CloudContainer",
         [](const std::string& text) { return SExternalRepoCloudContainer::Unserialize(text).Serialize(); },
         [](const CXmlNode& root) { return SExternalRepoCloudContainer::FromXmlNode(root).Serialize(); },
         "<root regionId=\"r\" repoName=\"n\" clientInfo.id=\"3c9a6e57-08b1-4d2f-bb60-917e4ad5c208\" "
         "clientInfo.description=\"d\" isObjectLockEnabled=\"true\" SAmazonS3SpecificParams.creds.accessKeyId=\"a\" "
         "SAmazonS3SpecificParams.creds.secretAccessKey=\"s\" SAmazonS3SpecificParams.endpoint.apiEndpoint=\"e\"/>",
         "<root\nregionId=\"r\"\nrepoName=\"n\"\nclientInfo.id=\"3c9a6e57-08b1-4d2f-bb60-917e4ad5c208\"\n"
         "clientInfo.description=\"d\"\nisObjectLockEnabled=\"yes\"\n/>",
         {"Failed to SExternalRepoCloudContainer::Unserialize.", "Unable to convert string [yes] to [bool]."},
         6},
        {"Details",
         [](const std::string& text) { return JobSessionDetails::fromXmlStr(text).toXmlStr(); },
         [](const CXmlNode& root) { return JobSessionDetails::fromXmlNode(root).toXmlStr(); },
         "<Details repo_name=\"n\" backup_type=\"Increment\" oib_id=\"b1d04c7e-6a25-4f93-8e1b-7c3f52a9e604\" "
         "repo_free_space=\"5\" repo_total_space=\"9\" is_job_awaiting_for_retry=\"true\" "
         "initial_retries_number=\"3\" current_attempt_number=\"2\"/>",
         "<Details\nrepo_name=\"n\"\nbackup_type=\"Synthetic\"\n/>",
         {"Failed to deserialize session details.", "Unable to convert string [Synthetic] to OibAlgorithm::type."},
         3},
        {"ProgressDetails",
         [](const std::string& text) { return SJobSessionProgressDetails::FromXml(text).ToXml(); },
         [](const CXmlNode& root) { return SJobSessionProgressDetails::FromXmlNode(root).ToXml(); },
         "<ProgressDetails total_size=\"1\" total_used_size=\"2\" processed_data_size_bytes=\"3\" "
         "read_data_size_bytes=\"4\" transferred_data_size_bytes=\"5\" processing_speed=\"6\" source_read_load=\"7\" "
         "source_processing_load=\"8\" network_load=\"9\" target_write_load=\"10\" "
         "network_throttling_enabled=\"true\" repository_throttling_enabled=\"true\"/>",
         "<ProgressDetails\nprocessed_data_size_bytes=\"3\"\nread_data_size_bytes=\"4\"\n"
         "transferred_data_size_bytes=\"5\"\nprocessing_speed=\"6\"\nsource_read_load=\"2147483648\"\n/>",
         {"Failed to deserialize session progress details.", "Unable to cast value from [long] to [int]."},
         6},
        {"MountSessionDetails",
         [](const std::string& text) { return SMountSessionDetails::FromXmlStr(text).ToXmlStr(); },
         [](const CXmlNode& root) { return SMountSessionDetails::FromXmlNode(root).ToXmlStr(); },
         "<MountSessionDetails MountPoint=\"/mnt\" OibId=\"b1d04c7e-6a25-4f93-8e1b-7c3f52a9e604\"/>",
         "<MountSessionDetails\nMountPoint=\"/mnt\"\nOibId=\"x\"\n/>",
         {"SMountSessionDetails: Failed to deserialize from XML.", "Unable to convert string [x] to GUID."},
         3},
        {"BackupJobState",
         [](const std::string& text) { return SBackupJobState::FromXmlStr(text).ToXmlString(); },
         [](const CXmlNode& root) { return SBackupJobState::FromXmlNode(root).ToXmlString(); },
         "<BackupJobState Version=\"1\" ObjectStorageBackupMode=\"3\"/>",
         "<BackupJobState\nVersion=\"3\"\nObjectStorageOperationMode=\"3\"\n/>",
         {"Failed to deserialize SBackupJobState.", "Unsupported backup job state xml version 3."},
         2},
    };
    return cases;
}

template <class F>
std::vector<std::string> traceOf(F&& read)
{
    try
    {
        read();
    }
    catch (const exc::CRuntimeExc& failure)
    {
        return failure.trace();
    }
    ADD_FAILURE() << "nothing was thrown";
    return {};
}

class NodeReader : public testing::TestWithParam<RecordCase>
{
};

TEST_P(NodeReader, ReadsTheElementAsTheTextIsRead)
{
    const std::string text = GetParam().document;
    const std::string expected = GetParam().rewriteText(text);
    EXPECT_EQ(expected, GetParam().rewriteNode(CXmlDocument::Unserialize(text).GetRootNode()));
    const auto enclosing = CXmlDocument::Unserialize("<Any><Other/>" + text + "</Any>").GetRootNode();
    const auto element = enclosing.GetFirstChildNode(CXmlDocument::Unserialize(text).GetRootNode().GetName());
    EXPECT_EQ(expected, GetParam().rewriteNode(element));
}

// Who hands over an element has chosen it.
TEST_P(NodeReader, TakesAnElementOfAnyName)
{
    const auto document = CXmlDocument::Unserialize(GetParam().document);
    const auto name = document.GetRootNode().GetName();
    std::string renamed = "<Any" + std::string(GetParam().document).substr(1 + name.size());
    if (const auto end = renamed.find("</" + name); end != std::string::npos)
        renamed.replace(end + 2, name.size(), "Any");
    EXPECT_EQ(GetParam().rewriteNode(document.GetRootNode()),
              GetParam().rewriteNode(CXmlDocument::Unserialize(renamed).GetRootNode()));
}

TEST_P(NodeReader, RefusesWithTheChainOfTheTextAndTheLineOfTheFault)
{
    EXPECT_EQ(GetParam().trace, traceOf([] { GetParam().rewriteText(GetParam().refused); }));
    const auto document = CXmlDocument::Unserialize(GetParam().refused);
    EXPECT_EQ(GetParam().trace, traceOf([&] { GetParam().rewriteNode(document.GetRootNode()); }));
    EXPECT_EQ(GetParam().line, document.LastReadLine());
}

// Only the reader of a text has the text that its entry in the log shows.
TEST_P(NodeReader, LogsNothing)
{
    const auto sink = std::make_shared<logging::memory_sink>();
    logging::set_sink(sink);
    traceOf([] { GetParam().rewriteNode(CXmlDocument::Unserialize(GetParam().refused).GetRootNode()); });
    logging::set_sink(nullptr);
    EXPECT_TRUE(sink->entries().empty());
}

INSTANTIATE_TEST_SUITE_P(Records, NodeReader, testing::ValuesIn(recordCases()),
                         [](const auto& test) { return std::string(test.param.name); });

} // namespace
