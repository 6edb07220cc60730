#pragma once

#include <cstdint>
#include <string>

#include <zelmodel/export.h>

namespace zelplatform::model
{

/// Whether a filter record puts objects into a job's scope or takes them out.
struct ZELMODEL_API EJobFilterType
{
    enum type : std::int32_t
    {
        Unknown = 0,
        Include = 1,
        Exclude = 2
    };

    /// Throws "Cannot convert job filter type to string: unknown record type [%1]".
    static std::string toStr(type value);

    /// Compares exactly; throws "Cannot convert string to job filter record type: unknown record type [%1]".
    static type fromStr(const std::string& text);

    /// The same text as toStr.
    static std::string toUserFriendlyStr(type value);
};

} // namespace zelplatform::model
