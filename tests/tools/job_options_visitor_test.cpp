#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "tree.h"

namespace
{

using zelmodel_test::at;
using zelmodel_test::namesOf;
using zelmodel_test::treeOf;

/// The job that both forms can tell.
constexpr const char* AgentForm = R"(<JobOptions
 Compression="Zstd9"
 BlockSize="KbBlockSize256"
 RetentionType="Cycles"
 MaxPoints="14"
 MaxDays="21"
 IsDedupEnabled="false">
<RetainDays>30</RetainDays>
</JobOptions>)";
constexpr const char* ServerForm = R"(<JobOptionsRoot>
 <CompressionLevel>9</CompressionLevel>
 <StgBlockSize>KbBlockSize256</StgBlockSize>
 <RetentionType>Cycles</RetentionType>
 <RetainCycles>14</RetainCycles>
 <RetainDaysToKeep>21</RetainDaysToKeep>
 <EnableDeduplication>false</EnableDeduplication>
 <EnableDeletedVmDataRetention>true</EnableDeletedVmDataRetention>
 <RetainDays>30</RetainDays>
</JobOptionsRoot>)";

TEST(JobOptionsTree, HoldsEveryFieldUnderItsName)
{
    const std::vector<std::string> names{"compression",
                                         "blockSize",
                                         "retentionType",
                                         "maxPoints",
                                         "maxDays",
                                         "deletedVmDataRetentionDays",
                                         "dedupEnabled",
                                         "snapshotMode",
                                         "preFreezeCommand",
                                         "postThawCommand",
                                         "ignoreFreezeThawFailures",
                                         "freezeThawScriptsTimeout",
                                         "preJobCommand",
                                         "postJobCommand",
                                         "retryCount",
                                         "retryTimeoutMs",
                                         "indexing",
                                         "gfsPolicy",
                                         "productSpecific",
                                         "schedule",
                                         "notCarried"};
    EXPECT_EQ(namesOf(treeOf(AgentForm)), names);
    EXPECT_EQ(namesOf(treeOf(ServerForm)), names);
}

TEST(JobOptionsTree, BothFormsTellTheSame)
{
    struct Case
    {
        const char* name;
        const char* value;
        const char* words;
        int agentLine;
        int serverLine;
    };
    const auto agent = treeOf(AgentForm);
    const auto server = treeOf(ServerForm);
    for (const auto& expected : {Case{"compression", "Zstd9", "Zstd9, level 4 of 0 to 4", 2, 2},
                                 Case{"blockSize", "KbBlockSize256", "256 KB", 3, 3},
                                 Case{"retentionType", "Cycles", "keeps 14 restore points", 4, 4},
                                 Case{"maxPoints", "14", "14 restore points", 5, 5},
                                 Case{"maxDays", "21", "21 days", 6, 6}, Case{"dedupEnabled", "false", "off", 7, 7},
                                 Case{"deletedVmDataRetentionDays", "30",
                                      "data of machines that vanished from the job is kept 30 days", 8, 9}})
    {
        for (const auto* root : {&agent, &server})
        {
            const auto& field = at(*root, expected.name);
            EXPECT_EQ(field.value, expected.value) << expected.name;
            EXPECT_EQ(field.words, expected.words) << expected.name;
            EXPECT_EQ(field.origin.line, root == &agent ? expected.agentLine : expected.serverLine) << expected.name;
        }
    }
}

TEST(JobOptionsTree, SaysWhatTheManagingServersFormCannotCarry)
{
    const auto server = treeOf(ServerForm);
    EXPECT_EQ(at(server, "schedule").words,
              "disabled: this form carries no schedule, so the job does not start by itself");
    EXPECT_EQ(at(server, "notCarried").label, "Not in this form");
    EXPECT_EQ(at(server, "notCarried").words,
              "snapshot mode, scripts, retries, indexing, schedule, GFS policy and product-specific text");
    for (const auto* name :
         {"snapshotMode", "preFreezeCommand", "retryCount", "indexing", "gfsPolicy", "productSpecific"})
    {
        EXPECT_TRUE(at(server, name).isDetail) << name;
        EXPECT_EQ(at(server, name).origin.line, 0) << name;
    }
    EXPECT_EQ(at(treeOf(AgentForm), "notCarried").label, "Only in this form");
}

