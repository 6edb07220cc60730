#include <algorithm>
#include <memory>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include <zelmodel/binary_io.h>
#include <zelmodel/keys.h>
#include <zelplatform/exc/exc.h>

#include "bytes_of.h"
#include "markdown.h"

using namespace zelmodel_test;
using namespace zelplatform::model::structs;

namespace
{

constexpr const char* Page = "docs/formats.md";

std::string bytesOfBlock(const std::string& info)
{
    return bytesIn(partOf(partsOf(Page), EPart::Block, info));
}

std::string base64Of(const std::string& info)
{
    auto text = partOf(partsOf(Page), EPart::Block, info).text;
    text.erase(std::remove(text.begin(), text.end(), '\n'), text.end());
    return text;
}

crypto::sec_buffer_t secure(const std::string& bytes)
{
    return {bytes.begin(), bytes.end()};
}

std::shared_ptr<crypto::CKeySet> keySet()
{
    const auto key = std::make_shared<crypto::CKey>(secure("\xDE\xAD\xBE\xEF"));
    return std::make_shared<crypto::CKeySet>(crypto::CKeySetId("site-b"), crypto::Local1, crypto::Password,
                                             CUniString(L"blue"), lin::lin_filetime_t{1709816709, 0},
                                             std::vector<std::shared_ptr<crypto::CKey>>{key});
}

SExplicitBackupKeys bundle()
{
    SExplicitBackupKeys keys;
    keys.id = guid::guid_t::FromAStr("e2a57c90-14fb-4b8d-9d36-05c8f1e6a742");
    keys.keySets[guid::guid_t::FromAStr("84b0d3f9-2e61-47ca-8f15-d96c70ab31e5")] = keySet();
    return keys;
}

SPasswordDerivedKey derived(std::size_t size)
{
    const std::string bytes = "\x0A\x0B\x0C";
    return {keySet(), std::make_shared<crypto::sec_buffer_t>(secure(bytes + std::string(size - bytes.size(), 'x')))};
}

template <class TRecord>
std::string written(const TRecord& record)
{
    return bytesOf([&record](io::binary_stream_tt& stream) { record.Serialize(stream); });
}

/// Why an operation is refused; empty when it is not.
template <class TOperation>
std::string refusal(const TOperation& operation)
{
    try
    {
        operation();
    }
    catch (const exc::CRuntimeExc& refused)
    {
        return refused.what();
    }
    return {};
}

std::string refusalOfKeySet(const std::string& bytes)
{
    return refusal([&bytes] {
        io::mem_stream_tt device(secure(bytes));
        io::binary_stream_tt stream(device);
        crypto::CKeySet::Unserial(stream);
    });
}

} // namespace

TEST(FormatsKeys, KeySet)
{
    const auto bytes = bytesOfBlock("hex KeySet");
    EXPECT_EQ(bytesOf([](io::binary_stream_tt& stream) { keySet()->Serial(stream); }), bytes);
    EXPECT_EQ(refusalOfKeySet(bytes), "");
}

TEST(FormatsKeys, KeySetsThatAreRefused)
{
    const auto parts = partsOf(Page);
    int count = 0;
    for (const auto& part : parts)
    {
        if (part.kind != EPart::Table || part.rows.front().front() != "Byte of the key set")
            continue;
        for (auto row = part.rows.begin() + 1; row != part.rows.end(); ++row, ++count)
        {
            auto bytes = bytesOfBlock("hex KeySet");
            bytes.at(std::stoul(row->at(0))) = static_cast<char>(std::stoul(onlyCodeOf(row->at(1)), nullptr, 16));
            EXPECT_EQ(refusalOfKeySet(bytes), onlyCodeOf(row->at(2)));
        }
    }
    EXPECT_EQ(count, 8);
}

TEST(FormatsKeys, Bundle)
{
    const auto bytes = bytesOfBlock("hex BackupKeys") + bytesOfBlock("hex KeySet");
    EXPECT_EQ(written(bundle()), bytes);
    const auto text = base64Of("base64 BackupKeys");
    EXPECT_EQ(bundle().ToBase64(), text);
    EXPECT_EQ(written(SExplicitBackupKeys::FromBase64(partOf(partsOf(Page), EPart::Block, "base64 BackupKeys").text)),
              bytes);
    const std::string refused = "Unable to decode base64 text.";
    EXPECT_EQ(refusal([&text] { SExplicitBackupKeys::FromBase64(text.substr(1)); }), refused);
    EXPECT_EQ(refusal([&text] { SExplicitBackupKeys::FromBase64(text + "AAAA"); }), refused);

    SExplicitBackupKeys incomplete;
    incomplete.keySets[guid::guid_t()] = nullptr;
    EXPECT_EQ(refusal([&incomplete] { incomplete.ToBase64(); }), "There is no key set.");
}

TEST(FormatsKeys, PasswordDerivedKey)
{
    const auto bytes = bytesOfBlock("hex KeySet") + bytesOfBlock("hex PasswordDerivedKey");
    EXPECT_EQ(written(derived(3)), bytes);
    const auto text = base64Of("base64 PasswordDerivedKey");
    EXPECT_EQ(derived(3).ToBase64(), text);
    EXPECT_EQ(written(SPasswordDerivedKey::FromBase64(text)), bytes);

    EXPECT_EQ(refusal([] { written(SPasswordDerivedKey()); }), "There is no key set.");
    EXPECT_EQ(refusal([] { written(SPasswordDerivedKey{keySet(), nullptr}); }), "There is no buffer.");
    EXPECT_EQ(refusal([] { written(derived(255)); }), "");
    EXPECT_EQ(refusal([] { written(derived(256)); }), "Unable to cast value from [unsigned long] to [unsigned char].");
}

TEST(FormatsKeys, ManagingServer)
{
    SQorServer server;
    server.serverId = guid::guid_t::FromAStr("3c9a6e57-08b1-4d2f-bb60-917e4ad5c208");
    server.name = "Site B";
    server.dnsName = "b.example";
    server.version = "12.1";
    server.platformName = "Linux";
    server.endpoints = {{"b.example", 9392}, {"fe80::1", 9392}};
    server.isTrusted = true;
    server.installationId = guid::guid_t::FromAStr("b1d04c7e-6a25-4f93-8e1b-7c3f52a9e604");
    const auto bytes = bytesOfBlock("hex ManagingServer");
    EXPECT_EQ(written(server), bytes);

    const auto read = [](const std::string& form) {
        io::mem_stream_tt device(secure(form));
        io::binary_stream_tt stream(device);
        SQorServer result;
        result.Unserialize(stream);
        return result;
    };
    EXPECT_EQ(read(bytes), server);
    const auto changed = [&bytes](const std::string& from, const std::string& to) {
        auto form = bytes;
        return form.replace(form.find(from), from.size(), to);
    };
    EXPECT_TRUE(read(changed("\x01\x24", "\x02\x24")).isTrusted);
    EXPECT_EQ(refusal([&] { read(changed("b.example:9392;[fe80::1]:9392", "b.example;123456789;123456789")); }),
              "Unable to parse network endpoint [b.example]. Port is missing.");
    EXPECT_EQ(refusal([&] { read(changed("b.example:9392;[fe80::1]:9392", "b.example:09392;123456789:123")); }),
              "Unable to parse network endpoint [b.example:09392]. It reads as [b.example:9392].");
}
