#include <csignal>
#include <filesystem>
#include <sstream>
#include <string>
#include <vector>

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include "support/gzip_bytes.h"
#include "support/run_command.h"
#include "support/running_command.h"
#include "support/temporary_folder.h"

namespace
{

using nlohmann::json;
using zelmodel_test::gzipBytes;
using zelmodel_test::runCommand;
using zelmodel_test::RunningCommand;
using zelmodel_test::TemporaryFolder;

const std::string Start = "2024-03-07 13:05:09 UTC 5f0c2b7a-91d4-4e38-8a66-0d3be1f7c295 info ";

std::vector<json> jsonLines(const std::string& text)
{
    std::vector<json> objects;
    std::istringstream stream(text);
    for (std::string line; std::getline(stream, line);)
        objects.push_back(json::parse(line));
    return objects;
}

TEST(LogJson, IsOneDocumentWithTheSummary)
{
    const auto result = runCommand({"log", "logs/nightly.log", "--json", "--skipped", "--severity", "warn"});
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_EQ(result.messages, "");
    const auto document = json::parse(result.output);
    EXPECT_EQ(document["kind"], "log");
    EXPECT_EQ(document["schema"], 1);
    EXPECT_EQ(document["file"], "logs/nightly.log");
    ASSERT_EQ(document["sessions"]["items"].size(), 1U);
    const auto& fields = document["sessions"]["items"][0]["fields"];
    EXPECT_EQ(fields["id"]["value"], "b1d04c7e-6a25-4f93-8e1b-7c3f52a9e604");
    EXPECT_EQ(fields["first"]["value"], "2024-03-07 22:41:17 UTC");
    EXPECT_EQ(fields["duration"]["value"], 1365);
    EXPECT_EQ(fields["duration"]["words"], "00:22:45");
    EXPECT_EQ(fields["warn"]["value"], 1);
    EXPECT_EQ(fields["worst"]["value"], "error");
    EXPECT_EQ(document["files"], json::parse(R"([{"file": "logs/nightly.log", "lines": 11, "records": 8, "told": 2,
                                                  "empty": 1, "skipped": 2}])"));
    EXPECT_EQ(document["skipped"], json::parse(R"([
        {"file": "logs/nightly.log", "line": 6, "reason": "Line [Log of the service restarted] is skipped."},
        {"file": "logs/nightly.log", "line": 8, "reason": "Invalid severity value string [Warn]."}])"));
    EXPECT_EQ(document.count("errors"), 0U);
}

TEST(LogJson, ListsTheFirstThousandSkippedLinesAndCountsAll)
{
    std::string input;
    for (int i = 0; i < 1500; ++i)
        input += "no record\n";
    const auto document = json::parse(runCommand({"log", "-", "--json", "--skipped"}, input).output);
    EXPECT_EQ(document["skipped"].size(), 1000U);
    EXPECT_EQ(document["files"][0]["skipped"], 1500);
    EXPECT_EQ(json::parse(runCommand({"log", "-", "--json"}, input).output).count("skipped"), 0U);
}

TEST(LogJson, LongReasonsAreShortened)
{
    const auto document =
        json::parse(runCommand({"log", "-", "--json", "--skipped"}, std::string(60000, 'y') + "\n").output);
    EXPECT_LT(document["skipped"][0]["reason"].get<std::string>().size(), 600U);
}

TEST(LogJson, FailuresStandInTheDocument)
{
    const auto result = runCommand({"log", "logs/nightly.log", "missing.log", "--json"});
    EXPECT_EQ(result.exitCode, 4);
    EXPECT_EQ(result.messages, "");
    const auto document = json::parse(result.output);
    EXPECT_EQ(document["errors"],
              json::parse(R"([{"file": "missing.log", "failed": "cannot be read: No such file or directory"}])"));
    EXPECT_EQ(document["sessions"]["items"].size(), 2U);
}

TEST(LogJson, WhereNothingCouldBeReadItIsAnError)
{
    const auto result = runCommand({"log", "missing.log", "--json"});
    EXPECT_EQ(result.exitCode, 4);
    EXPECT_EQ(json::parse(result.output), json::parse(R"({"kind": "error", "schema": 1, "file": "missing.log",
                                                          "failed": "cannot be read: No such file or directory"})"));
}

