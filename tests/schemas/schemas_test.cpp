#include <filesystem>
#include <set>

#include <gtest/gtest.h>

#include "documents.h"
#include "schema_kinds.h"
#include "xmllint.h"

namespace zelmodel_test
{
namespace
{

std::vector<std::string> textsOf(const std::vector<NamedText>& documents)
{
    std::vector<std::string> texts;
    for (const auto& document : documents)
        texts.push_back(document.text);
    return texts;
}

// Documents that are read and are not as they are written: older layouts, names and words, parts left out or unknown,
// another order, dates that are none.
bool isAsWritten(const std::string& name)
{
    static const std::set<std::string> others{
        "examples/continuous.xml",
        "examples/delete-points.xml",
        "examples/gfs-policy-long-names.xml",
        "examples/immutability.xml",
        "examples/misspelled-window.xml",
        "examples/object-storage-certificate.xml",
        "examples/oracle-processing-by-size.xml",
        "examples/repository-limitations-enclosed.xml",
        "examples/session-details-unknown-space.xml",
        "examples/session-progress-begun.xml",
        "examples/weekly-with-monthly-fulls-and-gfs.xml",
        "golden/AmazonS3SpecificParams/indented.xml",
        "golden/ImmutabilitySettings/with_mode.xml",
        "golden/JobOptions/bare.xml",
        "golden/JobOptionsRoot/indented.xml",
        "golden/JobSettings/enclosed.xml",
        "golden/root/indented.xml",
    };
    const bool isCalendarAlone = name.rfind("golden/Schedule/calendar_", 0) == 0;
    const bool isOlder = name.rfind("examples/older/", 0) == 0 || name.rfind("golden/legacy/", 0) == 0;
    return !isCalendarAlone && !isOlder && others.count(name) == 0;
}

// A certificate that is none is beyond what a schema can say.
bool isRefusedBySchema(const std::string& name)
{
    return name != "examples/refused/object-storage-false-certificate.xml";
}

class Schemas : public testing::TestWithParam<SchemaKind>
{
};

TEST_P(Schemas, DocumentsValidateAsTheyAreRead)
{
    const auto documents = documentsOf(GetParam());
    const auto verdicts = judge(pathOfRng(GetParam()), textsOf(documents));
    ASSERT_FALSE(documents.empty());
    for (std::size_t i = 0; i < documents.size(); ++i)
    {
        const auto& name = documents[i].name;
        EXPECT_EQ(isRead(documents[i].text) || !isRefusedBySchema(name), verdicts[i].isValid) << name << '\n'
                                                                                              << verdicts[i].messages;
    }
}

TEST_P(Schemas, DocumentsValidateAsTheyAreWritten)
{
    auto documents = documentsOf(GetParam());
    for (auto& document : documents)
        document.text = withoutOwner(GetParam(), document.text);
    const auto verdicts = judge(pathOfXsd(GetParam()), textsOf(documents));
    std::size_t validCount = 0;
    for (std::size_t i = 0; i < documents.size(); ++i)
    {
        const bool isWritten = isRead(documents[i].text) && isAsWritten(documents[i].name);
        EXPECT_EQ(isWritten, verdicts[i].isValid) << documents[i].name << '\n' << verdicts[i].messages;
        validCount += verdicts[i].isValid ? 1U : 0U;
    }
    EXPECT_LT(0U, validCount);
}

TEST_P(Schemas, WhatIsWrittenValidates)
{
    auto written = writtenDocumentsOf(GetParam());
    const auto read = judge(pathOfRng(GetParam()), textsOf(written));
    for (auto& document : written)
        document.text = withoutOwner(GetParam(), document.text);
    const auto current = judge(pathOfXsd(GetParam()), textsOf(written));
    for (std::size_t i = 0; i < written.size(); ++i)
    {
        EXPECT_TRUE(read[i].isValid) << written[i].name << '\n' << written[i].text << '\n' << read[i].messages;
        EXPECT_TRUE(current[i].isValid) << written[i].name << '\n' << written[i].text << '\n' << current[i].messages;
    }
    EXPECT_EQ(isOnlyRead(GetParam()), written.empty());
}

INSTANTIATE_TEST_SUITE_P(All, Schemas, testing::ValuesIn(schemaKinds()), nameOfKind);

// One pair of files for a kind, and nothing else; every kind that the command tells is there.
TEST(SchemaFiles, AreNamedAfterTheKinds)
{
    std::set<std::string> expected;
    std::set<describe::EDocumentKind> kinds;
    for (const auto& kind : schemaKinds())
    {
        expected.insert({std::string(kind.name) + ".rng", std::string(kind.name) + ".xsd"});
        kinds.insert(kind.kind);
    }
    std::set<std::string> found;
    const auto folder = std::filesystem::path(pathOfXsd(schemaKinds().front())).parent_path();
    for (const auto& entry : std::filesystem::directory_iterator(folder))
    {
        if (entry.is_regular_file())
            found.insert(entry.path().filename().string());
    }
    EXPECT_EQ(expected, found);
    EXPECT_EQ(static_cast<std::size_t>(describe::EDocumentKind::GfsSyntheticFullTransform) + 1, kinds.size());
}

} // namespace
} // namespace zelmodel_test
