#pragma once

/// What the command's exit status says.
namespace exit_code
{

constexpr int Fine = 0;
constexpr int Findings = 1; ///< findings or differences
constexpr int Usage = 2;
constexpr int Refused = 3;      ///< a document was refused
constexpr int CannotRead = 4;   ///< a file cannot be read, or the output not be written
constexpr int NotScheduled = 5; ///< the job is disabled, or no day comes

} // namespace exit_code
