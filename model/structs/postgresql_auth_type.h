#pragma once

#include <cstdint>
#include <string>

#include <zelmodel/export.h>

namespace zelplatform::model::structs
{

/// How the agent authenticates with a PostgreSQL server.
struct ZELMODEL_API EPostgreSqlAuthType
{
    enum type : std::int32_t
    {
        Password = 0,
        File = 1,
        Peer = 2
    };

    /// "password", "file", "peer"; throws "Unable to convert EPostgreSqlAuthType(%1) to str ...".
    static std::string ToStr(type value);

    /// Compares exactly; throws "Unable to convert string(%1) to EPostgreSqlAuthType ...".
    static type FromStr(const std::string& text);
};

} // namespace zelplatform::model::structs
