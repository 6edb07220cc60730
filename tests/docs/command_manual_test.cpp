#include <regex>
#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "markdown.h"
#include "support/run_command.h"

using namespace zelmodel_test;

namespace
{

constexpr const char* Page = "docs/command.md";

using Arguments = std::vector<std::string>;

struct PrintedFile
{
    const char* path;
    Arguments call;
};

const PrintedFile PrintedFiles[] = {{"man/zelmodel.1", {"man"}},
                                    {"completions/zelmodel.bash", {"completion", "bash"}},
                                    {"completions/_zelmodel", {"completion", "zsh"}},
                                    {"completions/zelmodel.fish", {"completion", "fish"}}};

std::string manualPage()
{
    return runCommand({"man"}).output;
}

/// The page without what roff needs.
std::string plain(const std::string& roff)
{
    auto text = std::regex_replace(roff, std::regex(R"(\\f[BIR]|\\&)"), "");
    text = std::regex_replace(text, std::regex(R"(\\\(dq)"), "\"");
    return std::regex_replace(text, std::regex(R"(\\-)"), "-");
}

/// The lines of the manual page between a heading and the next one.
std::string sectionOf(const std::string& title)
{
    const auto page = manualPage();
    const auto begin = page.find(".SH " + title + '\n');
    EXPECT_NE(begin, std::string::npos) << title;
    return begin == std::string::npos ? "" : page.substr(begin, page.find("\n.SH ", begin) + 1 - begin);
}

/// A chapter of the page on the command: a heading with its text, tables included.
std::string chapterOf(const std::string& command)
{
    const auto page = projectFile(Page);
    const auto begin = page.find("\n## `" + command + "`");
    return begin == std::string::npos ? "" : page.substr(begin, page.find("\n## ", begin + 1) - begin);
}

/// Whether the chapter has one of the names of an option, "-o FILE, --output FILE", as code.
bool isNamed(const std::string& term, const std::string& chapter)
{
    const std::regex name(R"((^|, )(-[\w-]+))");
    for (std::sregex_iterator found(term.begin(), term.end(), name), end; found != end; ++found)
    {
        if (std::regex_search(chapter, std::regex('`' + (*found)[2].str() + "[ `]")))
            return true;
    }
    return false;
}

} // namespace

TEST(Manual, TheFilesAreAsTheCommandPrintsThem)
{
    for (const auto& [path, call] : PrintedFiles)
    {
        const auto printed = runCommand(call);
        EXPECT_EQ(printed.exitCode, 0) << path;
        EXPECT_EQ(printed.messages, "") << path;
        EXPECT_EQ(projectFile(path), printed.output) << "write it anew with ./dev generate";
    }
}

TEST(Manual, HasTheVersionOfTheCommand)
{
    const auto version = runCommand({"--version"}).output;
    EXPECT_EQ(version, "zelmodel " ZELMODEL_VERSION "\n");
    EXPECT_EQ(manualPage().rfind(".TH ZELMODEL 1 2026-11-22 \"zelmodel " ZELMODEL_VERSION "\" \"User Commands\"\n", 0),
              0U);
}

TEST(Manual, HasTheExitStatusesOfThePage)
{
    std::string expected = ".SH EXIT STATUS\nOf several files, the worst status wins.\n";
    int count = 0;
    for (const auto& part : partsOf(Page))
    {
        if (part.kind != EPart::Table || part.rows.front().front() != "Exit status")
            continue;
        for (auto row = part.rows.begin() + 1; row != part.rows.end(); ++row, ++count)
            expected += ".TP\n\\fB" + row->at(0) + "\\fR\n" + row->at(1) + ".\n";
    }
    EXPECT_EQ(count, 6);
    EXPECT_EQ(sectionOf("EXIT STATUS"), expected);
}

TEST(Manual, EveryCommandAndOptionIsOnThePage)
{
    const auto commands = plain(sectionOf("COMMANDS"));
    const std::regex wanted(R"(\n\.SS zelmodel (\w+)|\n\.TP\n(-[^\n]*))");
    std::string chapter;
    int options = 0;
    for (std::sregex_iterator found(commands.begin(), commands.end(), wanted), end; found != end; ++found)
    {
        if ((*found)[1].matched)
        {
            chapter = chapterOf((*found)[1]);
            EXPECT_NE(chapter, "") << (*found)[1];
            continue;
        }
        EXPECT_TRUE(isNamed((*found)[2], chapter)) << (*found)[2] << chapter.substr(0, chapter.find('\n', 1));
        ++options;
    }
    EXPECT_GT(options, 60);
}

TEST(Manual, ItsExamplesAreRight)
{
    const auto examples = plain(sectionOf("EXAMPLES"));
    const std::regex call(R"(\n\.TP\nzelmodel ([^\n]*))");
    const std::vector<std::pair<std::string, std::string>> files{{"job.xml", "nightly-file-server.xml"},
                                                                 {"other.xml", "weekly-with-monthly-fulls-and-gfs.xml"},
                                                                 {"window.xml", "periodical-window.xml"},
                                                                 {"session.log", "logs/nightly.log"}};
    int count = 0;
    for (std::sregex_iterator found(examples.begin(), examples.end(), call), end; found != end; ++found, ++count)
    {
        Arguments words;
        const std::string line = (*found)[1];
        const std::regex word("\"([^\"]*)\"|(\\S+)");
        for (std::sregex_iterator one(line.begin(), line.end(), word), last; one != last; ++one)
        {
            words.push_back((*one)[1].matched ? (*one)[1] : (*one)[2]);
            for (const auto& [name, example] : files)
            {
                if (words.back() == name)
                    words.back() = example;
            }
        }
        const auto result = runCommand(words);
        EXPECT_LT(result.exitCode, 2) << line << '\n' << result.messages;
    }
    EXPECT_EQ(count, 8);
}

TEST(Manual, BothCommandsAnswerAsJsonToo)
{
    const auto page = runCommand({"man", "--json"}).output;
    EXPECT_EQ(
        page.rfind("{\n  \"kind\": \"man\",\n  \"schema\": 1,\n  \"file\": \"\",\n  \"text\": \".TH ZELMODEL 1 ", 0),
        0U)
        << page;
    const auto script = runCommand({"completion", "zsh", "--json"}).output;
    EXPECT_EQ(
        script.rfind("{\n  \"kind\": \"completion\",\n  \"schema\": 1,\n  \"file\": \"\",\n  \"shell\": \"zsh\",\n"
                     "  \"text\": \"#compdef zelmodel\\n",
                     0),
        0U)
        << script;
}

TEST(Manual, AnUnknownShellIsAWrongCall)
{
    for (const auto& call : {Arguments{"completion"}, Arguments{"completion", "ksh"}, Arguments{"man", "job"}})
    {
        const auto result = runCommand(call);
        EXPECT_EQ(result.exitCode, 2);
        EXPECT_EQ(result.output, "");
    }
}
