#include <cstring>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include <support/expect_failure.h>

#include "dump/renderer.h"
#include "dump_samples.h"

namespace
{

using namespace zelmodel_test;

std::string base64Of(const std::string& bytes)
{
    return util::toBase64(bytes.data(), bytes.size());
}

TEST(DumpRecognition, TakesEachExampleForItsForm)
{
    for (const auto& sample : dumpSamples())
    {
        if (!sample.form.isRecognised)
            continue;
        const auto raw = dump::tell(sample.bytes, nullptr, false);
        EXPECT_EQ(raw.form, &sample.form);
        EXPECT_FALSE(raw.isBase64);
        EXPECT_TRUE(raw.others.empty());
        EXPECT_FALSE(raw.refusal);
        if (sample.form.isText)
            continue;
        for (const auto& text : {base64Of(sample.bytes), " \r\n\t" + base64Of(sample.bytes) + "\n\n"})
        {
            const auto decoded = dump::tell(text, nullptr, false);
            EXPECT_EQ(decoded.form, &sample.form);
            EXPECT_TRUE(decoded.isBase64);
            EXPECT_EQ(decoded.size, sample.bytes.size());
            EXPECT_FALSE(decoded.refusal);
        }
    }
}

/// All digits of base64, those of the high values included.
TEST(DumpRecognition, TakesEveryDigitOfBase64)
{
    const auto bytes = text("\xfb\xff\xbf>>>???~~~");
    const auto encoded = base64Of(bytes);
    ASSERT_NE(encoded.find('+'), std::string::npos) << encoded;
    ASSERT_NE(encoded.find('/'), std::string::npos) << encoded;
    const auto decoded = dump::tell(encoded, dump::findForm("text"), true);
    EXPECT_TRUE(decoded.isBase64);
    EXPECT_EQ(decoded.size, bytes.size());
    EXPECT_FALSE(decoded.refusal);
}

TEST(DumpRecognition, TakesALoneTextForOneOnlyWhenItIsNamed)
{
    const auto bytes = exampleBytes("text.b64");
    EXPECT_TRUE(dump::tell(bytes, nullptr, false).refusal);
    EXPECT_EQ(valueAt(dump::tell(bytes, dump::findForm("text"), false), "text"), "/srv/data");
}

/// Bytes that are both a bundle of two key sets without a key and a server: the bundle's count is the length of the
/// server's name, and the hint of the second key set holds the server's last fields.
TEST(DumpRecognition, TakesTheMoreSpecificOfTwoFormsAndTellsTheOther)
{
    constexpr std::size_t description = 65536;
    const std::string numbers(20, '\0');
    const auto before = numbers + u32(0) + u32(0) + text("") + u8(1) + u8(0) + numbers;
    const std::string filler(description - before.size() - 4, 'x');
    const std::string tail = text("") + text("") + text("") + "y";
    const auto bytes = text("e2a57c90-14fb-4b8d-9d36-05c8f1e6a742") + u64(2) + text("") + u8(1) + u8(0) + before +
                       text(filler + tail) + u32(0);
    const auto told = dump::tell(bytes, nullptr, false);
    EXPECT_STREQ(told.form->name, "key-bundle");
    EXPECT_FALSE(told.refusal);
    ASSERT_EQ(told.others.size(), 1U);
    EXPECT_STREQ(told.others.front()->name, "managing-server");
    const auto text = dump::renderText(told, describe::TextStyle());
    EXPECT_EQ(text.substr(0, text.find('\n')),
              "Key bundle: " + std::to_string(bytes.size()) + " bytes, may also be managing-server");
    EXPECT_EQ(dump::toJson(told, describe::TextStyle())["others"].dump(), "[\"managing-server\"]");
    const auto named = dump::tell(bytes, dump::findForm("managing-server"), false);
    EXPECT_FALSE(named.refusal);
    EXPECT_TRUE(named.others.empty());
}

TEST(DumpRecognition, PassesOverBytesLeftOverOnlyInANamedForm)
{
    const auto bytes = exampleBytes("key-bundle.b64") + "xyz";
    const auto guessed = dump::tell(bytes, nullptr, false);
    EXPECT_STREQ(guessed.form->name, "key-bundle");
    ASSERT_TRUE(guessed.refusal);
    EXPECT_EQ(guessed.refusal->offset, 298U);
    EXPECT_EQ(guessed.refusal->sentences,
              (std::vector<std::string>{"No binary form reads the whole of it; the form key-bundle comes nearest.",
                                        "It ends at offset 298; 3 bytes too many follow."}));
    const auto named = dump::tell(bytes, dump::findForm("key-bundle"), false);
    EXPECT_FALSE(named.refusal);
    EXPECT_EQ(fieldAt(named.fields, "leftOver").offset, 298U);
    EXPECT_EQ(wordsAt(named, "leftOver"), "3 bytes that the reader passes over");
}

TEST(DumpRecognition, RefusesTextsThatAreNoBase64)
{
    const std::string library = " Unable to decode base64 text.";
    const auto text = base64Of(exampleBytes("key-set.b64"));
    const auto refusal = [](const std::string& input) {
        return failureText([&] { dump::tell(input, nullptr, false); });
    };
    EXPECT_EQ(refusal(text.substr(0, 57) + "!" + text.substr(58)),
              "The input is a text, and none of base64: the byte at offset 57 does not belong there." + library);
    EXPECT_EQ(refusal(text.substr(1)), "The input is a text, and none of base64: digits are missing or too many at the "
                                       "end, or padding stands where none belongs." +
                                           library);
    EXPECT_EQ(refusal("\n<Details/>\n"),
              "The input looks like an XML document, which the command show tells." + library);
}

/// What no form reads is told as the form that explains the most of it.
TEST(DumpRecognition, TellsWhatComesNearest)
{
    for (const auto& sample : dumpSamples())
    {
        if (!sample.form.isRecognised || sample.form.isText)
            continue;
        const auto told = dump::tell(sample.bytes.substr(0, sample.bytes.size() - 1), nullptr, false);
        ASSERT_TRUE(told.refusal);
        // Every bundle begins with a GUID.
        EXPECT_STREQ(told.form->name, std::strcmp(sample.form.name, "guid") == 0 ? "key-bundle" : sample.form.name);
        EXPECT_EQ(told.refusal->sentences.front(),
                  "No binary form reads the whole of it; the form " + std::string(told.form->name) + " comes nearest.");
    }
}

} // namespace