TEST(JobOptionsTree, DefaultsHaveNoLine)
{
    const auto job = treeOf("<JobOptions/>");
    struct Case
    {
        const char* name;
        const char* value;
        const char* words;
    };
    for (const auto& [name, value, words] :
         {Case{"compression", "Lz4", "Lz4, level 2 of 0 to 4"}, Case{"blockSize", "KbBlockSize1024", "1024 KB"},
          Case{"retentionType", "Cycles", "keeps 7 restore points"}, Case{"maxDays", "7", "7 days"},
          Case{"deletedVmDataRetentionDays", "", "no rule for data of machines that vanished from the job"},
          Case{"dedupEnabled", "true", "on"}, Case{"snapshotMode", "SnapshotRequired", "required"},
          Case{"preFreezeCommand", "", "none"}, Case{"ignoreFreezeThawFailures", "", "not set"},
          Case{"freezeThawScriptsTimeout", "", "not set"}, Case{"retryCount", "0", "none"},
          Case{"retryTimeoutMs", "600000", "10 minutes"}, Case{"indexing", "", "off"}, Case{"gfsPolicy", "", "off"},
          Case{"productSpecific", "", "none"}, Case{"schedule/jobStart", "", "disabled"}})
    {
        EXPECT_EQ(at(job, name).value, value) << name;
        EXPECT_EQ(at(job, name).words, words) << name;
        EXPECT_EQ(at(job, name).origin.line, 0) << name;
    }
}

TEST(JobOptionsTree, EmptyCompressionIsADefault)
{
    const auto job = treeOf("<JobOptions Compression=\"\" BlockSize=\"\"/>");
    EXPECT_EQ(at(job, "compression").origin.line, 0);
    EXPECT_EQ(at(job, "blockSize").origin.line, 0);
}

TEST(JobOptionsTree, TellsScriptsAndRetries)
{
    const auto job = treeOf(R"(<JobOptions PrefreezeCommand="/a b" PostthawCommand="/c"
 PrejobCommand="/d" PostjobCommand="/e" RetryCount="1" RetryTimeOutMs="90000"
 IgnoreFreezeThawFailures="true" FreezeThawScriptsTimeout="-5" ProductSpecific="x=1"/>)");
    EXPECT_EQ(at(job, "preFreezeCommand").words, "/a b");
    EXPECT_EQ(at(job, "postThawCommand").words, "/c");
    EXPECT_EQ(at(job, "preJobCommand").words, "/d");
    EXPECT_EQ(at(job, "preJobCommand").origin.line, 2);
    EXPECT_EQ(at(job, "postJobCommand").words, "/e");
    EXPECT_EQ(at(job, "retryCount").words, "1 time with 1 minute 30 seconds between");
    EXPECT_EQ(at(job, "ignoreFreezeThawFailures").words, "ignored");
    EXPECT_EQ(at(job, "ignoreFreezeThawFailures").value, "true");
    EXPECT_EQ(at(job, "freezeThawScriptsTimeout").words, "-5");
    EXPECT_EQ(at(job, "productSpecific").words, "x=1");
}

struct FieldCase
{
    const char* attributes;
    const char* name;
    const char* words;
};

