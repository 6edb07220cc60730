#include <iostream>
#include <sstream>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "console_calls.h"
#include "markdown.h"
#include "support/run_command.h"

#define main firstProgram
#include "../../docs/first_program.cpp"
#undef main

using namespace zelmodel_test;

TEST(Readme, TheCommandAnswersAsShown)
{
    EXPECT_EQ(zelmodel_test::expectAnswersAsShown("README.md"), 4U);
}

TEST(CommandPage, TheCommandAnswersAsShown)
{
    EXPECT_GT(zelmodel_test::expectAnswersAsShown("docs/command.md"), 30U);
}

TEST(Readme, ShowsTheFirstProgram)
{
    int count = 0;
    for (const auto& part : partsOf("README.md"))
    {
        if (part.info != "cpp")
            continue;
        EXPECT_EQ(part.text, projectFile("docs/first_program.cpp"));
        ++count;
    }
    EXPECT_EQ(count, 1);
}

TEST(Readme, TheFirstProgramAnswersAsShown)
{
    const auto run = [](const std::string& input, std::ostream& stream) {
        std::istringstream in(input);
        std::ostringstream out;
        auto* const oldIn = std::cin.rdbuf(in.rdbuf());
        auto* const oldOut = stream.rdbuf(out.rdbuf());
        const int code = firstProgram();
        std::cin.rdbuf(oldIn);
        stream.rdbuf(oldOut);
        return std::to_string(code) + ' ' + out.str();
    };
    const std::string shown = "14 days are kept; starts: Every day at 22 hours 30 minutes\n";
    EXPECT_EQ(run(projectFile("examples/nightly-file-server.xml"), std::cout), "0 " + shown);
    EXPECT_NE(projectFile("README.md").find("$ ./first_program < examples/nightly-file-server.xml\n" + shown),
              std::string::npos);
    EXPECT_EQ(run("<JobOptions MaxDays='x'/>", std::cerr),
              "1 BackupJobOptions: Converting from string [<JobOptions MaxDays='x'/>] failed. BackupJobOptions: "
              "Converting from XML failed. BackupJobOptions: Converting KIV Job options from XML failed. Unable to "
              "convert string [x] to [unsigned long].\n");
}
