#include <string>

#include <gtest/gtest.h>

#include "binary_pieces.h"
#include "show_case.h"
#include "support/run_command.h"

namespace
{

using zelmodel_test::bytesOf;
using zelmodel_test::counted;
using zelmodel_test::example;
using zelmodel_test::runCommand;

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

} // namespace
