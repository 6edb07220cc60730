#pragma once

#include <string>

namespace zelmodel_test
{

constexpr const char* FirstSession = "5f0c2b7a-91d4-4e38-8a66-0d3be1f7c295";
constexpr const char* SecondSession = "b1d04c7e-6a25-4f93-8e1b-7c3f52a9e604";

/// A line of a log without its end; the rest begins with the severity.
inline std::string logLine(const std::string& time, const std::string& session, const std::string& rest)
{
    return time + " UTC " + session + ' ' + rest;
}

/// The same on 7 March 2024 of the first session, "13:05:09".
inline std::string logLineAt(const std::string& timeOfDay, const std::string& rest)
{
    return logLine("2024-03-07 " + timeOfDay, FirstSession, rest);
}

} // namespace zelmodel_test
