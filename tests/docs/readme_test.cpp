#include <iostream>
#include <sstream>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "markdown.h"
#include "support/run_command.h"

#define main firstProgram
#include "../../docs/first_program.cpp"
#undef main

using namespace zelmodel_test;

namespace
{

constexpr const char* Ellipsis = "...";
constexpr const char* Prompt = "$ ";

std::vector<std::string> linesOf(const std::string& text)
{
    std::vector<std::string> lines;
    std::istringstream stream(text);
    for (std::string line; std::getline(stream, line);)
        lines.push_back(line);
    return lines;
}

/// A call of the command and what the page shows of its answer.
struct Call
{
    std::vector<std::string> arguments;
    std::vector<std::string> shown;
};

/// The command runs in the folder of the examples.
std::string withoutFolder(std::string text)
{
    const std::string folder = "examples/";
    for (auto at = text.find(folder); at != std::string::npos; at = text.find(folder))
        text.erase(at, folder.size());
    return text;
}

std::vector<Call> callsIn(const std::string& path)
{
    std::vector<Call> calls;
    for (const auto& part : partsOf(path))
    {
        if (part.info != "console")
            continue;
        bool isOurs = false;
        for (const auto& line : linesOf(withoutFolder(part.text)))
        {
            if (line.rfind(Prompt, 0) == 0)
            {
                std::istringstream words(line.substr(2));
                std::string word;
                words >> word;
                isOurs = word == "zelmodel";
                if (!isOurs)
                    continue;
                calls.emplace_back();
                while (words >> word)
                    calls.back().arguments.push_back(word);
            }
            else if (isOurs && !line.empty())
                calls.back().shown.push_back(line);
        }
    }
    return calls;
}

/// Whether the lines are the pattern's, where an ellipsis stands for one line or more.
bool matches(const std::vector<std::string>& pattern, const std::vector<std::string>& lines, std::size_t at = 0,
             std::size_t from = 0)
{
    if (at == pattern.size())
        return from == lines.size();
    if (pattern[at] != Ellipsis)
        return from < lines.size() && pattern[at] == lines[from] && matches(pattern, lines, at + 1, from + 1);
    for (std::size_t next = from + 1; next <= lines.size(); ++next)
    {
        if (matches(pattern, lines, at + 1, next))
            return true;
    }
    return false;
}

std::string joined(const std::vector<std::string>& items, char separator)
{
    std::string text;
    for (const auto& item : items)
        text += item + separator;
    return text;
}

} // namespace

TEST(Readme, TheCommandAnswersAsShown)
{
    const auto calls = callsIn("README.md");
    for (const auto& call : calls)
    {
        const auto result = runCommand(call.arguments);
        auto lines = linesOf(result.output + result.messages);
        if (call.shown.back().rfind("(exit status", 0) == 0)
            lines.push_back("(exit status " + std::to_string(result.exitCode) + ")");
        EXPECT_TRUE(matches(call.shown, lines)) << joined(call.arguments, ' ') << "\nshown:\n"
                                                << joined(call.shown, '\n') << "answered:\n"
                                                << joined(lines, '\n');
    }
    EXPECT_EQ(calls.size(), 7U);
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
