#include <initializer_list>
#include <ostream>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "show_case.h"
#include "support/run_command.h"

namespace
{

using zelmodel_test::example;
using zelmodel_test::runCommand;
using zelmodel_test::runCommandOnTerminal;

struct DumpCase
{
    const char* file;
    const char* output;
};

std::ostream& operator<<(std::ostream& stream, const DumpCase& test)
{
    return stream << test.file;
}

class DumpExamples : public testing::TestWithParam<DumpCase>
{
};

/// The same is told of the file and of its text on standard input.
TEST_P(DumpExamples, AreToldByteByByte)
{
    const std::string file = GetParam().file;
    for (const auto& result : {runCommand({"dump", file}), runCommand({"dump", "-"}, example(file))})
    {
        EXPECT_EQ(result.exitCode, 0);
        EXPECT_EQ(result.messages, "");
        EXPECT_EQ(result.output, GetParam().output);
    }
}

INSTANTIATE_TEST_SUITE_P(
    Forms, DumpExamples,
    testing::Values(
        DumpCase{"binary/key-bundle.b64",
                 "Key bundle: 298 bytes, from base64 text\n"
                 "Offset  Length  Field                  Value\n"
                 "     0      40  Identifier             e2a57c90-14fb-4b8d-9d36-05c8f1e6a742\n"
                 "    40       8  Number of key sets     2\n"
                 "    48     134  Key set 1\n"
                 "    48      40    Identifier           1f6c8a42-90d7-4e35-b3a8-62e5d4c7f019\n"
                 "    88       1    Version of the form  1\n"
                 "    89       4    Key set id           0A00FF\n"
                 "    93       4    Algorithm            0, the managing server's 1\n"
                 "    97       4    Role                 2, Storage\n"
                 "   101       8    Created              2024-03-06 12:34:56 UTC\n"
                 "   109       4    Nanoseconds          5\n"
                 "   113       9    Password hint        (hidden, 5 bytes)\n"
                 "   122       4    Number of keys       2\n"
                 "   126      36    Key 1                (hidden, 32 bytes)\n"
                 "   162      20    Key 2                (hidden, 16 bytes)\n"
                 "   182     116  Key set 2\n"
                 "   182      40    Identifier           84b0d3f9-2e61-47ca-8f15-d96c70ab31e5\n"
                 "   222       1    Version of the form  1\n"
                 "   223       7    Key set id           736974652D62 \"site-b\"\n"
                 "   230       4    Algorithm            1, the managing server's 2\n"
                 "   234       4    Role                 5, Password\n"
                 "   238       8    Created              2024-03-07 13:05:09 UTC\n"
                 "   246       4    Nanoseconds          0\n"
                 "   250       8    Password hint        (hidden, 4 bytes)\n"
                 "   258       4    Number of keys       1\n"
                 "   262      36    Key 1                (hidden, 32 bytes)\n"},
        DumpCase{"binary/password-derived-key.b64", "Password-derived key: 93 bytes, from base64 text\n"
                                                    "Offset  Length  Field                Value\n"
                                                    "     0       1  Version of the form  1\n"
                                                    "     1       7  Key set id           736974652D62 \"site-b\"\n"
                                                    "     8       4  Algorithm            1, the managing server's 2\n"
                                                    "    12       4  Role                 5, Password\n"
                                                    "    16       8  Created              2024-03-07 13:05:09 UTC\n"
                                                    "    24       4  Nanoseconds          0\n"
                                                    "    28       8  Password hint        (hidden, 4 bytes)\n"
                                                    "    36       4  Number of keys       1\n"
                                                    "    40      36  Key 1                (hidden, 32 bytes)\n"
                                                    "    76      17  Derivation           (hidden, 16 bytes)\n"},
        DumpCase{"binary/key-set.b64", "Key set: 76 bytes, from base64 text\n"
                                       "Offset  Length  Field                Value\n"
                                       "     0       1  Version of the form  1\n"
                                       "     1       7  Key set id           736974652D62 \"site-b\"\n"
                                       "     8       4  Algorithm            1, the managing server's 2\n"
                                       "    12       4  Role                 5, Password\n"
                                       "    16       8  Created              2024-03-07 13:05:09 UTC\n"
                                       "    24       4  Nanoseconds          0\n"
                                       "    28       8  Password hint        (hidden, 4 bytes)\n"
                                       "    36       4  Number of keys       1\n"
                                       "    40      36  Key 1                (hidden, 32 bytes)\n"},
        DumpCase{"binary/managing-server.b64", "Managing server: 158 bytes, from base64 text\n"
                                               "Offset  Length  Field         Value\n"
                                               "     0      40  Server        3c9a6e57-08b1-4d2f-bb60-917e4ad5c208\n"
                                               "    40      10  Name          Site B\n"
                                               "    50      13  DNS name      b.example\n"
                                               "    63       4  Description   none\n"
                                               "    67       8  Version       12.1\n"
                                               "    75       9  Platform      Linux\n"
                                               "    84      33  Endpoints     b.example:9392;[fe80::1]:9392\n"
                                               "   117       1  Trusted       yes\n"
                                               "   118      40  Installation  b1d04c7e-6a25-4f93-8e1b-7c3f52a9e604\n"},
        DumpCase{"binary/schedule-options.b64",
                 "Schedule options: 1278 bytes, from base64 text\n"
                 "Offset  Length  Field    Value\n"
                 "     0       1  Enabled  yes\n"
                 "     1       4  Type     1\n"
                 "     5    1273  Text     1269 bytes of XML\n"
                 "\n"
                 "   line  Schedule\n"
                 "      1    Start           starts Every last day of every month at 23:45\n"
                 "             In the log    Every last day of every month at 23 hours 45 minutes\n"
                 "      1    Active full     disabled, set to Every 1 day of every month\n"
                 "      1    Synthetic full  Every last day of months March, June, September, December\n"
                 "           Window          in a document of its own, if there is one\n"},
        DumpCase{"binary/job-start.b64", "Start of the job: 431 bytes, from base64 text\n"
                                         "Offset  Length  Field  Value\n"
                                         "     0     431  Text   427 bytes of XML\n"
                                         "\n"
                                         "   line  Schedule\n"
                                         "      1    Start         starts Every last day of every month at 23:45\n"
                                         "             In the log  Every last day of every month at 23 hours 45 "
                                         "minutes\n"},
        DumpCase{"binary/guid.b64", "GUID: 40 bytes, from base64 text\n"
                                    "Offset  Length  Field  Value\n"
                                    "     0      40  GUID   6f9619ff-8b86-d011-b42d-00cf4fc964ff\n"},
        DumpCase{"binary/cloud-client.txt", "Cloud client id: 50 bytes\n"
                                            "Offset  Length  Field                   Value\n"
                                            "     0      36  Client                  "
                                            "3c9a6e57-08b1-4d2f-bb60-917e4ad5c208\n"
                                            "    36       1  Mark of companion data  |\n"
                                            "    37      13  Companion data          site=B;rack=4\n"}));

std::string bytesOf(std::initializer_list<std::string> pieces)
{
    std::string bytes;
    for (const auto& piece : pieces)
        bytes += piece;
    return bytes;
}

/// A text with its length in front; at most 255 bytes.
std::string counted(const std::string& text)
{
    return std::string(1, static_cast<char>(text.size())) + std::string(3, '\0') + text;
}

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

TEST(DumpRefusal, TellsWhatIsThereAndWhatIsMissing)
{
    const auto whole = example("binary/managing-server.b64");
    const auto result = runCommand({"dump", "-"}, whole.substr(0, 121));
    EXPECT_EQ(result.exitCode, 3);
    EXPECT_EQ(result.messages, "standard input: refused\n"
                               "  No binary form reads the whole of it; the form managing-server comes nearest.\n"
                               "  Failed to retrieve value from the binary stream: received less bytes (2) than "
                               "expected (29).\n"
                               "  At offset 88: \"Endpoints\" announces 29 bytes, 2 are left.\n");
    EXPECT_EQ(result.output, "Managing server: 90 bytes, from base64 text\n"
                             "Offset  Length  Field        Value\n"
                             "     0      40  Server       3c9a6e57-08b1-4d2f-bb60-917e4ad5c208\n"
                             "    40      10  Name         (hidden, 6 bytes)\n"
                             "    50      13  DNS name     (hidden, 9 bytes)\n"
                             "    63       4  Description  none\n"
                             "    67       8  Version      (hidden, 4 bytes)\n"
                             "    75       9  Platform     (hidden, 5 bytes)\n"
                             "    84       6  Endpoints    (2 of 29 bytes are there)\n");
    const auto named = runCommand({"dump", "-", "--kind", "managing-server"}, whole.substr(0, 121));
    EXPECT_EQ(named.exitCode, 3);
    EXPECT_NE(named.output.find("    40      10  Name         Site B\n"), std::string::npos);
}

TEST(DumpRefusal, TellsALengthThatLies)
{
    const auto result = runCommand(
        {"dump", "-"}, bytesOf({counted("e2a57c90-14fb-4b8d-9d36-05c8f1e6a742"), std::string("\1\0\0\0\0\0\0\0", 8),
                                "\xFF\xFF\xFF\xFF"
                                "0123456789AB"}));
    EXPECT_EQ(result.exitCode, 3);
    EXPECT_EQ(result.messages,
              "standard input: refused\n"
              "  No binary form reads the whole of it; the form key-bundle comes nearest.\n"
              "  Failed to retrieve value from the binary stream: received less bytes (12) than "
              "expected (4294967295).\n"
              "  At offset 52: \"Identifier of key set 1\" announces 4294967295 bytes, 12 are left.\n");
}

TEST(DumpRefusal, TellsTheChainOfAScheduleASentenceALine)
{
    std::string text = "<Schedule Version=\"4\" IsEnabled=\"true\"/>";
    const auto result = runCommand({"dump", "-"}, bytesOf({std::string("\1\1\0\0\0", 5), counted(text)}));
    EXPECT_EQ(result.exitCode, 3);
    EXPECT_EQ(result.messages, "standard input: refused\n"
                               "  No binary form reads the whole of it; the form schedule-options comes nearest.\n"
                               "  ScheduleOptions: Failed to deserialize.\n"
                               "  ScheduleOptions: Failed to deserialize from Xml.\n"
                               "  CStartJobScheduleOptions: Failed to deserialize from Xml.\n"
                               "  Unknown version: [4].\n"
                               "  At offset 5: \"Text\".\n");
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

TEST(DumpJson, TellsARefusalAndWhatWasRead)
{
    const auto result = runCommand({"dump", "-", "--json"}, std::string("\x24\0\0\0"
                                                                        "6f96",
                                                                        8));
    EXPECT_EQ(result.exitCode, 3);
    EXPECT_EQ(result.messages, "");
    EXPECT_EQ(result.output, R"json({
  "kind": "error",
  "schema": 1,
  "file": "standard input",
  "form": "key-bundle",
  "base64": false,
  "bytes": 8,
  "offset": 4,
  "field": "Identifier",
  "refused": [
    "No binary form reads the whole of it; the form key-bundle comes nearest.",
    "Failed to retrieve value from the binary stream: received less bytes (4) than expected (36).",
    "At offset 4: \"Identifier\" announces 36 bytes, 4 are left."
  ],
  "fields": {
    "id": {
      "offset": 0,
      "length": 8,
      "words": "(4 of 36 bytes are there)",
      "missing": 32
    }
  }
}
)json");
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

TEST(DumpTerminal, IsTheSameTableInEveryWidth)
{
    for (const auto width : std::vector<unsigned short>{40, 200})
    {
        const auto result = runCommandOnTerminal({"dump", "binary/guid.b64"}, width);
        EXPECT_EQ(result.exitCode, 0);
        EXPECT_EQ(result.output, "\x1b[1mGUID: 40 bytes, from base64 text\x1b[0m\r\n"
                                 "Offset  Length  Field  Value\r\n"
                                 "     0      40  GUID   6f9619ff-8b86-d011-b42d-00cf4fc964ff\r\n");
    }
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
