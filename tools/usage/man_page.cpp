#include "man_page.h"

#include <algorithm>
#include <cctype>

#include "roff.h"

namespace usage
{
namespace
{

std::string bold(const std::string& text)
{
    return "\\fB" + roffEscaped(text) + "\\fR";
}

std::string italic(const std::string& text)
{
    return "\\fI" + roffEscaped(text) + "\\fR";
}

std::string upper(std::string text)
{
    std::transform(text.begin(), text.end(), text.begin(),
                   [](unsigned char c) { return static_cast<char>(std::toupper(c)); });
    return text;
}

// A sentence as a part of another.
std::string lower(std::string text)
{
    if (!text.empty())
        text.front() = static_cast<char>(std::tolower(static_cast<unsigned char>(text.front())));
    return text;
}

std::string listOf(const std::vector<std::string>& names)
{
    std::string list;
    for (const auto& name : names)
        list += (list.empty() ? "" : ", ") + name;
    return list;
}

// A value of several words is one word of the call.
std::string valueOf(const Option& option)
{
    const bool isOneWord = option.value.find(' ') == std::string::npos || option.value.front() == '"';
    return italic(isOneWord ? option.value : '"' + option.value + '"');
}

std::string callOf(const Option& option, const std::string& name)
{
    return bold(name) + (option.value.empty() ? "" : ' ' + valueOf(option));
}

std::string termOf(const Option& option)
{
    std::string term;
    for (const auto& name : option.names)
        term += (term.empty() ? "" : ", ") + callOf(option, name);
    return term;
}

std::string argumentOf(const Option& argument)
{
    const auto name = italic(argument.names.back());
    return (argument.isRequired ? name : '[' + name + ']') + (argument.isRepeated ? "..." : "");
}

std::string textOf(const Option& option)
{
    auto text = option.description + '.';
    if (option.isRequired)
        text += " It must be given.";
    if (!option.excludes.empty())
        text += " Not together with " + listOf(option.excludes) + '.';
    if (!option.needs.empty())
        text += " Only together with " + listOf(option.needs) + '.';
    return text;
}

std::string entryOf(const std::string& term, const std::string& text)
{
    return ".TP\n" + term + '\n' + roffLines(text);
}

std::string synopsisOf(const std::string& program, const Place& place)
{
    auto line = bold(place.path.empty() ? program : program + ' ' + place.path);
    for (const auto& option : place.options)
        line += option.isRequired ? ' ' + callOf(option, option.names.back()) : "";
    line += " [" + italic("OPTION") + "]...";
    for (const auto& argument : place.command->arguments)
        line += ' ' + argumentOf(argument);
    return line + '\n';
}

std::string renderSynopsis(const Command& program)
{
    std::string text = ".SH SYNOPSIS\n";
    bool isFirst = true;
    for (const auto& place : placesOf(program))
    {
        // What only leads to others cannot be called.
        if (!place.command->commands.empty())
            continue;
        text += (isFirst ? "" : ".br\n") + synopsisOf(program.name, place);
        isFirst = false;
    }
    return text;
}

std::string renderCommands(const Command& program, const std::vector<Option>& common)
{
    std::string text = ".SH COMMANDS\n";
    for (const auto& place : placesOf(program))
    {
        if (place.path.empty())
            continue;
        text +=
            ".SS " + roffEscaped(program.name + ' ' + place.path) + '\n' + roffLines(place.command->description + '.');
        for (const auto& argument : place.command->arguments)
            text += entryOf(italic(argument.names.back()), argument.description + '.');
        for (const auto& option : place.command->options)
            text += hasOption(common, option) ? "" : entryOf(termOf(option), textOf(option));
    }
    return text;
}

// What excludes a common option is told where that one is.
std::string renderOptions(const Command& program, const std::vector<Option>& common)
{
    std::string text = ".SH OPTIONS\nEvery command has these.\n";
    for (const auto& option : common)
        text += entryOf(termOf(option), option.description + '.');
    for (const auto& option : program.options)
        text += hasOption(common, option) ? "" : entryOf(termOf(option), option.description + " (without a command).");
    return text;
}

std::string renderSection(const Section& section)
{
    auto text = ".SH " + roffEscaped(section.title) + '\n';
    bool isFirst = true;
    for (const auto& paragraph : section.paragraphs)
    {
        text += (isFirst ? "" : ".PP\n") + roffLines(paragraph);
        isFirst = false;
    }
    for (const auto& [term, words] : section.entries)
        text += entryOf(bold(term), words);
    return text;
}

} // namespace

std::string renderManPage(const Manual& manual)
{
    const auto& program = manual.program;
    const auto common = commonOptions(program);
    auto text = ".TH " + upper(program.name) + " 1 " + manual.date + " \"" + program.name + ' ' + manual.version +
                "\" \"User Commands\"\n";
    text += ".SH NAME\n" + roffEscaped(program.name) + " \\- " + roffEscaped(lower(program.description)) + '\n';
    text += renderSynopsis(program) + renderSection(manual.description) + renderCommands(program, common) +
            renderOptions(program, common);
    for (const auto& section : manual.sections)
        text += renderSection(section);
    return text;
}

} // namespace usage
