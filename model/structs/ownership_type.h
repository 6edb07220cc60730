#pragma once

#include <cstdint>
#include <string>

#include <zelmodel/export.h>

namespace zelplatform::model::structs
{

/// Who owns the agent.
struct ZELMODEL_API EOwnershipType
{
    enum type : std::int32_t
    {
        NoOwner = 0,
        QOR = 1, ///< the managing backup server
        PEL = 2  ///< the service provider's console
    };

    /// "NoOwner", "QOR", "PEL"; throws "Unable to convert %1 [%2] to string.".
    static std::string ToStr(type value);

    /// The words for people; throws as ToStr does.
    static std::string ToFriendlyName(type value);

    /// Reads a stored name in any letter case; throws "Unable to convert string [%1] to %2.".
    static type FromStr(const std::string& text);
};

} // namespace zelplatform::model::structs
