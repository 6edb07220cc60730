#include <algorithm>
#include <functional>
#include <limits>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include <keys/sample_keys.h>
#include <support/allocations/allocation_watch.h>
#include <support/expect_failure.h>
#include <support/stream_failures.h>
#include <zelmodel/binary_values.h>
#include <zelmodel/keys.h>
#include <zelmodel/schedules.h>
#include <zelmodel/structs/qor_server.h>
#include <zelplatform/util/base64.h>

namespace
{

using namespace zelplatform::model::structs;
using zelmodel_test::failureText;
using zelmodel_test::keySetBytes;
using zelmodel_test::little;
using zelmodel_test::shortRead;
using zelmodel_test::TestDevice;
using zelmodel_test::text;
using zelmodel_test::u32;
using zelmodel_test::u64;
using zelmodel_test::u8;

using Read = std::function<void(io::binary_stream_tt&)>;

const std::string id = "6b1f2c3d-0a1b-4c2d-8e3f-0123456789ab";

/// A length or count in a binary form, what stands before and behind it, and how its lies are refused.
struct Field
{
    std::string name;
    Read read;
    std::string before;
    int width;
    std::string behind;
    std::function<std::string(unsigned long announced)> refusal;
};

/// The bytes that a length announces must be there; some more may belong to the same read.
auto refusedByLength(const std::string& behind, const std::string& context = {}, unsigned long more = 0)
{
    return [=](unsigned long announced) { return context + shortRead(behind.size(), announced + more); };
}

/// The same, unless the length is more than the field can have.
auto refusedByLimit(const std::string& behind, unsigned long most, const std::string& start, const std::string& end,
                    unsigned long more = 0)
{
    return [=](unsigned long announced) {
        return announced > most ? start + std::to_string(announced) + end : shortRead(behind.size(), announced + more);
    };
}

/// All that is there was taken, and the length of the next entry is missing.
std::string refusedAtTheEnd(unsigned long)
{
    return shortRead(0, 4);
}

template <class T>
void readNew(io::binary_stream_tt& stream)
{
    T record;
    record.Unserialize(stream);
}

template <class T>
void readStatic(io::binary_stream_tt& stream)
{
    T::Unserialize(stream);
}

void readId(io::binary_stream_tt& stream)
{
    using zelplatform::model::operator>>;
    guid::guid_t read;
    stream >> read;
}

void readKeySet(io::binary_stream_tt& stream)
{
    crypto::CKeySet::Unserial(stream);
}

/// The managing server: its fields up to one, whose length lies.
std::vector<Field> serverFields()
{
    const struct
    {
        const char* name;
        std::string before;
    } rows[] = {
        {"server id", ""},
        {"server name", text(id)},
        {"server DNS name", text(id) + text("name")},
        {"server description", text(id) + text("name") + text("dns")},
        {"server version", text(id) + text("name") + text("dns") + text("")},
        {"server platform", text(id) + text("name") + text("dns") + text("") + text("12.1")},
        {"server endpoints", text(id) + text("name") + text("dns") + text("") + text("12.1") + text("")},
        {"server installation id",
         text(id) + text("name") + text("dns") + text("") + text("12.1") + text("") + text("host:1") + u8(1)},
    };
    std::vector<Field> fields;
    for (const auto& row : rows)
        fields.push_back({row.name, readNew<SQorServer>, row.before, 4, "host:1", refusedByLength("host:1")});
    return fields;
}

/// A key set that stands behind other bytes.
std::vector<Field> keySetFields(const std::string& name, const Read& read, const std::string& before)
{
    const std::string numbers = u32(1) + u32(2) + u64(0) + u32(0);
    const std::string untilHint = before + u8(1) + u8(2) + "id" + numbers;
    return {
        {name + " id", read, before + u8(1), 1, "id",
         refusedByLimit("id", 64, "Key set id of [", "] bytes is longer than [64].", numbers.size())},
        {name + " hint", read, untilHint, 4, "hint", refusedByLength("hint")},
        {name + " key count", read, untilHint + text("hint"), 4, text("key") + text(""),
         [](unsigned long announced) {
             return announced > 4096 ? "Key set of [" + std::to_string(announced) + "] keys has more than [4096]."
                                     : refusedAtTheEnd(announced);
         }},
        {name + " key", read, untilHint + text("hint") + u32(2) + text("key"), 4, "key",
         refusedByLimit("key", 65536, "Key of [", "] bytes is longer than [65536].")},
        {name + " long key", read, untilHint + text("hint") + u32(1), 4, std::string(40, 'k'),
         refusedByLimit(std::string(40, 'k'), 65536, "Key of [", "] bytes is longer than [65536].")},
    };
}

template <class T>
Read readBase64()
{
    // The form of the stream as a text; the bytes are taken whole.
    return [](io::binary_stream_tt& stream) {
        auto& device = dynamic_cast<TestDevice&>(stream.device());
        T::FromBase64(util::toBase64(device.bytes.data(), device.bytes.size()));
    };
}

std::vector<Field> keyFields()
{
    std::vector<Field> fields;
    for (const bool isBase64 : {false, true})
    {
        const std::string form = isBase64 ? " in base64" : "";
        const Read bundle = isBase64 ? readBase64<SExplicitBackupKeys>() : readNew<SExplicitBackupKeys>;
        const Read derived = isBase64 ? readBase64<SPasswordDerivedKey>() : readNew<SPasswordDerivedKey>;
        const std::string entry = text(id) + keySetBytes();
        fields.push_back({"bundle id" + form, bundle, "", 4, id, refusedByLength(id)});
        fields.push_back({"bundle count" + form, bundle, text(id), 8, entry + entry, refusedAtTheEnd});
        fields.push_back({"bundle count of nothing" + form, bundle, text(id), 8, "", refusedAtTheEnd});
        fields.push_back({"entry id" + form, bundle, text(id) + u64(2) + entry, 4, id, refusedByLength(id)});
        fields.push_back({"derivation" + form, derived, keySetBytes(), 1, "12345", refusedByLength("12345")});
        const auto add = [&](const std::string& name, const Read& read, const std::string& before) {
            for (auto& field : keySetFields(name + form, read, before))
                fields.push_back(std::move(field));
        };
        add("first key set of a bundle", bundle, text(id) + u64(1) + text(id));
        add("second key set of a bundle", bundle, text(id) + u64(2) + entry + text(id));
        add("derived key set", derived, "");
    }
    for (auto& field : keySetFields("key set", readKeySet, ""))
        fields.push_back(std::move(field));
    return fields;
}

std::vector<Field> allFields()
{
    const std::string start = "<Schedule/>";
    std::vector<Field> fields = {
        {"GUID", readId, "", 4, id, refusedByLength(id)},
        {"schedule", readStatic<CScheduleOptions>, u8(1) + u32(0), 4, start,
         refusedByLength(start, "ScheduleOptions: Failed to deserialize. ")},
        {"start of a job", readStatic<CStartJobScheduleOptions>, "", 4, start, refusedByLength(start)},
    };
    for (const auto& family : {serverFields(), keyFields()})
        fields.insert(fields.end(), family.begin(), family.end());
    return fields;
}

/// What the field can announce in its width and does not keep.
std::vector<unsigned long> liesOf(const Field& field)
{
    const unsigned long remaining = field.behind.size();
    std::vector<unsigned long> lies;
    for (const unsigned long lie : {remaining + 1, 255UL, 1UL << 31, (1UL << 32) - 1, 1UL << 32, 1UL << 63, ~0UL})
    {
        if (field.width == 8 || lie < 1UL << 8 * field.width)
            lies.push_back(lie);
    }
    return lies;
}

struct Refusal
{
    std::string message;
    std::size_t allocated = 0;
};

Refusal refusalOf(const Field& field, const std::string& bytes, bool isSizeKnown)
{
    TestDevice device(bytes, isSizeKnown);
    io::binary_stream_tt stream(device);
    Refusal refusal;
    zelmodel_test::watchAllocations();
    refusal.message = failureText([&] { field.read(stream); });
    refusal.allocated = zelmodel_test::allocatedInAll();
    return refusal;
}

TEST(LyingLengths, AreRefusedWithTheirSentenceAndBeforeMemoryIsTaken)
{
    for (const auto& field : allFields())
    {
        for (const unsigned long lie : liesOf(field))
        {
            const std::string bytes = field.before + little(lie, field.width) + field.behind;
            for (const bool isSizeKnown : {true, false})
            {
                SCOPED_TRACE(field.name + " of " + std::to_string(lie));
                const auto refusal = refusalOf(field, bytes, isSizeKnown);
                EXPECT_EQ(field.refusal(lie), refusal.message);
                EXPECT_LE(refusal.allocated, bytes.size() + (1UL << 20));
            }
        }
    }
}

// A device that does not know what is left gives what it has: memory follows it in steps.
TEST(LyingLengths, LongTextsTakeNoMoreThanTwiceWhatArrived)
{
    const std::string behind(3UL << 20, 'x');
    const std::string bytes = u32(std::numeric_limits<std::uint32_t>::max()) + behind;
    for (const bool isSizeKnown : {true, false})
    {
        TestDevice device(bytes, isSizeKnown);
        io::binary_stream_tt stream(device);
        zelmodel_test::watchAllocations();
        EXPECT_EQ(shortRead(behind.size(), std::numeric_limits<std::uint32_t>::max()),
                  failureText([&] { readStatic<CStartJobScheduleOptions>(stream); }));
        EXPECT_LE(zelmodel_test::mostHeld(), isSizeKnown ? 1UL << 20 : 2 * bytes.size() + (1UL << 20));
    }
}

} // namespace
