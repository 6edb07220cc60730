#include <filesystem>
#include <map>
#include <regex>
#include <set>

#include <gtest/gtest-spi.h>
#include <gtest/gtest.h>

#include <check/rule.h>
#include <dump/form.h>
#include <schemas/answer.h>
#include <support/answer_schemas.h>
#include <support/run_command.h>

#include "samples.h"

namespace zelmodel_test
{
namespace
{

using nlohmann::json;
using Names = std::set<std::string>;

TEST(Answers, OfEveryKindAreAsTheirSchemasSay)
{
    for (const auto& sample : samples())
    {
        for (const auto& answer : answersOf(sample))
            EXPECT_EQ("", faultsOf(sample.schema, answer)) << testing::PrintToString(sample.call);
    }
}

TEST(Answers, OfEverySchemaAreAmongTheSamples)
{
    Names found;
    for (const auto& sample : samples())
        found.insert(sample.schema);
    const auto expected = schemas::answers();
    EXPECT_EQ(Names(expected.begin(), expected.end()), found);
}

// A command that opens no document refuses none, and one that opens no file cannot fail to read it.
TEST(Answers, OfEveryWayToFailAreAmongTheSamples)
{
    std::map<std::string, std::set<int>> found;
    for (const auto& sample : samples())
        found[sample.call.front()].insert(sample.exitCode);
    for (const auto* command : {"calendar", "check", "convert", "diff", "dump", "new", "next", "set", "show", "why"})
    {
        for (const auto exitCode : {2, 3, 4})
            EXPECT_EQ(1U, found[command].count(exitCode)) << command << ' ' << exitCode;
    }
    for (const auto* command : {"completion", "explain", "log", "man", "schema"})
        EXPECT_EQ(1U, found[command].count(2)) << command;
    EXPECT_EQ(1U, found["log"].count(4));
}

TEST(Answers, OfEveryCommandHaveASchema)
{
    const auto known = schemas::answers();
    Names expected{"error", "log-lines"};
    const auto manual = runCommand({"man"}).output;
    const std::regex heading(R"(\n\.SS zelmodel (\w+)\n)");
    for (std::sregex_iterator found(manual.begin(), manual.end(), heading), end; found != end; ++found)
        expected.insert((*found)[1]);
    EXPECT_EQ(expected, Names(known.begin(), known.end()));
}

Names wordsOf(const std::string& answer, const char* place)
{
    return json::parse(schemas::answerSchemaOf(answer)).at(json::json_pointer(place)).get<Names>();
}

// Whoever adds a finding or a form adds its word to the schemas.
TEST(Answers, HoldTheWordsOfTheCommand)
{
    Names findings;
    for (const auto& rule : check::allRules())
        findings.insert(rule.id);
    EXPECT_EQ(findings, wordsOf("check", "/definitions/words-finding/enum"));
    Names forms;
    for (const auto& form : dump::allForms())
        forms.insert(form.name);
    EXPECT_EQ(forms, wordsOf("dump", "/definitions/binary-form/enum"));
}

// What every test relies on.
TEST(Answers, ThatAreNoneFailTheTest)
{
    const std::vector<std::string> man{"man", "--json"};
    const std::vector<std::string> log{"log", "a.log", "--json-lines"};
    const std::string answer = R"({"kind": "man", "schema": 1, "file": "", "text": "page"})";
    const std::string line = R"({"kind": "replaced", "schema": 1, "file": "a.log"})";
    expectAnswersOfSchema(man, answer);
    expectAnswersOfSchema(log, line + '\n' + line + '\n');
    expectAnswersOfSchema({"man"}, "page");
    expectAnswersOfSchema({"man", "--json", "--help"}, "Usage: zelmodel man");
    EXPECT_NONFATAL_FAILURE(expectAnswersOfSchema(man, line), "none of the schema man");
    EXPECT_NONFATAL_FAILURE(expectAnswersOfSchema({"show", "a.xml", "--json"}, answer), "none of the schema show");
    EXPECT_NONFATAL_FAILURE(expectAnswersOfSchema(man, R"({"kind": "error"})"), "none of the schema error");
    EXPECT_NONFATAL_FAILURE(expectAnswersOfSchema(man, ""), "no JSON");
    EXPECT_NONFATAL_FAILURE(expectAnswersOfSchema(man, answer + "{}"), "no JSON");
    EXPECT_NONFATAL_FAILURE(expectAnswersOfSchema(log, line + '\n' + answer), "none of the schema log-lines");
    EXPECT_NONFATAL_FAILURE(expectAnswersOfSchema(log, line + "\nrecord"), "no JSON");
}

// Each runCommand holds its answer against the schema.
TEST(Answers, AboutEveryExampleAreAsTheirSchemasSay)
{
    std::size_t count = 0;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(ZELMODEL_EXAMPLES_DIR))
    {
        const auto name = entry.path().string();
        std::vector<std::vector<std::string>> calls;
        if (entry.path().extension() == ".xml")
            calls = {{"show", name},
                     {"show", name, "--reveal"},
                     {"check", name},
                     {"next", name, "--from", "2026-03-02"},
                     {"why", name, "--at", "2026-03-02 22:30", "--window", "office-hours-closed-window.xml"},
                     {"calendar", name, "--month", "2026-03"},
                     {"convert", name, "--reveal"},
                     {"set", name, "--fields"},
                     {"diff", name, "nightly-file-server.xml"}};
        else if (entry.path().parent_path().filename() == "binary")
            calls = {{"dump", name}, {"dump", name, "--reveal"}};
        else if (entry.path().parent_path().filename() == "logs")
            calls = {{"log", name}, {"log", name, "--skipped"}};
        for (auto& call : calls)
        {
            call.emplace_back("--json");
            EXPECT_NE("", runCommand(call).output);
            ++count;
        }
        if (entry.path().parent_path().filename() == "logs")
        {
            EXPECT_NE("", runCommand({"log", name, "--json-lines", "--skipped"}).output);
        }
    }
    EXPECT_LT(500U, count);
}

} // namespace
} // namespace zelmodel_test
