#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include <zelmodel/export.h>

namespace zelplatform::model
{

/// How the data of a job is compressed. Three texts stand for a value: the name in the agent's documents, the agent's
/// level 0..4, and the managing server's level, which is the number itself.
struct ZELMODEL_API BackupJobCompression
{
    enum type : std::int32_t
    {
        NoCompression = 0,
        Rle = 1,
        Lz4 = 5,
        Zstd3 = 6,
        Zstd9 = 9
    };

    /// What a new job has.
    static constexpr type Default = Lz4;

    /// The name; throws "Unable to convert BackupJobCompression::type [%1] to string.".
    static std::string toStr(type value);

    /// Reads a name, the older "ZlibLow" (Zstd3) and "ZlibHigh" (Zstd9) included; throws "Unable to convert string [%1]
    /// to BackupJobCompression::type.".
    static type fromStr(const std::string& text);

    /// The agent's level, "0" ... "4"; throws "Failed to convert compression type [%1] to level string ...".
    static std::string toLevelStr(type value);

    /// Reads the agent's level; throws "Unable to convert level string [%1] to BackupJobCompression::type.".
    static type fromLevelStr(const std::string& text);

    /// Reads the managing server's level, "0", "1", "5", "6" or "9"; throws "Unable to convert QOR level string [%1] to
    /// BackupJobCompression::type.".
    static type fromQorLevelStr(const std::string& text);

    /// The five names in value order.
    static std::vector<std::string> toStringList();

    /// The five agent levels in value order.
    static std::vector<std::string> toLevelStringList();

    /// The value for any number: 0 and -1 none, 1..4 Rle, 5 Lz4, 6..8 Zstd3, every other one Zstd9.
    static type Normalize(int level) noexcept;

    /// The same value: the agent knows them all.
    static type ToAgentLevel(type value) noexcept;
};

} // namespace zelplatform::model
