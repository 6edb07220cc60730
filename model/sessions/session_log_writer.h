#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <string_view>

#include <zelmodel/export.h>

namespace zelplatform::model
{

/// The writer of a session log, which lives outside this library, and the words of severities that it and the readers
/// of logs share.
class ZELMODEL_API ISessionLogWriter
{
public:
    enum ESeverity : std::int32_t
    {
        Processing = 0,
        Info = 1,
        Warn = 2,
        Error = 3
    };

    virtual ~ISessionLogWriter();

    /// "processing", "info", "warn", "error"; throws "Invalid severity value.".
    static std::string SeverityToString(ESeverity severity);

    /// Compares exactly; throws "Invalid severity value string [%1].".
    static ESeverity SeverityFromString(std::string_view text);

    /// The words by value.
    static std::map<ESeverity, std::string> CreateMessageTypes();

    /// The same map, made once.
    static const std::map<ESeverity, std::string>& s_msgTypes();
};

} // namespace zelplatform::model
