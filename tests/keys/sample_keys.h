#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include <platform/memory_device.h>
#include <zelmodel/keys.h>

namespace zelmodel_test
{

inline crypto::sec_buffer_t secure(std::string_view bytes)
{
    return {bytes.begin(), bytes.end()};
}

inline std::shared_ptr<crypto::CKey> key(std::string_view bytes)
{
    return std::make_shared<crypto::CKey>(secure(bytes));
}

/// What a key set is made of; small changes of it make other ones.
struct KeySetParts
{
    std::string id = std::string("\x0A\x00\xFF", 3);
    int alg = 1;
    int role = 2;
    std::wstring hint = L"h\u00FC";
    long seconds = 1709728496;
    unsigned nanoseconds = 5;
    std::vector<std::string> keys = {"key-one", std::string("\x00\x01", 2)};

    std::shared_ptr<crypto::CKeySet> make() const
    {
        std::vector<std::shared_ptr<crypto::CKey>> made;
        for (const auto& bytes : keys)
            made.push_back(key(bytes));
        return std::make_shared<crypto::CKeySet>(crypto::CKeySetId(id), static_cast<crypto::ECryptAlgs>(alg),
                                                 static_cast<crypto::EKeySetUsageRole>(role), CUniString(hint),
                                                 lin::lin_filetime_t{seconds, nanoseconds}, made);
    }
};

/// Whether two key sets hold the same.
inline bool same(const crypto::CKeySet& a, const crypto::CKeySet& b)
{
    if (a.GetKeys().size() != b.GetKeys().size())
        return false;
    for (std::size_t i = 0; i < a.GetKeys().size(); ++i)
    {
        if (*a.GetKeys()[i] != *b.GetKeys()[i])
            return false;
    }
    return a.GetId() == b.GetId() && a.GetAlg() == b.GetAlg() && a.GetUsageRole() == b.GetUsageRole() &&
           a.GetHint() == b.GetHint() && a.GetCreationTime().seconds == b.GetCreationTime().seconds &&
           a.GetCreationTime().nanoseconds == b.GetCreationTime().nanoseconds;
}

/// The binary form of a record.
template <class TRecord>
std::string serialized(const TRecord& record)
{
    TestDevice device;
    io::binary_stream_tt stream(device);
    record.Serialize(stream);
    return device.bytes;
}

/// The record that a binary form reads as.
template <class TRecord>
TRecord unserialized(const std::string& bytes, bool isSizeKnown)
{
    TestDevice device(bytes, isSizeKnown);
    io::binary_stream_tt stream(device);
    TRecord record;
    record.Unserialize(stream);
    return record;
}

/// Little-endian numbers and texts, put together by hand.
inline std::string little(unsigned long value, int width)
{
    std::string bytes;
    for (int i = 0; i < width; ++i)
        bytes += static_cast<char>(static_cast<unsigned char>(value >> (8 * i)));
    return bytes;
}

inline std::string u8(unsigned long value)
{
    return little(value, 1);
}

inline std::string u32(unsigned long value)
{
    return little(value, 4);
}

inline std::string u64(unsigned long value)
{
    return little(value, 8);
}

/// Length in four bytes and the bytes.
inline std::string text(const std::string& bytes)
{
    return u32(bytes.size()) + bytes;
}

/// The binary form of KeySetParts() as it is.
inline std::string keySetBytes()
{
    return u8(1) + u8(3) + std::string("\x0A\x00\xFF", 3) + u32(1) + u32(2) + u64(1709728496) + u32(5) +
           text("h\xC3\xBC") + u32(2) + text("key-one") + text(std::string("\x00\x01", 2));
}

} // namespace zelmodel_test
