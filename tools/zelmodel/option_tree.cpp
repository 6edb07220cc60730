#include "option_tree.h"

#include <set>

#include <CLI/CLI.hpp>

namespace
{

std::vector<std::string> namesOf(const CLI::Option& option)
{
    if (option.get_positional())
        return {option.get_name(true)};
    std::vector<std::string> names;
    for (const auto& name : option.get_snames())
        names.push_back('-' + name);
    for (const auto& name : option.get_lnames())
        names.push_back("--" + name);
    return names;
}

// The parser calls every value whose name nobody tells TEXT or the like; an argument then goes by its own name.
std::string valueOf(const CLI::Option& option)
{
    if (option.get_items_expected_max() == 0)
        return {};
    const auto type = option.get_type_name();
    return option.get_positional() && type == "TEXT" ? option.get_name(true) : type;
}

// The parser keeps a set of addresses: the order is that of the definitions.
std::vector<std::string> lastNames(const CLI::App& app, const std::set<CLI::Option*>& options)
{
    const std::set<const CLI::Option*> wanted(options.begin(), options.end());
    std::vector<std::string> names;
    for (const auto* option : app.get_options())
    {
        if (wanted.count(option) != 0)
            names.push_back(namesOf(*option).back());
    }
    return names;
}

usage::Option tellOption(const CLI::App& app, const CLI::Option& option, const WordsOfOptions& words)
{
    usage::Option told{namesOf(option), valueOf(option), option.get_description()};
    told.isRequired = option.get_required();
    told.isRepeated = option.get_expected_max() > 1;
    told.excludes = lastNames(app, option.get_excludes());
    told.needs = lastNames(app, option.get_needs());
    const auto known = words.find(&option);
    if (known != words.end())
        told.words = known->second();
    return told;
}

} // namespace

usage::Command treeOf(const CLI::App& app, const WordsOfOptions& words)
{
    usage::Command command{app.get_name(), app.get_description()};
    for (const auto* option : app.get_options())
        (option->get_positional() ? command.arguments : command.options).push_back(tellOption(app, *option, words));
    for (const auto* below : app.get_subcommands({}))
        command.commands.push_back(treeOf(*below, words));
    command.takesOptionsAbove = app.get_fallthrough();
    return command;
}
