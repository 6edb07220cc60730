#include <string>
#include <vector>

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include "binary_pieces.h"
#include "support/run_command.h"

namespace
{

using zelmodel_test::bytesOf;
using zelmodel_test::counted;
using zelmodel_test::runCommand;
using zelmodel_test::runCommandOnTerminal;

std::string serverNamed(const std::string& name)
{
    return bytesOf({counted(""), counted(name), counted(""), counted(""), counted(""), counted(""), counted(""),
                    std::string(1, '\0'), counted("")});
}

TEST(DumpKinds, AreListed)
{
    const auto result = runCommand({"dump", "--kind", "help"});
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_EQ(result.messages, "");
    EXPECT_EQ(result.output, "key-bundle            Key bundle\n"
                             "key-set               Key set\n"
                             "password-derived-key  Password-derived key\n"
                             "managing-server       Managing server\n"
                             "schedule-options      Schedule options\n"
                             "job-start             Start of the job\n"
                             "guid                  GUID\n"
                             "cloud-client          Cloud client id\n"
                             "text                  Text (only when it is named)\n");
}

TEST(DumpKinds, CanBeNamed)
{
    const auto text = runCommand({"dump", "binary/text.b64", "--kind", "text"});
    EXPECT_EQ(text.exitCode, 0);
    EXPECT_EQ(text.output, "Text: 13 bytes, from base64 text\n"
                           "Offset  Length  Field  Value\n"
                           "     0      13  Text   /srv/data\n");
    const auto wrong = runCommand({"dump", "binary/guid.b64", "--kind", "key-set"});
    EXPECT_EQ(wrong.exitCode, 3);
    EXPECT_EQ(wrong.output, "Key set: 40 bytes, from base64 text\n"
                            "Offset  Length  Field                Value\n"
                            "     0       1  Version of the form  36\n");
    EXPECT_EQ(wrong.messages, "binary/guid.b64: refused\n"
                              "  Key set form version [36] is not known.\n"
                              "  At offset 0: \"Version of the form\".\n");
}

TEST(DumpUsage, EndsWithTwo)
{
    for (const auto& call :
         {std::vector<std::string>{"dump"}, std::vector<std::string>{"dump", "--kind", "key"},
          std::vector<std::string>{"dump", "-", "--kind"}, std::vector<std::string>{"dump", "-", "binary/guid.b64"},
          std::vector<std::string>{"dump", "-", "--kind", "\x1b[31m"}})
    {
        const auto result = runCommand(call);
        EXPECT_EQ(result.exitCode, 2);
        EXPECT_EQ(result.output, "");
        EXPECT_EQ(result.messages.find("zelmodel: "), 0U);
        EXPECT_EQ(result.messages.find('\x1b'), std::string::npos);
    }
    EXPECT_EQ(runCommand({"dump", "-", "--kind", "key"}).messages,
              "zelmodel: --kind: [key] is no kind; --kind help lists them\nRun with --help for more information.\n");
}

TEST(DumpJson, TellsTheSameAsTheTable)
{
    const auto result = runCommand({"dump", "binary/guid.b64", "--json"});
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_EQ(result.output, R"({
  "kind": "dump",
  "schema": 1,
  "file": "binary/guid.b64",
  "form": "guid",
  "base64": true,
  "bytes": 40,
  "fields": {
    "id": {
      "offset": 0,
      "length": 40,
      "value": "6f9619ff-8b86-d011-b42d-00cf4fc964ff",
      "words": "6f9619ff-8b86-d011-b42d-00cf4fc964ff"
    }
  }
}
)");
}

TEST(DumpJson, HoldsTheDocumentInsideAsATree)
{
    const auto result = runCommand({"dump", "binary/schedule-options.b64", "--json"});
    EXPECT_EQ(result.exitCode, 0);
    const auto text = nlohmann::json::parse(result.output).at("fields").at("text");
    EXPECT_EQ(text.at("words"), "1269 bytes of XML");
    const auto& start = text.at("document").at("fields").at("jobStart");
    EXPECT_EQ(start.at("words"), "starts Every last day of every month at 23:45");
    EXPECT_EQ(start.at("fields").at("time").at("value"), "23:45");
    // A number holds no document.
    EXPECT_EQ(nlohmann::json::parse(result.output).at("fields").at("scheduleType").count("document"), 0U);
}

