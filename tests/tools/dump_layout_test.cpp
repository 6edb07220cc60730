#include <algorithm>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include <zelmodel/keys.h>

#include "dump_samples.h"

namespace
{

using namespace zelmodel_test;
namespace structs = zelplatform::model::structs;

/// Remembers where each read began and ended.
class RecordingDevice : public io::io_dev_redirector_t
{
public:
    explicit RecordingDevice(const std::string& bytes) : m_bytes(bytes) {}

    long write(const void*, unsigned long) override { return -1; }
    long read(void* data, unsigned long size) override
    {
        const auto count = m_bytes.copy(static_cast<char*>(data), size, m_position);
        reads.emplace_back(m_position, m_position + count);
        m_position += count;
        return static_cast<long>(count);
    }
    long remaining() const override { return static_cast<long>(m_bytes.size() - m_position); }

    std::vector<std::pair<std::size_t, std::size_t>> reads;

private:
    const std::string& m_bytes;
    std::size_t m_position = 0;
};

void collectEnds(const dump::Span& span, std::set<std::size_t>& ends)
{
    if (span.isValue())
        ends.insert({span.offset, span.content, span.end});
    for (const auto& child : span.children)
        collectEnds(child, ends);
}

/// The library reads whole fields, one after the other: each read begins and ends where a named field does.
TEST(DumpLayout, FollowsTheReadsOfTheLibrary)
{
    for (const auto& sample : dumpSamples())
    {
        SCOPED_TRACE(sample.form.name);
        RecordingDevice device(sample.bytes);
        io::binary_stream_tt stream(device);
        sample.form.read(stream);
        dump::Walk walk(sample.bytes);
        sample.form.walk(walk);
        EXPECT_TRUE(walk.isWhole());
        std::set<std::size_t> ends;
        collectEnds(walk.root(), ends);
        std::size_t at = 0;
        for (const auto& [begin, end] : device.reads)
        {
            EXPECT_EQ(begin, at);
            EXPECT_EQ(ends.count(begin), 1U) << begin;
            EXPECT_EQ(ends.count(end), 1U) << end;
            at = end;
        }
        EXPECT_EQ(at, sample.bytes.size());
    }
}

void collectBytes(const std::vector<dump::Field>& fields, std::size_t& next)
{
    for (const auto& field : fields)
    {
        EXPECT_EQ(field.offset, next) << field.node.name;
        if (field.fields.empty())
            next += field.length;
        else
            collectBytes(field.fields, next);
        EXPECT_EQ(field.offset + field.length, next) << field.node.name;
    }
}

TEST(DumpLayout, GivesEveryByteToOneField)
{
    for (const auto& sample : dumpSamples())
    {
        SCOPED_TRACE(sample.form.name);
        const auto told = dump::tell(sample.bytes, &sample.form, false);
        EXPECT_FALSE(told.refusal);
        std::size_t next = 0;
        collectBytes(told.fields, next);
        EXPECT_EQ(next, sample.bytes.size());
    }
}

std::string hexadecimalOf(const char* data, std::size_t size)
{
    auto text = crypto::CKeySetId(std::string_view(data, size)).ToLogString();
    std::transform(text.begin(), text.end(), text.begin(),
                   [](char c) { return c >= 'A' && c <= 'F' ? static_cast<char>(c - 'A' + 'a') : c; });
    return text;
}

void expectKeySet(const dump::Dump& told, const std::string& path, const crypto::CKeySet& keySet)
{
    EXPECT_EQ(valueAt(told, path + "version"), "1");
    EXPECT_EQ(valueAt(told, path + "id"), keySet.GetId().ToLogString());
    EXPECT_EQ(valueAt(told, path + "alg"), std::to_string(static_cast<int>(keySet.GetAlg())));
    EXPECT_EQ(valueAt(told, path + "role"), std::to_string(static_cast<int>(keySet.GetUsageRole())));
    EXPECT_EQ(valueAt(told, path + "creationTime"), std::to_string(keySet.GetCreationTime().seconds));
    EXPECT_EQ(valueAt(told, path + "nanoseconds"), std::to_string(keySet.GetCreationTime().nanoseconds));
    EXPECT_EQ(valueAt(told, path + "hint"), CUtf8String::FromWide(keySet.GetHint()).str());
    EXPECT_EQ(valueAt(told, path + "keyCount"), std::to_string(keySet.GetKeys().size()));
    for (std::size_t at = 0; at < keySet.GetKeys().size(); ++at)
    {
        const auto& key = *keySet.GetKeys()[at];
        EXPECT_EQ(valueAt(told, path + "keys/" + std::to_string(at)), hexadecimalOf(key.data(), key.size()));
    }
}

TEST(DumpLayout, HoldsTheValuesThatTheLibraryReads)
{
    const auto bundleBytes = exampleBytes("key-bundle.b64");
    const auto bundle = unserialized<structs::SExplicitBackupKeys>(bundleBytes, true);
    const auto toldBundle = dump::tell(bundleBytes, nullptr, true);
    EXPECT_EQ(valueAt(toldBundle, "id"), bundle.id.ToAStr());
    EXPECT_EQ(valueAt(toldBundle, "count"), std::to_string(bundle.keySets.size()));
    std::size_t at = 0;
    for (const auto& [id, keySet] : bundle.keySets)
    {
        const auto path = "keySets/" + std::to_string(at++) + '/';
        EXPECT_EQ(valueAt(toldBundle, path + "entryId"), id.ToAStr());
        expectKeySet(toldBundle, path, *keySet);
    }
    EXPECT_EQ(at, 2U);

    const auto derivedBytes = exampleBytes("password-derived-key.b64");
    const auto derived = unserialized<structs::SPasswordDerivedKey>(derivedBytes, true);
    const auto toldDerived = dump::tell(derivedBytes, nullptr, true);
    expectKeySet(toldDerived, "", *derived.keySet);
    EXPECT_EQ(valueAt(toldDerived, "buffer"), hexadecimalOf(derived.buffer->data(), derived.buffer->size()));
}

TEST(DumpLayout, HoldsTheValuesOfAServer)
{
    const auto bytes = exampleBytes("managing-server.b64");
    const auto server = unserialized<structs::SQorServer>(bytes, true);
    const auto told = dump::tell(bytes, nullptr, false);
    EXPECT_EQ(valueAt(told, "serverId"), server.serverId.ToAStr());
    EXPECT_EQ(valueAt(told, "name"), server.name);
    EXPECT_EQ(valueAt(told, "dnsName"), server.dnsName);
    EXPECT_EQ(valueAt(told, "description"), server.description);
    EXPECT_EQ(valueAt(told, "version"), server.version);
    EXPECT_EQ(valueAt(told, "platformName"), server.platformName);
    EXPECT_EQ(valueAt(told, "endpoints"), io::net::CNetworkEndpoint::MergeToString(server.endpoints));
    EXPECT_EQ(valueAt(told, "isTrusted"), "true");
    EXPECT_EQ(valueAt(told, "installationId"), server.installationId.ToAStr());
}

TEST(DumpLayout, TellsNumbersThatTheLibraryHasNoNameFor)
{
    KeySetParts parts;
    parts.alg = -7;
    parts.role = 11;
    parts.seconds = 9223372036854775807L;
    parts.id = std::string();
    parts.hint.clear();
    structs::SPasswordDerivedKey key{parts.make(), std::make_shared<crypto::sec_buffer_t>()};
    const auto told = dump::tell(serialized(key), nullptr, false);
    EXPECT_EQ(wordsAt(told, "alg"), "-7, unknown");
    EXPECT_EQ(wordsAt(told, "role"), "11, unknown");
    EXPECT_EQ(wordsAt(told, "creationTime"), "9223372036854775807 seconds since 1970");
    EXPECT_EQ(wordsAt(told, "id"), "none");
    EXPECT_EQ(wordsAt(told, "hint"), "none");
    EXPECT_EQ(wordsAt(told, "buffer"), "none");
    EXPECT_FALSE(fieldAt(told.fields, "hint").node.secret);
}

TEST(DumpLayout, MarksAnEntryWhoseIdentifierComesAgain)
{
    const std::string id = "84b0d3f9-2e61-47ca-8f15-d96c70ab31e5";
    const std::string otherCase = "{84B0D3F9-2E61-47CA-8F15-D96C70AB31E5}";
    const auto bytes =
        text("") + u64(3) + text(id) + keySetBytes() + text("") + keySetBytes() + text(otherCase) + keySetBytes();
    const auto told = dump::tell(bytes, nullptr, false);
    EXPECT_EQ(wordsAt(told, "keySets/0"), "passed over: Key set 3 has the same identifier");
    EXPECT_EQ(wordsAt(told, "keySets/1"), "");
    EXPECT_EQ(wordsAt(told, "keySets/2"), "");
}

} // namespace
