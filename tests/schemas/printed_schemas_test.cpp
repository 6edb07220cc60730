#include <algorithm>
#include <stdexcept>

#include <gtest/gtest.h>

#include <schemas/schema.h>
#include <support/run_command.h>
#include <support/temporary_folder.h>

#include "documents.h"
#include "schema_kinds.h"
#include "xmllint.h"

namespace zelmodel_test
{
namespace
{

// The command prints one text for a kind. It must say what the files say, which are put together of parts.
class PrintedSchemas : public testing::TestWithParam<SchemaKind>
{
protected:
    static void expectSameVerdicts(const std::string& file, const std::string& ending, const std::string& printed)
    {
        const TemporaryFolder folder; // where no part lies beside it
        std::vector<std::string> texts;
        for (const auto& document : documentsOf(GetParam()))
        {
            texts.push_back(document.text);
            texts.push_back(withoutOwner(GetParam(), document.text));
        }
        const auto expected = judge(file, texts);
        const auto verdicts = judge(folder.write("printed" + ending, printed), texts);
        ASSERT_FALSE(texts.empty());
        for (std::size_t i = 0; i < texts.size(); ++i)
            EXPECT_EQ(expected[i].isValid, verdicts[i].isValid) << texts[i] << '\n' << verdicts[i].messages;
    }
};

TEST_P(PrintedSchemas, OfWhatIsWritten)
{
    const auto result = runCommand({"schema", GetParam().name});
    EXPECT_EQ(0, result.exitCode) << result.messages;
    expectSameVerdicts(pathOfXsd(GetParam()), ".xsd", result.output);
}

TEST_P(PrintedSchemas, OfWhatIsRead)
{
    const auto result = runCommand({"schema", GetParam().name, "--relaxng"});
    EXPECT_EQ(0, result.exitCode) << result.messages;
    expectSameVerdicts(pathOfRng(GetParam()), ".rng", result.output);
}

INSTANTIATE_TEST_SUITE_P(All, PrintedSchemas, testing::ValuesIn(schemaKinds()), nameOfKind);

TEST(PrintedSchema, IsJsonOnRequest)
{
    const auto result = runCommand({"schema", "sql-variant", "--relaxng", "--json"});
    EXPECT_EQ(0, result.exitCode);
    EXPECT_EQ(0U, result.output.rfind("{\n  \"kind\": \"schema\",\n  \"schema\": 1,\n  \"file\": \"\",\n"
                                      "  \"of\": \"sql-variant\",\n  \"language\": \"RELAX NG\",\n"
                                      "  \"text\": \"<?xml version=\\\"1.0\\\" encoding=\\\"UTF-8\\\"?>\\n",
                                      0))
        << result.output.substr(0, 200);
}

TEST(PrintedSchema, OfNoKind)
{
    for (const auto& call : {std::vector<std::string>{"schema"}, {"schema", "job"}, {"schema", "parts/values"}})
    {
        const auto result = runCommand(call);
        EXPECT_EQ(2, result.exitCode);
        EXPECT_EQ("", result.output);
    }
    EXPECT_THROW(schemas::schemaOf("parts/nothing", schemas::ESchema::Read), std::out_of_range);
}

TEST(PrintedSchema, KindsAreThoseOfTheFiles)
{
    auto kinds = schemas::kinds();
    std::vector<std::string> expected;
    for (const auto& kind : schemaKinds())
        expected.emplace_back(kind.name);
    std::sort(expected.begin(), expected.end());
    EXPECT_EQ(expected, kinds);
}

} // namespace
} // namespace zelmodel_test
