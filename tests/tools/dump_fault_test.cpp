#include <ostream>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "dump_samples.h"

namespace
{

using namespace zelmodel_test;

/// The library's sentences, which stand in front of ours.
void expectLibrarySentences(const DumpSample& sample, const std::string& bytes, const dump::Refusal& refusal)
{
    auto expected = libraryRefusal(sample.form, bytes);
    ASSERT_LE(expected.size(), refusal.sentences.size());
    EXPECT_EQ(expected,
              std::vector<std::string>(refusal.sentences.begin(),
                                       refusal.sentences.begin() + static_cast<std::ptrdiff_t>(expected.size())));
}

const dump::Span* firstCut(const dump::Span& span, std::size_t size)
{
    if (span.isValue())
        return span.end > size ? &span : nullptr;
    for (const auto& child : span.children)
    {
        if (const auto* found = firstCut(child, size))
            return found;
    }
    return nullptr;
}

TEST(DumpFault, EveryTruncationTellsTheFirstByteThatIsMissing)
{
    for (const auto& sample : dumpSamples())
    {
        if (sample.form.isText)
            continue;
        dump::Walk whole(sample.bytes);
        sample.form.walk(whole);
        for (std::size_t size = 0; size < sample.bytes.size(); ++size)
        {
            SCOPED_TRACE(std::string(sample.form.name) + " " + std::to_string(size));
            const auto bytes = sample.bytes.substr(0, size);
            const auto told = dump::tell(bytes, &sample.form, false);
            ASSERT_TRUE(told.refusal);
            expectLibrarySentences(sample, bytes, *told.refusal);
            const auto* cut = firstCut(whole.root(), size);
            EXPECT_EQ(told.refusal->offset, size < cut->content ? cut->offset : cut->content);
        }
    }
}

/// A form that is cut off behind a whole record of another form is that one: forty bytes of a bundle are a GUID.
TEST(DumpFault, EveryTruncationIsRefusedUnlessItIsAnotherForm)
{
    for (const auto& sample : dumpSamples())
    {
        if (!sample.form.isRecognised || sample.form.isText)
            continue;
        for (std::size_t size = 0; size < sample.bytes.size(); ++size)
        {
            SCOPED_TRACE(std::string(sample.form.name) + " " + std::to_string(size));
            const auto told = dump::tell(sample.bytes.substr(0, size), nullptr, false);
            EXPECT_TRUE(told.refusal || told.form != &sample.form);
        }
    }
}

/// What the library reads is told, what it refuses is refused; one wrong bit in every byte.
TEST(DumpFault, AgreesWithTheLibraryWhateverBitIsWrong)
{
    std::size_t refused = 0;
    for (const auto& sample : dumpSamples())
    {
        for (std::size_t at = 0; at < sample.bytes.size(); ++at)
        {
            auto bytes = sample.bytes;
            bytes[at] = static_cast<char>(bytes[at] ^ static_cast<char>(1U << at % 7));
            const auto told = dump::tell(bytes, &sample.form, false);
            EXPECT_EQ(told.refusal.has_value(), !libraryRefusal(sample.form, bytes).empty())
                << sample.form.name << ' ' << at;
            refused += told.refusal ? 1U : 0U;
        }
    }
    EXPECT_GT(refused, 500U);
}

struct FaultCase
{
    const char* file;
    std::size_t byte; ///< that is changed
    char becomes;
    std::size_t offset;
    const char* field;
    const char* sentence; ///< the last two
    const char* place;
};

std::ostream& operator<<(std::ostream& stream, const FaultCase& test)
{
    return stream << test.file << ' ' << test.byte;
}

class DumpFaults : public testing::TestWithParam<FaultCase>
{
};

TEST_P(DumpFaults, TellTheFieldThatTheLibraryRefuses)
{
    const auto& test = GetParam();
    auto bytes = exampleBytes(std::string(test.file) + ".b64");
    bytes.at(test.byte) = test.becomes;
    const DumpSample sample{*dump::findForm(test.file), bytes};
    const auto told = dump::tell(bytes, &sample.form, false);
    ASSERT_TRUE(told.refusal);
    expectLibrarySentences(sample, bytes, *told.refusal);
    const auto& sentences = told.refusal->sentences;
    EXPECT_EQ(told.refusal->offset, test.offset);
    EXPECT_EQ(told.refusal->field, test.field);
    EXPECT_EQ(sentences.at(sentences.size() - 2), test.sentence);
    EXPECT_EQ(sentences.back(), test.place);
}

INSTANTIATE_TEST_SUITE_P(
    KeySet, DumpFaults,
    testing::Values(
        FaultCase{"key-set", 0, '\x02', 0, "Version of the form", "Key set form version [2] is not known.",
                  "At offset 0: \"Version of the form\"."},
        FaultCase{"key-set", 1, '\x41', 1, "Key set id", "Key set id of [65] bytes is longer than [64].",
                  "At offset 1: \"Key set id\"."},
        FaultCase{"key-set", 1, '\x4B', 2, "Key set id", "Key set id of [75] bytes is longer than [64].",
                  "At offset 2: \"Key set id\" announces 75 bytes, 74 are left."},
        FaultCase{"key-set", 27, '\x40', 24, "Nanoseconds", "Nanoseconds [1073741824] are more than a second.",
                  "At offset 24: \"Nanoseconds\"."},
        FaultCase{"key-set", 32, '\xFF', 28, "Password hint", "Text is not valid UTF-8.",
                  "At offset 28: \"Password hint\"."},
        FaultCase{"key-set", 31, '\xFF', 32, "Password hint",
                  "Failed to retrieve value from the binary stream: received less bytes (44) than expected "
                  "(4278190084).",
                  "At offset 32: \"Password hint\" announces 4278190084 bytes, 44 are left."},
        FaultCase{"key-set", 37, '\x10', 36, "Number of keys", "Key set of [4097] keys has more than [4096].",
                  "At offset 36: \"Number of keys\"."},
        FaultCase{"key-set", 36, '\x02', 76, "Key 2",
                  "Failed to retrieve value from the binary stream: received less bytes (0) than expected (4).",
                  "At offset 76: \"Key 2\" takes 4 bytes, 0 are left."},
        FaultCase{"key-set", 42, '\x01', 44, "Key 1", "Key of [65568] bytes is longer than [65536].",
                  "At offset 44: \"Key 1\" announces 65568 bytes, 32 are left."},
        FaultCase{"key-set", 40, '\x21', 44, "Key 1",
                  "Failed to retrieve value from the binary stream: received less bytes (32) than expected (33).",
                  "At offset 44: \"Key 1\" announces 33 bytes, 32 are left."}));

INSTANTIATE_TEST_SUITE_P(
    Records, DumpFaults,
    testing::Values(
        FaultCase{"password-derived-key", 76, '\x11', 77, "Derivation",
                  "Failed to retrieve value from the binary stream: received less bytes (16) than expected (17).",
                  "At offset 77: \"Derivation\" announces 17 bytes, 16 are left."},
        FaultCase{"key-bundle", 13, '-', 0, "Identifier", "Unable to convert string [(hidden, 36 bytes)] to GUID.",
                  "At offset 0: \"Identifier\"."},
        FaultCase{"key-bundle", 40, '\x03', 298, "Identifier of key set 3",
                  "Failed to retrieve value from the binary stream: received less bytes (0) than expected (4).",
                  "At offset 298: \"Identifier of key set 3\" takes 4 bytes, 0 are left."},
        FaultCase{"key-bundle", 47, '\x80', 298, "Identifier of key set 3",
                  "Failed to retrieve value from the binary stream: received less bytes (0) than expected (4).",
                  "At offset 298: \"Identifier of key set 3\" takes 4 bytes, 0 are left."},
        FaultCase{"key-bundle", 112, '\x40', 109, "Nanoseconds of key set 1",
                  "Nanoseconds [1073741829] are more than a second.", "At offset 109: \"Nanoseconds of key set 1\"."},
        FaultCase{"key-bundle", 165, '\x7F', 166, "Key 2 of key set 1",
                  "Key of [2130706448] bytes is longer than [65536].",
                  "At offset 166: \"Key 2 of key set 1\" announces 2130706448 bytes, 132 are left."},
        FaultCase{"managing-server", 40, '\x5F', 143, "DNS name",
                  "Failed to retrieve value from the binary stream: received less bytes (15) than expected "
                  "(1698180403).",
                  "At offset 143: \"DNS name\" announces 1698180403 bytes, 15 are left."},
        FaultCase{"managing-server", 97, '?', 84, "Endpoints", "Port is missing.", "At offset 84: \"Endpoints\"."},
        FaultCase{"schedule-options", 9, '>', 5, "Text", "Unable to parse XML at line 1: [text at the top].",
                  "At offset 5: \"Text\"."},
        FaultCase{"guid", 4, 'x', 0, "GUID", "Unable to convert string [xf9619ff-8b86-d011-b42d-00cf4fc964ff] to GUID.",
                  "At offset 0: \"GUID\"."}));

TEST(DumpFault, ARefusedValueIsTellableToo)
{
    auto bytes = exampleBytes("key-set.b64");
    bytes.at(1) = '\x41';
    const auto told = dump::tell(bytes, dump::findForm("key-set"), true);
    ASSERT_TRUE(told.refusal);
    EXPECT_EQ(told.refusal->sentences.front(), "Key set id of [65] bytes is longer than [64].");
    EXPECT_EQ(valueAt(told, "id").substr(0, 12), "736974652D62");
    EXPECT_EQ(valueAt(told, "id").size(), 130U);
}

TEST(DumpFault, ClientIdsThatAreNone)
{
    const auto* form = dump::findForm("cloud-client");
    for (const std::string& bytes : {std::string(), std::string("|x"), std::string("6f9619ff|x"), std::string("\n")})
    {
        const auto told = dump::tell(bytes, form, false);
        ASSERT_TRUE(told.refusal);
        EXPECT_EQ(told.refusal->offset, 0U);
        EXPECT_EQ(told.refusal->field, "Client");
    }
}

} // namespace
