#include <memory>
#include <string>

#include <gtest/gtest.h>

#include <support/expect_failure.h>
#include <zelmodel/keys.h>

#include "sample_keys.h"

namespace
{

using namespace zelplatform::model::structs;
using zelmodel_test::failureText;
using zelmodel_test::KeySetParts;
using zelmodel_test::secure;

const std::string emptyBundle = "JAAAADAwMDAwMDAwLTAwMDAtMDAwMC0wMDAwLTAwMDAwMDAwMDAwMAAAAAAAAAAA";
const std::string bundle =
    "JAAAADZiMWYyYzNkLTBhMWItNGMyZC04ZTNmLTAxMjM0NTY3ODlhYgEAAAAAAAAAJAAAADExMTExMTExLTIyMjItMzMz"
    "My00NDQ0LTU1NTU1NTU1NTU1NQEDCgD/AQAAAAIAAADwYuhlAAAAAAUAAAADAAAAaMO8AgAAAAcAAABrZXktb25lAgAA"
    "AAAB";
const std::string derived = "AQMKAP8BAAAAAgAAAPBi6GUAAAAABQAAAAMAAABow7wCAAAABwAAAGtleS1vbmUCAAAAAAEFc2FsdCE=";

SExplicitBackupKeys sampleBundle()
{
    SExplicitBackupKeys keys;
    keys.id = guid::guid_t::FromAStr("6b1f2c3d-0a1b-4c2d-8e3f-0123456789ab");
    keys.keySets[guid::guid_t::FromAStr("11111111-2222-3333-4444-555555555555")] = KeySetParts().make();
    return keys;
}

SPasswordDerivedKey sampleDerived(const std::string& bytes = "salt!")
{
    return {KeySetParts().make(), std::make_shared<crypto::sec_buffer_t>(secure(bytes))};
}

TEST(KeyBase64, WritesTheBinaryFormInOneLine)
{
    EXPECT_EQ(emptyBundle, SExplicitBackupKeys().ToBase64());
    EXPECT_EQ(bundle, sampleBundle().ToBase64());
    EXPECT_EQ(derived, sampleDerived().ToBase64());
}

TEST(KeyBase64, ReadsBackWhatItWrites)
{
    EXPECT_EQ(emptyBundle, SExplicitBackupKeys::FromBase64(emptyBundle).ToBase64());
    const auto keys = SExplicitBackupKeys::FromBase64(bundle);
    EXPECT_EQ(sampleBundle().id, keys.id);
    ASSERT_EQ(1U, keys.keySets.size());
    EXPECT_TRUE(zelmodel_test::same(*keys.keySets.begin()->second, *KeySetParts().make()));

    const auto key = SPasswordDerivedKey::FromBase64(derived);
    EXPECT_TRUE(zelmodel_test::same(*key.keySet, *KeySetParts().make()));
    EXPECT_TRUE(*key.buffer == secure("salt!"));
}

TEST(KeyBase64, BuffersOf0And255BytesAndNoMore)
{
    for (const std::size_t size : {0U, 1U, 255U})
    {
        const auto key = SPasswordDerivedKey::FromBase64(sampleDerived(std::string(size, '\xFE')).ToBase64());
        EXPECT_TRUE(*key.buffer == secure(std::string(size, '\xFE')));
    }
    EXPECT_EQ("Unable to cast value from [unsigned long] to [unsigned char].",
              failureText([] { (void)sampleDerived(std::string(256, 'x')).ToBase64(); }));
}

TEST(KeyBase64, WhiteSpaceIsSkipped)
{
    std::string folded;
    for (std::size_t i = 0; i < derived.size(); i += 7)
        folded += " \t" + derived.substr(i, 7) + "\r\n";
    EXPECT_EQ(derived, SPasswordDerivedKey::FromBase64(folded).ToBase64());
    EXPECT_EQ(emptyBundle, SExplicitBackupKeys::FromBase64(" " + emptyBundle + "\n").ToBase64());
}

TEST(KeyBase64, EveryTruncationIsRefused)
{
    for (std::size_t length = 0; length < bundle.size(); ++length)
        EXPECT_NE("", failureText([&] { SExplicitBackupKeys::FromBase64(bundle.substr(0, length)); })) << length;
    for (std::size_t length = 0; length < derived.size(); ++length)
        EXPECT_NE("", failureText([&] { SPasswordDerivedKey::FromBase64(derived.substr(0, length)); })) << length;
}

TEST(KeyBase64, TextsThatNobodyWritesAreRefused)
{
    const std::string body = derived.substr(0, derived.size() - 4);
    const std::string cases[] = {
        body + "dCE",            // without padding
        body + "dCE==",          // too much of it
        body + "dCF=",           // unused bits that are not zero
        body + "d===",           // one character alone
        body + "dC=E",           // padding inside the last four
        derived + "AAAA",        // padding in the middle
        derived + "=",           // a stray one
        "====" + derived,        //
        "AQ==" + derived,        // two texts, one after the other
        "-" + derived.substr(1), // another alphabet
        "_" + derived.substr(1), //
        "*" + derived.substr(1), //
        body + "dCE=\v",         // white space of another kind
        body + std::string("\0dCE=", 5),
        body + "dC\xC3\xA9=",
        "=",
        "A",
    };
    for (const std::string& text : cases)
    {
        EXPECT_EQ("Unable to decode base64 text.", failureText([&] { SPasswordDerivedKey::FromBase64(text); })) << text;
        EXPECT_EQ("Unable to decode base64 text.", failureText([&] { SExplicitBackupKeys::FromBase64(text); })) << text;
    }
}

TEST(KeyBase64, EmptyTextIsAnEmptyStream)
{
    for (const char* text : {"", " ", "\r\n"})
    {
        EXPECT_EQ("Failed to retrieve value from the binary stream: received less bytes (0) than expected (4).",
                  failureText([&] { SExplicitBackupKeys::FromBase64(text); }));
        const std::string failure = failureText([&] { SPasswordDerivedKey::FromBase64(text); });
        EXPECT_EQ(0U, failure.find("Failed to retrieve value from the binary stream: received less bytes (0) than "
                                   "expected ("))
            << failure;
    }
}

// Bytes after a bundle are left alone, as they are in a stream.
TEST(KeyBase64, BytesAfterTheBundleAreIgnored)
{
    EXPECT_EQ(emptyBundle, SExplicitBackupKeys::FromBase64(emptyBundle + "AAAA").ToBase64());
    EXPECT_EQ(bundle, SExplicitBackupKeys::FromBase64(bundle + "/w==").ToBase64());
}

} // namespace
