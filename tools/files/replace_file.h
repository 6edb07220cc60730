#pragma once

#include <string>

namespace files
{

/// Replaces what a file holds, all at once: whoever opens it sees the old or the new text, whole. The old file stays
/// beside it as FILE.orig, or FILE.orig.1 and so on where those exist; gives that name. Of a symbolic link the file
/// behind it is replaced. Owner, group and permissions stay. Throws InputError when anything fails; then the file is as
/// it was and nothing stands beside it.
std::string replaceFile(const std::string& path, const std::string& text);

} // namespace files
