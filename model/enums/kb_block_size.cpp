#include <zelmodel/enums/kb_block_size.h>

#include <zelplatform/exc/exc.h>
#include <zelplatform/util/util.h>

#include "detail/enum_rows.h"

namespace zelplatform::model
{
namespace
{

using Rows = KbBlockSize;

constexpr auto StoredNames = detail::enumRows<Rows::type>({
    {Rows::KbBlockSize256, "KbBlockSize256"},
    {Rows::KbBlockSize512, "KbBlockSize512"},
    {Rows::KbBlockSize1024, "KbBlockSize1024"},
    {Rows::KbBlockSize2048, "KbBlockSize2048"},
    {Rows::KbBlockSize4096, "KbBlockSize4096"},
    {Rows::KbBlockSize8192, "KbBlockSize8192"},
    {Rows::KbBlockSize1024, "Default", detail::ERowUse::ReadOnly},
});

constexpr auto KilobyteTexts = detail::enumRows<Rows::type>({
    {Rows::KbBlockSize256, "256"},
    {Rows::KbBlockSize512, "512"},
    {Rows::KbBlockSize1024, "1024"},
    {Rows::KbBlockSize2048, "2048"},
    {Rows::KbBlockSize4096, "4096"},
    {Rows::KbBlockSize8192, "8192"},
});

} // namespace

std::string KbBlockSize::toStr(type value)
{
    if (const auto text = detail::findText(StoredNames, value))
        return std::string(*text);
    throw exc::CRuntimeExc("Unable to convert KbBlockSize::type [%1] to string.", util::toStr(value));
}

KbBlockSize::type KbBlockSize::fromStr(const std::string& text)
{
    if (const auto value = detail::findValue(StoredNames, text))
        return *value;
    throw exc::CRuntimeExc("Unable to convert string [%1] to KbBlockSize::type.", text);
}

KbBlockSize::type KbBlockSize::FromKBytesStr(const std::string& kilobytes)
{
    if (const auto value = detail::findValue(KilobyteTexts, kilobytes))
        return *value;
    throw exc::CRuntimeExc("Unable to convert %1 to KbBlockSize.", kilobytes);
}

unsigned long KbBlockSize::toKbytes(type value)
{
    switch (value)
    {
    case KbBlockSize256: return 256;
    case KbBlockSize512: return 512;
    case KbBlockSize1024: return 1024;
    case KbBlockSize2048: return 2048;
    case KbBlockSize4096: return 4096;
    case KbBlockSize8192: return 8192;
    }
    throw exc::CRuntimeExc("Unexpected block size value [%1].", util::toStr(value));
}

unsigned long KbBlockSize::toBytes(type value)
{
    return toKbytes(value) << 10U;
}

std::vector<std::string> KbBlockSize::toStringList()
{
    return detail::listTexts(StoredNames);
}

} // namespace zelplatform::model
