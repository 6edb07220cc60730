#include <algorithm>
#include <cstddef>
#include <filesystem>
#include <fstream>
#include <ostream>
#include <set>
#include <sstream>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "describe/document.h"
#include "support/run_command.h"

namespace
{

using zelmodel_test::runCommand;

/// What must be found: "LINE CLASS ID WORDS", the words being a part of what is told.
struct Expected
{
    std::string line;
    std::string severity;
    std::string id;
    std::string words;
};

/// A document with faults, and beside it a text with what must be found.
struct FaultyDocument
{
    std::string path;
    std::vector<Expected> findings;
};

std::ostream& operator<<(std::ostream& stream, const FaultyDocument& document)
{
    return stream << document.path;
}

std::string textOf(const std::filesystem::path& path)
{
    std::ifstream file(path, std::ios::binary);
    std::ostringstream text;
    text << file.rdbuf();
    return text.str();
}

std::vector<Expected> expectedOf(const std::filesystem::path& path)
{
    std::vector<Expected> findings;
    std::istringstream lines(textOf(path));
    for (Expected row; lines >> row.line >> row.severity >> row.id >> std::ws && std::getline(lines, row.words);)
        findings.push_back(row);
    return findings;
}

std::vector<FaultyDocument> corpus()
{
    std::vector<FaultyDocument> documents;
    for (const auto& entry : std::filesystem::directory_iterator(ZELMODEL_FAULTS_DIR))
    {
        auto path = entry.path();
        if (path.extension() == ".xml")
            documents.push_back({path.string(), expectedOf(path.replace_extension(".expected"))});
    }
    std::sort(documents.begin(), documents.end(),
              [](const FaultyDocument& a, const FaultyDocument& b) { return a.path < b.path; });
    return documents;
}

/// The lines of findings, without the sentences of refusals below them.
std::vector<std::string> linesOf(const std::string& output)
{
    std::vector<std::string> found;
    std::istringstream lines(output);
    for (std::string line; std::getline(lines, line);)
    {
        if (line.rfind("    ", 0) != 0)
            found.push_back(line);
    }
    return found;
}

class FaultyDocuments : public testing::TestWithParam<FaultyDocument>
{
};

TEST_P(FaultyDocuments, AreCheckedInOnePass)
{
    const auto& [path, expected] = GetParam();
    const auto result = runCommand({"check", path});
    const auto found = linesOf(result.output);
    EXPECT_EQ(result.messages, "");
    ASSERT_EQ(found.size(), expected.size()) << result.output;
    for (std::size_t i = 0; i < found.size(); ++i)
    {
        const auto begin = path + ':' + expected[i].line + ": " + expected[i].severity + ": ";
        const auto end = " [" + expected[i].id + ']';
        EXPECT_EQ(found[i].substr(0, begin.size()), begin);
        EXPECT_EQ(found[i].substr(std::max(found[i].size(), end.size()) - end.size()), end);
        EXPECT_NE(found[i].find(expected[i].words, begin.size()), std::string::npos) << found[i];
    }
    const bool isRefused =
        std::any_of(expected.begin(), expected.end(), [](const Expected& row) { return row.severity == "refused"; });
    EXPECT_EQ(result.exitCode, isRefused ? 3 : 1);
}

INSTANTIATE_TEST_SUITE_P(Corpus, FaultyDocuments, testing::ValuesIn(corpus()));

TEST(FaultyDocuments, AreManyOfManyKindsWithSeveralFaultsEach)
{
    std::set<std::string> kinds;
    std::size_t faults = 0;
    for (const auto& document : corpus())
    {
        kinds.insert(describe::nameOf(describe::Document(textOf(document.path)).kind()));
        EXPECT_GE(document.findings.size(), 2U) << document.path;
        faults += document.findings.size();
    }
    EXPECT_GE(corpus().size(), 18U);
    EXPECT_GE(kinds.size(), 12U);
    EXPECT_GE(faults, 90U);
    RecordProperty("documents", static_cast<int>(corpus().size()));
    RecordProperty("faults", static_cast<int>(faults));
}

} // namespace