TEST(DumpJson, HidesSecrets)
{
    const auto result = runCommand({"dump", "binary/key-set.b64", "--json"});
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_NE(result.output.find(R"json(    "creationTime": {
      "offset": 16,
      "length": 8,
      "value": 1709816709,
      "words": "2024-03-07 13:05:09 UTC"
    },)json"),
              std::string::npos)
        << result.output;
    EXPECT_NE(result.output.find(R"json(    "keys": {
      "offset": 40,
      "length": 36,
      "items": [
        {
          "offset": 40,
          "length": 36,
          "words": "(hidden, 32 bytes)",
          "secret": true
        }
      ]
    })json"),
              std::string::npos)
        << result.output;
}

TEST(DumpText, EscapesWhatActsOnATerminal)
{
    const auto result = runCommand({"dump", "-"}, serverNamed("a\x1b[31m\n\xFF"));
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_NE(result.output.find("  Name          a\\x1b[31m\\n\\xff\n"), std::string::npos) << result.output;
    const auto json = runCommand({"dump", "-", "--json"}, serverNamed("a\x1b\xFF"));
    EXPECT_EQ(json.exitCode, 0);
    EXPECT_NE(json.output.find("\"value\": \"a\\u001b\xEF\xBF\xBD\""), std::string::npos) << json.output;
}

TEST(DumpSecretsInTheExamples, AreShownWhenAsked)
{
    // "not-a-real-key-of-32-bytes-----1" in hexadecimal digits.
    const std::string key = "6e6f742d612d7265616c2d6b65792d6f662d33322d62797465732d2d2d2d2d31";
    const auto hidden = runCommand({"dump", "binary/key-set.b64"});
    EXPECT_EQ(hidden.output.find(key), std::string::npos);
    EXPECT_EQ(hidden.output.find("blue"), std::string::npos);
    const auto shown = runCommand({"dump", "binary/key-set.b64", "--reveal"});
    EXPECT_NE(shown.output.find("  Key 1                " + key + "\n"), std::string::npos) << shown.output;
    EXPECT_NE(shown.output.find("  Password hint        blue\n"), std::string::npos);
}

TEST(DumpTerminal, TellsBelowTheRowWhatHasNoRoomInIt)
{
    const auto wide = runCommandOnTerminal({"dump", "binary/guid.b64"}, 200);
    EXPECT_EQ(wide.exitCode, 0);
    EXPECT_EQ(wide.output, "\x1b[1mGUID: 40 bytes, from base64 text\x1b[0m\r\n"
                           "Offset  Length  Field  Value\r\n"
                           "     0      40  GUID   6f9619ff-8b86-d011-b42d-00cf4fc964ff\r\n");
    const auto narrow = runCommandOnTerminal({"dump", "binary/guid.b64"}, 40);
    EXPECT_EQ(narrow.exitCode, 0);
    EXPECT_EQ(narrow.output, "\x1b[1mGUID: 40 bytes, from base64 text\x1b[0m\r\n"
                             "Offset  Length  Field\r\n"
                             "     0      40  GUID\r\n"
                             "    Value: 6f9619ff-8b86-d011-b42d-00cf4fc964ff\r\n");
}

TEST(DumpInput, ThatCannotBeRead)
{
    const auto result = runCommand({"dump", "no-such-file"});
    EXPECT_EQ(result.exitCode, 4);
    EXPECT_EQ(result.messages, "no-such-file: cannot be read: No such file or directory\n");
}

TEST(DumpInput, LargerThanAnyFormIsRefused)
{
    const auto result = runCommand({"dump", "-"}, std::string(1024UL * 1024 + 1, 'A'));
    EXPECT_EQ(result.exitCode, 3);
    EXPECT_EQ(result.messages, "standard input: refused\n  The document is larger than 1048576 bytes.\n");
    EXPECT_EQ(result.output, "");
}

} // namespace
