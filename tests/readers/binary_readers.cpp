#include <zelmodel/binary_values.h>
#include <zelmodel/keys.h>
#include <zelmodel/schedules.h>
#include <zelplatform/cloudbackuplib/cloudbackuplib.h>
#include <zelplatform/io/io.h>

#include "reader.h"
#include "samples.h"

namespace readers
{
namespace
{

using namespace zelplatform::model;
using namespace zelplatform::model::structs;
using io::binary_stream_tt;

// A device that cannot tell how much it holds, as a socket.
class EndlessDevice : public io::mem_stream_tt
{
public:
    using mem_stream_tt::mem_stream_tt;
    long remaining() const override { return -1; }
};

// What follows the record is not its own; it is not looked at.
template <class TDevice, class TRead>
auto readFrom(const std::string& bytes, const TRead& read)
{
    TDevice device(crypto::sec_buffer_t(bytes.begin(), bytes.end()));
    binary_stream_tt stream(device);
    return read(stream);
}

template <class TWrite>
std::string writtenBytes(const TWrite& write)
{
    io::mem_stream_tt device;
    binary_stream_tt stream(device);
    write(stream);
    return {device.buffer().begin(), device.buffer().end()};
}

template <class TRecord, class TDevice>
std::string rewriteRecord(const std::string& bytes)
{
    const auto record = readFrom<TDevice>(bytes, [](binary_stream_tt& stream) {
        TRecord read;
        read.Unserialize(stream);
        return read;
    });
    return writtenBytes([&](binary_stream_tt& stream) { record.Serialize(stream); });
}

template <class TOptions, class TDevice>
std::string rewriteOptions(const std::string& bytes)
{
    const auto options =
        readFrom<TDevice>(bytes, [](binary_stream_tt& stream) { return TOptions::Unserialize(stream); });
    return writtenBytes([&](binary_stream_tt& stream) { options.Serialize(stream); });
}

template <class TDevice>
std::string rewriteKeySet(const std::string& bytes)
{
    const auto keySet =
        readFrom<TDevice>(bytes, [](binary_stream_tt& stream) { return crypto::CKeySet::Unserial(stream); });
    return writtenBytes([&](binary_stream_tt& stream) { keySet->Serial(stream); });
}

template <class TDevice>
std::string rewriteGuid(const std::string& bytes)
{
    const auto id = readFrom<TDevice>(bytes, [](binary_stream_tt& stream) {
        guid::guid_t read;
        stream >> read;
        return read;
    });
    return writtenBytes([&](binary_stream_tt& stream) { stream << id; });
}

template <class TDevice>
std::string rewriteText(const std::string& bytes)
{
    const auto text = readFrom<TDevice>(bytes, [](binary_stream_tt& stream) { return stream.read_text(); });
    return writtenBytes([&](binary_stream_tt& stream) { stream.write_text(text); });
}

template <class TRecord>
std::string rewriteBase64(const std::string& text)
{
    return TRecord::FromBase64(text).ToBase64();
}

std::string rewriteClientId(const std::string& text)
{
    return cloudbackuplib::CCloudRepoClientId::Deserialize(text).Serialize();
}

template <class TDevice>
Readers streamReaders(const std::string& suffix)
{
    return {
        {"CScheduleOptions.Unserialize" + suffix,
         rewriteOptions<CScheduleOptions, TDevice>,
         {exampleBytes("schedule-options")}},
        {"CStartJobScheduleOptions.Unserialize" + suffix,
         rewriteOptions<CStartJobScheduleOptions, TDevice>,
         {exampleBytes("job-start")}},
        {"SQorServer.Unserialize" + suffix, rewriteRecord<SQorServer, TDevice>, {exampleBytes("managing-server")}},
        {"SExplicitBackupKeys.Unserialize" + suffix,
         rewriteRecord<SExplicitBackupKeys, TDevice>,
         {exampleBytes("key-bundle")}},
        {"SPasswordDerivedKey.Unserialize" + suffix,
         rewriteRecord<SPasswordDerivedKey, TDevice>,
         {exampleBytes("password-derived-key")}},
        {"CKeySet.Unserial" + suffix, rewriteKeySet<TDevice>, {exampleBytes("key-set")}},
        {"guid_t.stream" + suffix, rewriteGuid<TDevice>, {exampleBytes("guid")}},
        {"binary_stream_tt.read_text" + suffix, rewriteText<TDevice>, {exampleBytes("text")}},
    };
}

} // namespace

Readers binaryReaders()
{
    Readers readers = streamReaders<io::mem_stream_tt>("");
    for (auto& reader : streamReaders<EndlessDevice>(".endless"))
        readers.push_back(std::move(reader));
    readers.push_back(
        {"SExplicitBackupKeys.FromBase64", rewriteBase64<SExplicitBackupKeys>, {exampleBase64("key-bundle")}});
    readers.push_back({"SPasswordDerivedKey.FromBase64",
                       rewriteBase64<SPasswordDerivedKey>,
                       {exampleBase64("password-derived-key")}});
    readers.push_back({"CCloudRepoClientId.Deserialize", rewriteClientId, {exampleFile("binary/cloud-client.txt")}});
    return readers;
}

} // namespace readers
