#include <algorithm>
#include <stdexcept>

#include <gtest/gtest.h>

#include <support/golden.h>

#include "documents.h"
#include "wrong_documents.h"
#include "xmllint.h"

namespace zelmodel_test
{
namespace
{

std::string changed(const WrongDocument& row)
{
    auto text = golden(row.golden);
    const auto at = text.find(row.from);
    if (at == std::string::npos)
        throw std::runtime_error(std::string(row.golden) + " has no " + row.from + '.');
    return text.replace(at, std::string(row.from).size(), row.to);
}

class WrongDocuments : public testing::TestWithParam<SchemaKind>
{
};

TEST_P(WrongDocuments, AreRefused)
{
    auto rows = wrongDocuments();
    rows.erase(std::remove_if(rows.begin(), rows.end(),
                              [](const auto& row) { return std::string(row.kind) != GetParam().name; }),
               rows.end());
    std::vector<std::string> texts;
    std::vector<std::string> written;
    for (const auto& row : rows)
    {
        texts.push_back(changed(row));
        written.push_back(withoutOwner(GetParam(), texts.back()));
    }
    const auto asRead = judge(pathOfRng(GetParam()), texts);
    const auto asWritten = judge(pathOfXsd(GetParam()), written);
    ASSERT_LE(3U, rows.size());
    for (std::size_t i = 0; i < rows.size(); ++i)
    {
        const bool isReadable = rows[i].wrong == EWrong::WhereWritten;
        EXPECT_FALSE(asWritten[i].isValid) << texts[i];
        EXPECT_EQ(isReadable, asRead[i].isValid) << texts[i] << '\n' << asRead[i].messages;
        EXPECT_EQ(isReadable, isRead(texts[i])) << texts[i];
    }
}

INSTANTIATE_TEST_SUITE_P(All, WrongDocuments, testing::ValuesIn(schemaKinds()), nameOfKind);

// A row that names no kind would never be looked at.
TEST(WrongDocumentRows, NameKinds)
{
    for (const auto& row : wrongDocuments())
        EXPECT_NO_THROW(findSchemaKind(row.kind)) << row.kind;
}

} // namespace
} // namespace zelmodel_test
