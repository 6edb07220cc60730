#pragma once

#include <string>

#include <zelmodel/export.h>

namespace zelplatform::model
{

/// The kind of a restore point. The numbers and the names, the spelling "Syntethic" included, are stored in documents.
struct ZELMODEL_API OibAlgorithm
{
    enum type : int
    {
        Full = 0,
        Syntethic = 1,
        Increment = 2,
        Different = 3,
        Transform = 4,
        TransformForeverIncremental = 5
    };

    /// The stored name; throws for any other number.
    static std::string toStr(type value);

    /// Reads a stored name exactly; throws for any other text.
    static type fromStr(const std::string& text);

    /// The word shown to people: both kinds of full are "Full", Increment and Different are "Increment". Throws for any
    /// other number.
    static std::string getDisplayStr(type value);

    /// The base kind: both kinds of full give Full, Increment gives itself; every other kind throws "Not supported.".
    static type convertToType(type value);
};

} // namespace zelplatform::model
