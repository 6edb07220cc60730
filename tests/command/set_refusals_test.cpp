#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "support/run_command.h"

namespace
{

using zelmodel_test::runCommand;

using Names = std::vector<std::string>;

struct RefusedCase
{
    std::vector<std::string> arguments;
    int exitCode;
    const char* messages;
};

TEST(SetRefusals, SayWhatIsWrong)
{
    for (const auto& [arguments, exitCode, messages] :
         {RefusedCase{{"nightly-file-server.xml", "maxDays=0"},
                      3,
                      "nightly-file-server.xml: refused\n  The field [maxDays] cannot be set to [0].\n  Number of days "
                      "for daily retention must be greater than 0.\n"},
          RefusedCase{{"nightly-file-server.xml", "maxDay=1"},
                      2,
                      "nightly-file-server.xml: There is no field [maxDay] that can be set. The nearest one is "
                      "[maxDays].\n"},
          RefusedCase{{"managing-server.xml", "maxDays=1"},
                      3,
                      "managing-server.xml:3: refused\n  The document is job options in the managing server's form, "
                      "which cannot be changed by this command.\n  Its twin in the agent's form can be.\n"},
          RefusedCase{{"object-storage.xml", "--fields"},
                      3,
                      "object-storage.xml:1: refused\n  The document is S3 parameters, which cannot be changed by this "
                      "command.\n  It changes job options in the agent's form, schedule options, a backup window and a "
                      "GFS policy.\n"},
          RefusedCase{
              {"refused/unknown-compression.xml", "compression=Lz4"},
              3,
              "refused/unknown-compression.xml:3: refused\n  BackupJobOptions: Converting from XML failed.\n  "
              "BackupJobOptions: Converting KIV Job options from XML failed.\n  Unable to convert string [Zstd12] to "
              "BackupJobCompression::type.\n"},
          RefusedCase{
              {"no-such-file.xml", "maxDays=1"}, 4, "no-such-file.xml: cannot be read: No such file or directory\n"}})
    {
        auto call = arguments;
        call.insert(call.begin(), "set");
        const auto result = runCommand(call);
        EXPECT_EQ(result.exitCode, exitCode);
        EXPECT_EQ(result.output, "");
        EXPECT_EQ(result.messages, messages);
    }
}

TEST(SetUsage, EndsWithTwo)
{
    for (const auto& arguments :
         {Names{}, Names{"gfs-policy.xml"}, Names{"gfs-policy.xml", "isEnabled"}, Names{"gfs-policy.xml", "=true"},
          Names{"gfs-policy.xml", "isEnabled=true", "--fields"}, Names{"-", "isEnabled=true", "--in-place"},
          Names{"gfs-policy.xml", "isEnabled=true", "--in-place", "-o", "x.xml"}})
    {
        auto call = arguments;
        call.insert(call.begin(), "set");
        const auto result = runCommand(call);
        EXPECT_EQ(result.exitCode, 2) << testing::PrintToString(arguments);
        EXPECT_EQ(result.output, "");
    }
}

} // namespace
