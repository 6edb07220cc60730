#pragma once

#include <string>

#include <sys/types.h>

namespace files
{

/// The permissions of a new file unless told otherwise: everyone's, as far as the mask of the process lets them be.
constexpr mode_t EveryoneAsMasked = 0666;

/// Writes a file that must not exist yet; throws InputError, and then leaves nothing behind.
void writeNewFile(const std::string& path, const std::string& text, mode_t mode = EveryoneAsMasked);

} // namespace files
