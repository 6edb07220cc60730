#include <zelmodel/backup_job_compression.h>

#include <zelplatform/exc/exc.h>
#include <zelplatform/util/util.h>

#include "detail/enum_rows.h"

namespace zelplatform::model
{
namespace
{

using Rows = BackupJobCompression;

constexpr auto Names = detail::enumRows<Rows::type>({
    {Rows::NoCompression, "NoCompression"},
    {Rows::Rle, "Rle"},
    {Rows::Lz4, "Lz4"},
    {Rows::Zstd3, "Zstd3"},
    {Rows::Zstd9, "Zstd9"},
    {Rows::Zstd3, "ZlibLow", detail::ERowUse::ReadOnly},
    {Rows::Zstd9, "ZlibHigh", detail::ERowUse::ReadOnly},
});

constexpr auto AgentLevels = detail::enumRows<Rows::type>({
    {Rows::NoCompression, "0"},
    {Rows::Rle, "1"},
    {Rows::Lz4, "2"},
    {Rows::Zstd3, "3"},
    {Rows::Zstd9, "4"},
});

constexpr auto QorLevels = detail::enumRows<Rows::type>({
    {Rows::NoCompression, "0"},
    {Rows::Rle, "1"},
    {Rows::Lz4, "5"},
    {Rows::Zstd3, "6"},
    {Rows::Zstd9, "9"},
});

} // namespace

std::string BackupJobCompression::toStr(type value)
{
    if (const auto text = detail::findText(Names, value))
        return std::string(*text);
    throw exc::CRuntimeExc("Unable to convert BackupJobCompression::type [%1] to string.", util::toStr(value));
}

BackupJobCompression::type BackupJobCompression::fromStr(const std::string& text)
{
    if (const auto value = detail::findValue(Names, text))
        return *value;
    throw exc::CRuntimeExc("Unable to convert string [%1] to BackupJobCompression::type.", text);
}

std::string BackupJobCompression::toLevelStr(type value)
try
{
    if (const auto text = detail::findText(AgentLevels, value))
        return std::string(*text);
    throw exc::CRuntimeExc("Unsupported compression level");
}
catch (std::exception& cause)
{
    exc::RegenTraceExc("Failed to convert compression type [%1] to level string", util::toStr(value), cause);
}

BackupJobCompression::type BackupJobCompression::fromLevelStr(const std::string& text)
{
    if (const auto value = detail::findValue(AgentLevels, text))
        return *value;
    throw exc::CRuntimeExc("Unable to convert level string [%1] to BackupJobCompression::type.", text);
}

BackupJobCompression::type BackupJobCompression::fromQorLevelStr(const std::string& text)
{
    if (const auto value = detail::findValue(QorLevels, text))
        return *value;
    throw exc::CRuntimeExc("Unable to convert QOR level string [%1] to BackupJobCompression::type.", text);
}

std::vector<std::string> BackupJobCompression::toStringList()
{
    return detail::listTexts(Names);
}

std::vector<std::string> BackupJobCompression::toLevelStringList()
{
    return detail::listTexts(AgentLevels);
}

// -1 is no compression but -2 is the strongest, kept on purpose.
BackupJobCompression::type BackupJobCompression::Normalize(int level) noexcept
{
    if (level == 0 || level == -1)
        return NoCompression;
    if (level >= 1 && level <= 4)
        return Rle;
    if (level == 5)
        return Lz4;
    if (level >= 6 && level <= 8)
        return Zstd3;
    return Zstd9;
}

BackupJobCompression::type BackupJobCompression::ToAgentLevel(type value) noexcept
{
    return value;
}

} // namespace zelplatform::model
