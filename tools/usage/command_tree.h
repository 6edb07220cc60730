#pragma once

#include <string>
#include <vector>

/// How the command is used: its tree of commands and options, and what is made of it for people and shells.
namespace usage
{

/// An option or an argument of a command.
struct Option
{
    /// As they are typed: "-o", "--output". An argument has one name without a dash, "FILE".
    std::vector<std::string> names;

    /// How its value is called or what it looks like, "FILE" or "HH:MM"; empty for an option without one.
    std::string value;

    std::string description;
    bool isRequired = false;
    bool isRepeated = false;

    /// The last names of options that must not be given with it, and of those that must.
    std::vector<std::string> excludes = {};
    std::vector<std::string> needs = {};

    /// The words that it takes, as far as they are known; none holds a blank. More is typed behind one that ends in
    /// "=".
    std::vector<std::string> words = {};
};

/// Whether the value is the name of a file: it is called FILE then.
bool takesFile(const Option& option);

struct Command
{
    std::string name;
    std::string description;
    std::vector<Option> options = {};
    std::vector<Option> arguments = {};
    std::vector<Command> commands = {};
    bool takesOptionsAbove = false; ///< those of the command above are options of this one too
};

/// A command with what is typed to come to it.
struct Place
{
    std::string path; ///< the words behind the program's name, "new job"; empty for the program itself
    const Command* command;
    std::vector<Option> options; ///< its own ones, and those from above that it takes
};

/// The program and every command of it, each before those below it.
std::vector<Place> placesOf(const Command& program);

/// The options that every command right below the program has.
std::vector<Option> commonOptions(const Command& program);

/// Whether the list has an option of that name, compared by its last one.
bool hasOption(const std::vector<Option>& options, const Option& option);

} // namespace usage
