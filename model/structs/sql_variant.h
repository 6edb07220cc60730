#pragma once

#include <string>

#include <zelmodel/export.h>

namespace zelplatform::model::structs
{

/// A typed value as a text, document "SqlVariant". Written only.
struct ZELMODEL_API SSqlVariant
{
    /// The type's code.
    int type = 0;
    std::string value;

    std::string ToXmlStr() const;

    friend bool operator==(const SSqlVariant& a, const SSqlVariant& b)
    {
        return a.type == b.type && a.value == b.value;
    }
    friend bool operator!=(const SSqlVariant& a, const SSqlVariant& b) { return !(a == b); }
};

} // namespace zelplatform::model::structs