TEST(LogJsonLines, AreOneObjectForEachRecord)
{
    const auto objects = jsonLines(
        runCommand({"log", "logs/nightly.log", "missing.log", "--json-lines", "--skipped", "--severity", "error"})
            .output);
    ASSERT_EQ(objects.size(), 5U);
    EXPECT_EQ(objects[0]["kind"], "skipped");
    EXPECT_EQ(objects[1], json::parse(R"({"kind": "skipped", "schema": 1, "file": "logs/nightly.log", "line": 8,
                                          "reason": "Invalid severity value string [Warn]."})"));
    EXPECT_EQ(objects[2], json::parse(R"({"kind": "record", "schema": 1, "file": "logs/nightly.log", "line": 10,
                                          "time": "2024-03-07 23:04:02 UTC",
                                          "session": "b1d04c7e-6a25-4f93-8e1b-7c3f52a9e604", "severity": "error",
                                          "message": "No space left on the repository"})"));
    EXPECT_EQ(objects[3],
              json::parse(R"({"kind": "end", "schema": 1, "file": "logs/nightly.log", "lines": 11, "records": 8,
                                          "told": 1, "empty": 1, "skipped": 2})"));
    EXPECT_EQ(objects[4], json::parse(R"({"kind": "error", "schema": 1, "file": "missing.log",
                                          "failed": "cannot be read: No such file or directory"})"));
}

TEST(LogJsonLines, TellWhatBecomesOfAFollowedFile)
{
    const TemporaryFolder folder;
    const auto name = folder.write("job.log", Start + "one, which is longer than what comes after it\n");
    RunningCommand command({"log", name, "--follow", "--json-lines"});
    command.outputWith("after it");
    std::filesystem::resize_file(name, 0);
    command.outputWith("truncated");
    std::filesystem::rename(name, folder / "job.log.1");
    folder.write("job.log", Start + "two\n");
    command.outputWith("two");
    command.signal(SIGTERM);
    std::vector<json> changes;
    for (const auto& object : jsonLines(command.end().output))
    {
        if (object["kind"] == "truncated" || object["kind"] == "replaced")
            changes.push_back(object);
    }
    EXPECT_EQ(changes, (std::vector<json>{{{"kind", "truncated"}, {"schema", 1}, {"file", name}},
                                          {{"kind", "replaced"}, {"schema", 1}, {"file", name}}}));
}

TEST(LogJson, ARefusedFileStandsAmongTheErrors)
{
    const TemporaryFolder folder;
    const auto whole = gzipBytes(Start + "one\n");
    const auto cut = folder.write("cut.gz", whole.substr(0, whole.size() - 1));
    const auto sentence = "The compressed data end too early, at byte " + std::to_string(whole.size() - 1) + ".";
    const json error{{"file", cut}, {"refused", {sentence}}};

    const auto result = runCommand({"log", cut, "--json"});
    EXPECT_EQ(result.exitCode, 3);
    EXPECT_EQ(json::parse(result.output)["errors"], json::array({error}));
    // Two failures and nothing that was read: no file of the call is the one that failed.
    const auto none = json::parse(runCommand({"log", "missing.log", "missing-too.log", "--json"}).output);
    EXPECT_EQ(none["kind"], "log");
    EXPECT_EQ(none["errors"].size(), 2U);
    EXPECT_EQ(none["files"].size(), 0U);

    const auto lines = jsonLines(runCommand({"log", cut, "--json-lines"}).output);
    ASSERT_EQ(lines.size(), 3U);
    json line = error;
    line["kind"] = "error";
    line["schema"] = 1;
    EXPECT_EQ(lines.back(), line);
}

TEST(LogJsonLines, MalformedTextIsReplaced)
{
    const auto objects = jsonLines(
        runCommand({"log", "-", "--json-lines", "--skipped"}, Start + "a\xff\x1b" + "b\nno \xfe record\n").output);
    ASSERT_EQ(objects.size(), 3U);
    EXPECT_EQ(objects[0]["message"], "a\xef\xbf\xbd\x1b"
                                     "b");
    EXPECT_EQ(objects[1]["reason"], "Line [no \xef\xbf\xbd record] is skipped.");
}

} // namespace
