#include <string>

#include <gtest/gtest.h>

#include "show_case.h"
#include "support/run_command.h"

namespace
{

using zelmodel_test::example;
using zelmodel_test::runCommand;

TEST(Diff, TheSameDocumentGivesNothing)
{
    const auto result = runCommand({"diff", "nightly-file-server.xml", "nightly-file-server.xml"});
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_EQ(result.output, "");
    EXPECT_EQ(result.messages, "");
}

} // namespace
