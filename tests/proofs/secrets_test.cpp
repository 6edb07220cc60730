#include <memory>
#include <ostream>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include <keys/sample_keys.h>
#include <readers/outcome.h>
#include <readers/samples.h>
#include <support/golden.h>
#include <support/made_certificates.h>
#include <zelplatform/logging/logging.h>
#include <zelplatform/util/util.h>

namespace zelmodel_test
{
namespace
{

using readers::Texts;

/// What each secret is made of; no two share a piece, nor does anything else of a document.
const std::string AccessCanary = "q7Zt/0nWcV+4LxRu9BdKj2MhYs6PeGia";
const std::string TokenCanary = "vY3k8TfJ-qwXoH5zN1rCbU7DlEm2SgAp";
const std::string ProxyCanary = "I9yB6xGQkF0tLdW4jOaVhZ8cRu3pMsTn";
const std::string KeyCanary("\x9B\xE4\x17\xD2\x6C\xF8\x03\xA5\x7E\xC1\x58\xBD\x2F\x94\xEA\x46"
                            "\xB0\x1D\x83\xFC\x65\x39\xDE\x0A\x72\xCF\x98\x4B\xE7\x21\xAC\x56",
                            32);

/// An input with a secret in it, and the forms in which the secret would be found again.
struct SecretInput
{
    std::string reader;
    std::string input;
    Texts canaries;

    friend void PrintTo(const SecretInput& shown, std::ostream* out) { *out << shown.reader; }
};

std::string pieceOf(const std::string& canary, std::size_t at)
{
    constexpr std::size_t PieceSize = 10;
    return at + PieceSize <= canary.size() ? canary.substr(at, PieceSize) : std::string();
}

/// The canary of which ten bytes in a row stand in the text; empty when there is none.
std::string leakedInto(const std::string& text, const Texts& canaries)
{
    for (const auto& canary : canaries)
    {
        for (std::size_t at = 0; !pieceOf(canary, at).empty(); ++at)
        {
            if (text.find(pieceOf(canary, at)) != std::string::npos)
                return canary;
        }
    }
    return {};
}

std::string storageDocument()
{
    auto text = golden("AmazonS3SpecificParams/full.xml");
    text = replaced(text, "secret/Key+1", AccessCanary);
    text = replaced(text, "token==", TokenCanary);
    return replaced(text, "proxy-pass", ProxyCanary);
}

std::string containerDocument()
{
    return replaced(golden("root/full.xml"), "secret/Key+1", AccessCanary);
}

std::string keySet()
{
    KeySetParts parts;
    parts.keys = {KeyCanary, KeyCanary.substr(5) + KeyCanary.substr(0, 5)};
    const auto made = parts.make();
    TestDevice device;
    io::binary_stream_tt stream(device);
    made->Serial(stream);
    return device.bytes;
}

std::string keyBundle()
{
    const auto id = text("6b1f2c3d-0a1b-4c2d-8e3f-0123456789ab");
    return id + u64(1) + id + keySet();
}

std::string derivedKey()
{
    return keySet() + u8(KeyCanary.size()) + KeyCanary;
}

Texts keyForms()
{
    // In base64 the same bytes look differently after each of three beginnings; in hexadecimal digits, always the same.
    Texts forms{KeyCanary};
    std::string digits;
    for (const char c : KeyCanary)
    {
        constexpr char Digits[] = "0123456789abcdef";
        const auto byte = static_cast<unsigned char>(c);
        digits += {Digits[byte >> 4], Digits[byte & 15]};
    }
    forms.push_back(digits);
    for (std::size_t skipped = 0; skipped < 3; ++skipped)
        forms.push_back(util::toBase64(KeyCanary.data() + skipped, 27));
    return forms;
}

std::vector<SecretInput> secretInputs()
{
    const Texts storage{AccessCanary, TokenCanary, ProxyCanary};
    std::vector<SecretInput> inputs;
    for (const auto* reader :
         {"SAmazonS3SpecificParams.FromXmlStr", "SAmazonS3SpecificParams.FromXmlNode", "SAmazonS3Endpoint.FromXmlNode",
          "SAmazonS3Credentials.FromXmlNode", "tools.show", "tools.check", "tools.convert"})
        inputs.push_back({reader, storageDocument(), storage});
    for (const auto* reader : {"SExternalRepoCloudContainer.Unserialize", "SExternalRepoCloudContainer.FromXmlNode",
                               "tools.show", "tools.check", "tools.convert"})
        inputs.push_back({reader, containerDocument(), {AccessCanary}});

    inputs.push_back({"SExplicitBackupKeys.Unserialize", keyBundle(), keyForms()});
    inputs.push_back({"SExplicitBackupKeys.Unserialize.endless", keyBundle(), keyForms()});
    inputs.push_back({"SPasswordDerivedKey.Unserialize", derivedKey(), keyForms()});
    inputs.push_back({"CKeySet.Unserial", keySet(), keyForms()});
    for (const auto& bytes : {keyBundle(), derivedKey()})
        inputs.push_back({"tools.dump", bytes, keyForms()});
    const auto base64 = [](const std::string& bytes) { return util::toBase64(bytes.data(), bytes.size()); };
    inputs.push_back({"SExplicitBackupKeys.FromBase64", base64(keyBundle()), {base64(keyBundle())}});
    inputs.push_back({"SPasswordDerivedKey.FromBase64", base64(derivedKey()), {base64(derivedKey())}});
    inputs.push_back({"util.fromBase64", base64(keySet()), {base64(keySet())}});

    const auto pem = pemOf(makeEcKey().get());
    inputs.push_back({"CEvpPrivateKey.FromPem", pem, {bodyOf(pem)}});
    return inputs;
}

/// Only what is shown counts: what was written is the document itself, of tools that tell it is what people see.
std::string shownOf(const SecretInput& secret, const std::string& input)
{
    const auto& reader = readers::find(secret.reader);
    const auto outcome = attempt(reader, input);
    const bool isShown = reader.written == readers::EWritten::Words;
    return outcome.refusal + (isShown ? outcome.written.value_or("") : "");
}

class Secrets : public testing::TestWithParam<SecretInput>
{
protected:
    Secrets() { logging::set_sink(m_log); }
    ~Secrets() override { logging::set_sink(m_before); }

