#include <ostream>
#include <string>

#include <gtest/gtest.h>

#include "show_case.h"
#include "support/run_command.h"

namespace
{

using zelmodel_test::example;
using zelmodel_test::runCommand;

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

} // namespace
