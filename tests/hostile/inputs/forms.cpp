#include "hostile_input.h"

#include <zelmodel/keys.h>
#include <zelmodel/schedules.h>
#include <zelmodel/structs/qor_server.h>
#include <zelplatform/util/base64.h>

namespace zelmodel_test
{
namespace
{

using namespace zelplatform::model::structs;

/// A number of so many bytes, the lowest first.
std::string little(std::uint64_t value, std::size_t width)
{
    std::string bytes;
    for (std::size_t i = 0; i < width; ++i)
        bytes += static_cast<char>(static_cast<unsigned char>(i < sizeof(value) ? value >> 8 * i : 0));
    return bytes;
}

std::string lengthAnd(const std::string& bytes)
{
    return little(bytes.size(), 4) + bytes;
}

/// A key set of empty or equal keys.
std::string keySet(std::size_t keys, std::size_t keySize)
{
    std::string bytes = little(1, 1) + little(0, 1) + little(0, 4 + 4 + 8 + 4) + little(0, 4) + little(keys, 4);
    for (std::size_t i = 0; i < keys; ++i)
        bytes += lengthAnd(std::string(keySize, 'k'));
    return bytes;
}

std::string idOf(std::size_t number)
{
    const auto digits = std::to_string(1000000000000 + number);
    return lengthAnd("00000000-0000-4000-8000-" + digits.substr(1));
}

/// Entries until the size is reached; the identifiers differ unless they are empty.
std::string bundle(std::size_t size, const std::string& set, bool hasIds)
{
    const std::size_t count = size / (set.size() + (hasIds ? 40 : 4));
    std::string bytes = lengthAnd("") + little(count, 8);
    for (std::size_t i = 0; i < count; ++i)
        bytes += (hasIds ? idOf(i) : lengthAnd("")) + set;
    return bytes;
}

template <class TAction>
HostileInput form(const std::string& name, std::function<std::string(std::size_t)> make, TAction action)
{
    return {name, std::move(make), takingOrRefusing([action](const std::string& bytes) {
                io::mem_stream_tt memory(crypto::sec_buffer_t(bytes.begin(), bytes.end()));
                io::binary_stream_tt stream(memory);
                action(stream);
            })};
}

HostileInput keys(const std::string& name, const std::string& set, bool hasIds)
{
    return form(
        name, [=](std::size_t size) { return bundle(size, set, hasIds); },
        [](io::binary_stream_tt& stream) { SExplicitBackupKeys().Unserialize(stream); });
}

HostileInput server(const std::string& name, const std::string& start, const std::string& piece)
{
    return form(
        name,
        [=](std::size_t size) {
            return repeated(lengthAnd(""), 6 * 4) + lengthAnd(start + repeated(piece, size)) + little(0, 1) +
                   lengthAnd("");
        },
        [](io::binary_stream_tt& stream) { SQorServer().Unserialize(stream); });
}

HostileInput schedule(const std::string& name, const std::string& piece)
{
    return form(
        name, [=](std::size_t size) { return little(0, 1 + 4) + lengthAnd("<Schedule/>" + repeated(piece, size)); },
        [](io::binary_stream_tt& stream) { CScheduleOptions::Unserialize(stream); });
}

HostileInput base64(const std::string& name, const std::string& piece, const std::string& end = {})
{
    return {name, [=](std::size_t size) { return repeated(piece, size) + end; },
            takingOrRefusing([](const std::string& text) { util::fromBase64(text); })};
}

std::string base64Of(const std::string& bytes)
{
    return util::toBase64(bytes.data(), bytes.size());
}

} // namespace

std::vector<HostileInput> hostileForms()
{
    return {
        keys("key sets without keys", keySet(0, 0), true),
        keys("key sets of one identifier", keySet(0, 0), false),
        keys("key sets of one empty key", keySet(1, 0), true),
        keys("key sets of 4096 empty keys", keySet(4096, 0), true),
        keys("key sets of 4096 keys of one byte", keySet(4096, 1), true),
        keys("key sets of 4096 keys of 32 bytes", keySet(4096, 32), true),
        keys("key sets of 4096 keys of 33 bytes", keySet(4096, 33), true),
        keys("key sets of the longest keys", keySet(4, 65536), true),
        keys("key sets that announce keys", keySet(0, 0).substr(0, 26) + little(4096, 4), true),
        {"base64 of key sets of empty keys",
         [](std::size_t size) { return base64Of(bundle(size / 4 * 3, keySet(4096, 0), true)); },
         takingOrRefusing([](const std::string& text) { SExplicitBackupKeys::FromBase64(text); })},
        {"base64 of a bundle that is none",
         [](std::size_t size) { return base64Of(std::string(size / 4 * 3, '\xFF')); },
         takingOrRefusing([](const std::string& text) { SExplicitBackupKeys::FromBase64(text); })},
        base64("digits of base64", "QUJD"),
        base64("a wrong digit at the end of base64", "QUJD", "QU%D"),
        base64("lines of base64", "QUJD\r\n"),
        base64("blanks of base64", " "),
        base64("padding of base64", "="),
        server("endpoints", "", "a:1;"),
        server("endpoints with one wrong at the end", "a:1;b", ";"),
        server("separators of endpoints", "", ";"),
        server("one endpoint", "", "a"),
        server("colons of an endpoint", "", ":"),
        server("a port", "a:", "1"),
        schedule("schedules of a binary form", "<Schedule/>"),
        schedule("signs of a binary form", "<"),
    };
}

} // namespace zelmodel_test
