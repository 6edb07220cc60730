#pragma once

#include <string>

#include "command_tree.h"

namespace usage
{

/// Scripts that let a shell complete what is typed behind the program's name: commands, options, known words, names of
/// files. Each stands alone: no package of completions is needed.
std::string renderBashCompletion(const Command& program);
std::string renderZshCompletion(const Command& program);
std::string renderFishCompletion(const Command& program);

} // namespace usage
