#pragma once

#include <string>
#include <vector>

#include "command_tree.h"

namespace usage
{

/// An entry of a list in the manual page.
struct Entry
{
    std::string term;
    std::string text;
};

/// A part of the manual page that the tree of commands does not tell.
struct Section
{
    std::string title;
    std::vector<std::string> paragraphs;
    std::vector<Entry> entries = {};
};

struct Manual
{
    Command program;
    std::string version;
    std::string date;    ///< of its last change, YYYY-MM-DD
    Section description; ///< before the commands
    std::vector<Section> sections;
};

/// The manual page, of section 1, in the macros of man(7).
std::string renderManPage(const Manual& manual);

} // namespace usage
