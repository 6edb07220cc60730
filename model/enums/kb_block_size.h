#pragma once

#include <string>
#include <vector>

#include <zelmodel/export.h>

namespace zelplatform::model
{

/// The block size of a backup. The numbers are stored in documents; 2 is retired and fails in every conversion.
struct ZELMODEL_API KbBlockSize
{
    enum type : int
    {
        KbBlockSize256 = 0,
        KbBlockSize512 = 1,
        KbBlockSize1024 = 3,
        KbBlockSize2048 = 4,
        KbBlockSize4096 = 5,
        KbBlockSize8192 = 6
    };

    /// The stored name, "KbBlockSize1024"; throws for any other number.
    static std::string toStr(type value);

    /// Reads a stored name exactly, or "Default", which is KbBlockSize1024; throws for any other text.
    static type fromStr(const std::string& text);

    /// Reads the number of kilobytes as text, "1024"; throws for any other text.
    static type FromKBytesStr(const std::string& kilobytes);

    /// The size in kilobytes (of 1024 bytes); throws for any other number.
    static unsigned long toKbytes(type value);

    /// The size in bytes; throws for any other number.
    static unsigned long toBytes(type value);

    /// The stored names, in value order.
    static std::vector<std::string> toStringList();
};

} // namespace zelplatform::model
