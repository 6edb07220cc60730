#pragma once

#include <string>
#include <vector>

namespace logs
{

/// The files of a rotated set that are there, oldest first: "job.log.2.gz", "job.log.1", "job.log" of the name
/// "job.log". Of a number that is there both plain and compressed the plain file counts: its compression has not ended.
/// Without any file the name alone. Throws files::InputError when the folder cannot be read.
std::vector<std::string> rotatedSetOf(const std::string& name);

/// The names with those of one set in the order oldest first, as a pattern of the shell does not give them. A set
/// stands where its first name stood.
std::vector<std::string> oldestFirst(const std::vector<std::string>& names);

} // namespace logs
