#include "completions.h"

#include <algorithm>

#include "shell_text.h"

namespace usage
{
namespace
{

// PROGRAM stands for the program's name. Names that are local here are seen by the functions that are called.
constexpr const char* Functions = R"(
# What may be typed behind the commands in $path.
_PROGRAM_place()
{
    commands=() options=() valued=() arguments=()
    case $path in
PLACES    esac
}

# What the option or argument $1 of these commands takes.
_PROGRAM_value()
{
    case $path:$1 in
VALUES    esac
}

_PROGRAM()
{
    local path= option= operands_only= typed word stem before prefix= files= given=0 i
    local -a line=() commands options valued arguments words=()
    COMPREPLY=()

    # The shell cuts words at "=" and ":"; here they are whole again. It replaces only what stands behind the cut.
    for ((i = 1; i <= COMP_CWORD; ++i)); do
        if ((${#line[@]})) && [[ ${COMP_WORDS[i]} =~ ^[=:]+$ || ${COMP_WORDS[i - 1]} =~ ^[=:]+$ ]]; then
            line[${#line[@]} - 1]+=${COMP_WORDS[i]}
        else
            line+=("${COMP_WORDS[i]}")
        fi
    done
    typed=${line[${#line[@]} - 1]}
    stem=${COMP_WORDS[COMP_CWORD]}
    [[ $stem =~ ^[=:]+$ ]] && stem=
    before=${typed%"$stem"}

    _PROGRAM_place
    for word in "${line[@]:0:${#line[@]} - 1}"; do
        if [[ -n $option ]]; then
            option=
        elif [[ -z $operands_only && $word == -- ]]; then
            operands_only=yes
        elif [[ -z $operands_only && $word == -?* ]]; then
            [[ " ${valued[*]} " == *" $word "* ]] && option=$word
        elif [[ " ${commands[*]} " == *" $word "* ]]; then
            path+=${path:+ }$word
            _PROGRAM_place
        else
            given=$((given + 1))
        fi
    done

    if [[ -n $option ]]; then
        _PROGRAM_value "$option"
    elif [[ -z $operands_only && $typed == --*=* ]]; then
        prefix=${typed%%=*}=
        typed=${typed#*=}
        _PROGRAM_value "${prefix%=}"
    elif [[ -z $operands_only && $typed == -* ]]; then
        words=("${options[@]}")
    elif ((${#commands[@]})); then
        words=("${commands[@]}")
    elif ((given < ${#arguments[@]})); then
        _PROGRAM_value "${arguments[given]}"
    elif ((${#arguments[@]})) && [[ ${arguments[${#arguments[@]} - 1]} == *... ]]; then
        _PROGRAM_value "${arguments[${#arguments[@]} - 1]}"
    fi

    for word in "${words[@]}"; do
        [[ $word == "$typed"* ]] || continue
        word=$prefix$word
        COMPREPLY+=("${word#"$before"}")
    done
    # The shell itself knows best how names of files are quoted.
    [[ -n $files ]] && compopt -o default
    [[ ${COMPREPLY[0]-} == *= ]] && compopt -o nospace
    return 0
}

complete -F _PROGRAM PROGRAM
)";

std::string keyOf(const Option& argument)
{
    return argument.names.back() + (argument.isRepeated ? "..." : "");
}

std::string arrayOf(const std::string& name, const std::vector<std::string>& items, std::size_t blanks)
{
    std::vector<std::string> words(items.size());
    std::transform(items.begin(), items.end(), words.begin(), word);
    const auto start = std::string(blanks, ' ') + name + "=(";
    return items.empty() ? "" : start + wrapped(words, start.size()) + ")\n";
}

std::string placeOf(const Place& place)
{
    std::vector<std::string> commands;
    std::vector<std::string> options;
    std::vector<std::string> valued;
    std::vector<std::string> arguments;
    for (const auto& below : place.command->commands)
        commands.push_back(below.name);
    for (const auto& option : place.options)
    {
        options.insert(options.end(), option.names.begin(), option.names.end());
        if (!option.value.empty())
            valued.insert(valued.end(), option.names.begin(), option.names.end());
    }
    for (const auto& argument : place.command->arguments)
        arguments.push_back(keyOf(argument));
    return "    " + word(place.path) + ")\n" + arrayOf("commands", commands, 8) + arrayOf("options", options, 8) +
           arrayOf("valued", valued, 8) + arrayOf("arguments", arguments, 8) + "        ;;\n";
}

std::string valueOf(const std::string& path, const std::string& key, const Option& option)
{
    if (takesFile(option))
        return "    " + quoted(path + ':' + key) + ") files=yes ;;\n";
    if (option.words.empty())
        return {};
    return "    " + quoted(path + ':' + key) + ")\n" + arrayOf("words", option.words, 8) + "        ;;\n";
}

std::string valuesOf(const Place& place)
{
    std::string text;
    for (const auto& option : place.options)
    {
        for (const auto& name : option.names)
            text += valueOf(place.path, name, option);
    }
    for (const auto& argument : place.command->arguments)
        text += valueOf(place.path, keyOf(argument), argument);
    return text;
}

} // namespace

std::string renderBashCompletion(const Command& program)
{
    std::string places;
    std::string values;
    for (const auto& place : placesOf(program))
    {
        places += placeOf(place);
        values += valuesOf(place);
    }
    return "# What bash completes behind " + program.name + "; printed by \"" + program.name + " completion bash\".\n" +
           filled(Functions, {{"PLACES", places}, {"VALUES", values}, {"PROGRAM", program.name}});
}

} // namespace usage
