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

    /// The value as text.
    std::string value;

    /// The document as text; throws for a value that XML cannot carry.
    std::string ToXmlStr() const;

    friend bool operator==(const SSqlVariant& a, const SSqlVariant& b)
    {
        return a.type == b.type && a.value == b.value;
    }
    friend bool operator!=(const SSqlVariant& a, const SSqlVariant& b) { return !(a == b); }
};

} // namespace zelplatform::model::structs
