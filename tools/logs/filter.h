#pragma once

#include <optional>
#include <string>
#include <vector>

#include "log_reader.h"

namespace logs
{

/// Which records are told. What is empty or not set lets all of them pass.
struct Filter
{
    std::vector<guid::guid_t> sessions;
    ESeverity leastSeverity = ESeverity::Processing; ///< this one and all that are worse
    std::optional<long> since;                       ///< seconds since 1970-01-01 00:00:00 UTC
    std::optional<long> until;                       ///< the same; this second is the last one
    std::string text;                                ///< anywhere in the line, byte by byte

    bool takes(const Record& record, const std::string& line) const;
};

} // namespace logs
