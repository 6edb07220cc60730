#include <filesystem>
#include <string>

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include "support/run_command.h"

namespace
{

using nlohmann::json;
using zelmodel_test::runCommand;
using zelmodel_test::runCommandOnTerminal;

TEST(Json, ShowHasOneEnvelope)
{
    const auto result = runCommand({"show", "--json", "older/job-state-version-1.xml"});
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_EQ(result.messages, "");
    EXPECT_EQ(result.output, R"({
  "kind": "document",
  "schema": 1,
  "file": "older/job-state-version-1.xml",
  "backupJobState": {
    "words": "in the layout of version 1",
    "line": 2,
    "readFrom": "BackupJobState",
    "fields": {
      "objectStorageOperationMode": {
        "value": 3,
        "words": "number 3",
        "line": 2,
        "readFrom": "ObjectStorageBackupMode",
        "olderForm": true
      }
    }
  }
}
)");
}

TEST(Json, EveryExampleIsOneDocument)
{
    for (const auto& entry : std::filesystem::recursive_directory_iterator(ZELMODEL_EXAMPLES_DIR))
    {
        if (entry.path().extension() != ".xml")
            continue;
        const bool isRefused = entry.path().parent_path().filename() == "refused";
        const auto result = runCommand({"show", entry.path().string(), "--json"});
        const auto document = json::parse(result.output);
        EXPECT_EQ(result.exitCode, isRefused ? 3 : 0) << entry.path();
        EXPECT_EQ(document["kind"], isRefused ? "error" : "document") << entry.path();
        EXPECT_EQ(document["schema"], 1);
        EXPECT_EQ(document["file"], entry.path().string());
        EXPECT_EQ(document.contains("refused"), isRefused) << entry.path();
        EXPECT_EQ(result.messages, "");
    }
}

TEST(Json, RefusalsAndFailuresToo)
{
    const auto refused = runCommand({"show", "-", "--json"}, "<JobOptions\n Compression=\"Lz5\"/>");
    EXPECT_EQ(refused.exitCode, 3);
    EXPECT_EQ(refused.messages, "");
    EXPECT_EQ(refused.output, R"({
  "kind": "error",
  "schema": 1,
  "file": "standard input",
  "line": 2,
  "refused": [
    "BackupJobOptions: Converting from XML failed.",
    "BackupJobOptions: Converting KIV Job options from XML failed.",
    "Unable to convert string [Lz5] to BackupJobCompression::type."
  ]
}
)");
    const auto missing = runCommand({"next", "--json", "no-such-file.xml"});
    EXPECT_EQ(missing.exitCode, 4);
    EXPECT_EQ(missing.messages, "");
    EXPECT_EQ(missing.output, R"({
  "kind": "error",
  "schema": 1,
  "file": "no-such-file.xml",
  "failed": "cannot be read: No such file or directory"
}
)");
}

TEST(Json, WrongCallsToo)
{
    const auto unknown = runCommand({"show", "--json", "--no-such-option", "gfs-policy.xml"});
    EXPECT_EQ(unknown.exitCode, 2);
    EXPECT_EQ(unknown.messages, "");
    EXPECT_EQ(unknown.output, R"({
  "kind": "error",
  "schema": 1,
  "file": "",
  "usage": "The following argument was not expected: --no-such-option"
}
)");
    const std::vector<std::string> calls[] = {{"why", "gfs-policy.xml", "--json"},
                                              {"next", "continuous.xml", "--json", "--ical"},
                                              {"check", "continuous.xml", "--json", "--sarif"},
                                              {"log", "a.log", "--json", "--json-lines"},
                                              {"no-such-command", "--json"}};
    for (const auto& call : calls)
    {
        const auto result = runCommand(call);
        EXPECT_EQ(result.exitCode, 2) << testing::PrintToString(call);
        EXPECT_EQ(result.messages, "");
        EXPECT_EQ(json::parse(result.output)["kind"], "error");
        EXPECT_NE(json::parse(result.output)["usage"], "");
    }
}

TEST(Json, MalformedUtf8IsReplaced)
{
    const auto result = runCommand({"show", "--json", "-"}, "<OracleConfig username=\"a\xff\xc3\"/>");
    const auto document = json::parse(result.output);
    EXPECT_EQ(document["schema"], 1);
    const auto refused = runCommand({"show", "--json", "-"}, "<JobOptions Compression=\"a\xff\xc3\"/>");
    EXPECT_EQ(refused.exitCode, 3);
    EXPECT_EQ(json::parse(refused.output)["refused"][2],
              "Unable to convert string [a\xef\xbf\xbd\xef\xbf\xbd] to BackupJobCompression::type.");
}

TEST(Json, ControlCharactersStandEscaped)
{
    const auto result = runCommand({"show", "--json", "-"}, "<root type=\"1\" value=\"a&#9;b&#10;\"/>");
    EXPECT_EQ(result.output.find('\t'), std::string::npos);
}

TEST(Json, SecretsOnlyWhenRevealed)
{
    const auto hidden = runCommand({"show", "--json", "object-storage.xml"});
    EXPECT_EQ(hidden.output.find("not-a-real"), std::string::npos);
    EXPECT_NE(hidden.output.find("(hidden, 28 characters)"), std::string::npos);
    for (const auto& arguments : {std::vector<std::string>{"show", "--json", "--reveal", "object-storage.xml"},
                                  std::vector<std::string>{"show", "--reveal", "object-storage.xml"}})
    {
        const auto revealed = runCommand(arguments);
        EXPECT_EQ(revealed.exitCode, 0);
        EXPECT_NE(revealed.output.find("not-a-real"), std::string::npos);
        EXPECT_EQ(revealed.output.find("(hidden"), std::string::npos);
    }
}

TEST(Json, IsTheSameOnATerminal)
{
    const auto piped = runCommand({"show", "--json", "gfs-policy.xml"});
    auto shown = runCommandOnTerminal({"show", "--json", "gfs-policy.xml"}, 40).output;
    for (auto at = shown.find('\r'); at != std::string::npos; at = shown.find('\r'))
        shown.erase(at, 1);
    EXPECT_EQ(shown, piped.output);
}

TEST(Plain, NoColorIsAnOptionToo)
{
    const auto result = runCommandOnTerminal({"show", "--no-color", "gfs-policy.xml"}, 200);
    EXPECT_EQ(result.output.find('\x1b'), std::string::npos) << result.output;
    EXPECT_NE(runCommandOnTerminal({"show", "gfs-policy.xml"}, 200).output.find('\x1b'), std::string::npos);
}

} // namespace
