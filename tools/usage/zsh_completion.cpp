#include "completions.h"

#include <algorithm>

#include "shell_text.h"

namespace usage
{
namespace
{

/// The text with a backslash before each of the characters.
std::string masked(const std::string& text, const std::string& characters)
{
    std::string result;
    for (const char c : text)
    {
        if (characters.find(c) != std::string::npos)
            result += '\\';
        result += c;
    }
    return result;
}

std::string functionOf(const Command& program, const std::string& path)
{
    auto name = '_' + program.name + (path.empty() ? "" : '_' + path);
    std::replace(name.begin(), name.end(), ' ', '_');
    return name;
}

// Words in an action are split and unquoted once more.
std::string wordsOf(const Option& option)
{
    std::string list;
    for (const auto& word : option.words)
        list += (list.empty() ? "" : " ") + masked(word, "\\:()'\"$`*?[]{}<>|&;#~!^");
    return list;
}

std::string actionOf(const Option& option)
{
    if (takesFile(option))
        return "_files";
    if (option.words.empty())
        return " ";
    const bool goesOn =
        std::any_of(option.words.begin(), option.words.end(), [](const auto& word) { return word.back() == '='; });
    return goesOn ? "compadd -S \"\" - " + wordsOf(option) : '(' + wordsOf(option) + ')';
}

std::string valueOf(const Option& option)
{
    return ':' + masked(option.value, "\\:") + ':' + actionOf(option);
}

// What a name takes in the same word: nothing, or its value behind "=" or at once.
std::string signOf(const Option& option, const std::string& name)
{
    if (option.value.empty())
        return {};
    return name.rfind("--", 0) == 0 ? "=" : "+";
}

std::string specOf(const Option& option, const std::string& name, const std::vector<std::string>& without)
{
    std::string spec;
    for (const auto& other : without)
        spec += (spec.empty() ? "(" : " ") + other;
    spec += spec.empty() ? "" : ")";
    spec += option.isRepeated ? "*" : "";
    spec += name + signOf(option, name) + '[' + masked(option.description, "\\[]:") + ']';
    spec += option.value.empty() ? "" : valueOf(option);
    return spec;
}

// Arguments have numbers where options have names.
std::string excludedAs(const std::string& name, const std::vector<Option>& arguments)
{
    for (std::size_t i = 0; i < arguments.size(); ++i)
    {
        if (arguments[i].names.front() == name)
            return std::to_string(i + 1);
    }
    return name;
}

std::vector<std::string> specsOf(const Place& place)
{
    std::vector<std::string> specs;
    for (const auto& option : place.options)
    {
        auto others = option.isRepeated ? std::vector<std::string>() : option.names;
        for (const auto& other : option.excludes)
            others.push_back(excludedAs(other, place.command->arguments));
        for (const auto& name : option.names)
            specs.push_back(specOf(option, name, others));
    }
    for (const auto& argument : place.command->arguments)
        specs.push_back((argument.isRepeated ? "*" : argument.isRequired ? "" : ":") + valueOf(argument));
    return specs;
}

std::string argumentsCall(const std::vector<std::string>& specs, const std::string& flags)
{
    auto text = "    _arguments " + flags;
    for (const auto& spec : specs)
        text += " \\\n        " + quoted(spec);
    return text;
}

constexpr const char* WithCommands = R"(    local curcontext=$curcontext state ret=1
    local -A opt_args
    local -a line commands=(
COMMANDS    )
ARGUMENTS    case $state in
    command) _describe -t commands command commands && ret=0 ;;
    argument) _call_function ret "FUNCTION_${words[1]}" ;;
    esac
    return ret
)";

std::string bodyWithCommands(const std::string& function, const Place& place)
{
    std::string commands;
    for (const auto& below : place.command->commands)
        commands += "        " + quoted(masked(below.name, "\\:") + ':' + masked(below.description, "\\")) + '\n';
    auto specs = specsOf(place);
    specs.emplace_back("1:command:->command");
    specs.emplace_back("*::argument:->argument");
    return filled(
        WithCommands,
        {{"COMMANDS", commands}, {"ARGUMENTS", argumentsCall(specs, "-C -S") + " && ret=0\n"}, {"FUNCTION", function}});
}

std::string functionAt(const Command& program, const Place& place)
{
    const auto name = functionOf(program, place.path);
    const auto body =
        place.command->commands.empty() ? argumentsCall(specsOf(place), "-S") + '\n' : bodyWithCommands(name, place);
    return name + "()\n{\n" + body + "}\n\n";
}

} // namespace

std::string renderZshCompletion(const Command& program)
{
    const auto name = functionOf(program, {});
    auto text = "#compdef " + program.name + "\n# What zsh completes behind " + program.name + "; printed by \"" +
                program.name + " completion zsh\".\n\n";
    for (const auto& place : placesOf(program))
        text += functionAt(program, place);
    return text +
           "# Read from a folder of completions, this file is the function itself.\nif [[ ${funcstack[1]} == " + name +
           " ]]; then\n    " + name + " \"$@\"\nelse\n    compdef " + name + ' ' + program.name + "\nfi\n";
}

} // namespace usage