TEST(Field, IsToldInWords)
{
    const FieldCase cases[] = {
        FieldCase{"Compression=\"NoCompression\"", "compression", "NoCompression, level 0 of 0 to 4"},
        FieldCase{"Compression=\"Rle\"", "compression", "Rle, level 1 of 0 to 4"},
        FieldCase{"Compression=\"ZlibLow\"", "compression", "Zstd3, level 3 of 0 to 4"},
        FieldCase{"BlockSize=\"Default\"", "blockSize", "1024 KB"},
        FieldCase{"BlockSize=\"KbBlockSize8192\"", "blockSize", "8192 KB"},
        FieldCase{"RetentionType=\"Days\" MaxDays=\"1\"", "retentionType", "keeps the restore points of 1 day"},
        FieldCase{"RetentionType=\"_number\"", "retentionType", "of an unknown kind: neither points nor days"},
        FieldCase{"SnapshotMode=\"NoSnapshot\"", "snapshotMode", "none"},
        FieldCase{"SnapshotMode=\"Hybrid\"", "snapshotMode", "hybrid"},
        FieldCase{"IsSnapshotRequired=\"true\"", "snapshotMode", "none"},
        FieldCase{"IgnoreFreezeThawFailures=\"false\"", "ignoreFreezeThawFailures", "not ignored"},
        FieldCase{"IndexAll=\"true\"", "indexing", "all files and folders"},
        FieldCase{"IndexOnly=\"/a;/b\"", "indexing", "only these folders: /a;/b"},
        FieldCase{"IndexOnly=\"\"", "indexing", "only these folders: none named"},
        FieldCase{"IndexExcept=\"/a\"", "indexing", "all but these folders: /a"}};
    for (const auto& expected : cases)
    {
        const auto job = treeOf(std::string("<JobOptions ") + expected.attributes + "/>");
        EXPECT_EQ(at(job, expected.name).words, expected.words) << expected.attributes;
        EXPECT_EQ(at(job, expected.name).origin.line, 1) << expected.attributes;
    }
}

TEST(JobOptionsTree, TellsIndexingOfTheElement)
{
    const auto job =
        treeOf("<JobOptions IndexAll=\"true\">\n<Indexing\nType=\"IndexExcept\"\nFolders=\"/scratch\"/></JobOptions>");
    EXPECT_EQ(at(job, "indexing").words, "all but these folders: /scratch");
    EXPECT_EQ(at(job, "indexing").origin.line, 2);
    EXPECT_EQ(at(job, "indexing/type").value, "IndexExcept");
    EXPECT_EQ(at(job, "indexing/type").origin.line, 3);
    EXPECT_EQ(at(job, "indexing/folders").value, "/scratch");
    EXPECT_EQ(at(job, "indexing/folders").origin.line, 4);
}

TEST(JobOptionsTree, MarksWhatTheServersFormCannotCarry)
{
    const auto job = treeOf("<JobOptionsRoot><RetainCycles>3</RetainCycles></JobOptionsRoot>");
    for (const auto* path : {"snapshotMode", "retryTimeoutMs", "indexing/type", "gfsPolicy", "productSpecific",
                             "schedule", "schedule/jobStart/time"})
        EXPECT_TRUE(at(job, path).isNotCarried) << path;
    for (const auto* path : {"compression", "maxPoints", "maxDays", "deletedVmDataRetentionDays", "dedupEnabled"})
        EXPECT_FALSE(at(job, path).isNotCarried) << path;
    EXPECT_FALSE(at(treeOf("<JobOptions/>"), "snapshotMode").isNotCarried);
}

/// Whether the number counts is what the flag says.
TEST(JobOptionsTree, TellsWhatDecidedAboutDeletedDataInTheServersForm)
{
    const auto lineOf = [](const std::string& flag) {
        const auto job = treeOf("<JobOptionsRoot>\n" + flag + "\n<RetainDays>30</RetainDays></JobOptionsRoot>");
        return at(job, "deletedVmDataRetentionDays").origin.line;
    };
    EXPECT_EQ(lineOf("<EnableDeletedVmDataRetention>true</EnableDeletedVmDataRetention>"), 3);
    EXPECT_EQ(lineOf("<EnableDeletedVmDataRetention>false</EnableDeletedVmDataRetention>"), 2);
    EXPECT_EQ(lineOf(""), 0);
}

} // namespace