    /// The secret that the input brought to light; empty when it brought none.
    std::string leakOf(const std::string& input)
    {
        auto shown = shownOf(GetParam(), input);
        for (const auto& entry : m_log->entries())
            shown += '\n' + entry.text;
        m_log->clear();
        return leakedInto(shown, GetParam().canaries);
    }

private:
    std::shared_ptr<logging::ILogSink> m_before = logging::current_sink();
    std::shared_ptr<logging::memory_sink> m_log = std::make_shared<logging::memory_sink>();
};

TEST_P(Secrets, AreFoundInTheInput)
{
    EXPECT_NE("", leakedInto(GetParam().input, GetParam().canaries));
}

TEST_P(Secrets, StayHiddenWholeOrCut)
{
    const auto& input = GetParam().input;
    for (std::size_t size = 0; size <= input.size(); ++size)
        ASSERT_EQ("", leakOf(input.substr(0, size))) << "after " << size << " bytes:\n"
                                                     << shownOf(GetParam(), input.substr(0, size));
}

TEST_P(Secrets, StayHiddenWithAFlippedBit)
{
    const auto& input = GetParam().input;
    for (std::size_t at = 0; at < input.size(); ++at)
    {
        for (const int bit : {0, 2, 5, 7})
        {
            auto damaged = input;
            damaged[at] = static_cast<char>(damaged[at] ^ (1 << bit));
            ASSERT_EQ("", leakOf(damaged)) << "bit " << bit << " of byte " << at << " of " << input << '\n'
                                           << shownOf(GetParam(), damaged);
        }
    }
}

std::string inputName(const testing::TestParamInfo<SecretInput>& info)
{
    return replaced(info.param.reader, ".", "_") + "_" + std::to_string(info.index);
}

INSTANTIATE_TEST_SUITE_P(All, Secrets, testing::ValuesIn(secretInputs()), inputName);

} // namespace
} // namespace zelmodel_test
