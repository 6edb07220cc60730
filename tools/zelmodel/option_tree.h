#pragma once

#include "command_options.h"
#include "usage/command_tree.h"

/// The command with its options and all commands below it, in the order in which they were defined.
usage::Command treeOf(const CLI::App& app, const WordsOfOptions& words);
