#include "completions.h"

#include "shell_text.h"

namespace usage
{
namespace
{

std::string fishQuoted(const std::string& text)
{
    std::string result = "'";
    for (const char c : text)
    {
        if (c == '\'' || c == '\\')
            result += '\\';
        result += c;
    }
    return result + '\'';
}

// PROGRAM stands for the program's name. The cases are of the commands so far, a colon, and the word that is looked at.
constexpr const char* Functions = R"(
# The commands before the cursor and, behind a colon, the number of the argument that comes next.
function __PROGRAM_given
    set -l path
    set -l number 1
    set -l is_value no
    set -l tokens (commandline -opc)
    for word in $tokens[2..-1]
        if test $is_value = yes
            set is_value no
            continue
        end
        switch "$path:$word"
            case COMMANDS
                set path (string trim -- "$path $word")
            case VALUED
                set is_value yes
            case '*:-'
                set number (math $number + 1)
            case '*:-*'
                # an option without a value, or with its value in the same word
            case '*'
                set number (math $number + 1)
        end
    end
    echo "$path:$number"
end

# Whether these are the commands and, when numbers are told, the next argument is one of those from first to last.
function __PROGRAM_at -a path first last
    set -l given (string split -r -m 1 : -- (__PROGRAM_given))
    test "$given[1]" = "$path"; or return 1
    test -z "$first"; or test $given[2] -ge $first; or return 1
    test -z "$last"; or test $given[2] -le $last
end

complete -c PROGRAM -f
)";

/// The words as patterns of one case; one that nothing fits when there are none.
std::string caseOf(const std::vector<std::string>& words)
{
    std::string list;
    for (const auto& word : words)
        list += (list.empty() ? "" : " ") + fishQuoted(word);
    return list.empty() ? "''" : list;
}

std::string functionsOf(const std::string& program, const std::vector<Place>& places)
{
    std::vector<std::string> commands;
    std::vector<std::string> valued;
    for (const auto& place : places)
    {
        for (const auto& below : place.command->commands)
            commands.push_back(place.path + ':' + below.name);
        for (const auto& option : place.options)
        {
            for (const auto& name : option.names)
            {
                if (!option.value.empty())
                    valued.push_back(place.path + ':' + name);
            }
        }
    }
    return filled(Functions, {{"COMMANDS", caseOf(commands)}, {"VALUED", caseOf(valued)}, {"PROGRAM", program}});
}

class Lines
{
public:
    explicit Lines(const std::string& program) : m_program(program) {}

    std::string of(const Place& place) const
    {
        std::string text;
        for (const auto& below : place.command->commands)
            text += line(place.path, " 1", "-a " + fishQuoted(below.name) + descriptionOf(below.description));
        std::size_t number = 0;
        for (const auto& argument : place.command->arguments)
        {
            ++number;
            const auto range = ' ' + std::to_string(number) + (argument.isRepeated ? "" : ' ' + std::to_string(number));
            const auto values = takesFile(argument) ? "-F" : wordsOf(argument);
            text += values.empty() ? "" : line(place.path, range, values);
        }
        for (const auto& option : place.options)
            text += line(place.path, {}, namesOf(option) + valueOf(option) + descriptionOf(option.description));
        return text;
    }

private:
    std::string line(const std::string& path, const std::string& range, const std::string& what) const
    {
        const auto condition = "__" + m_program + "_at " + (path.empty() ? "\"\"" : '"' + path + '"') + range;
        return "complete -c " + m_program + " -n " + fishQuoted(condition) + ' ' + what + '\n';
    }

    static std::string descriptionOf(const std::string& description) { return " -d " + fishQuoted(description); }

    static std::string wordsOf(const Option& option)
    {
        std::string list;
        for (const auto& word : option.words)
            list += (list.empty() ? "" : " ") + word;
        return list.empty() ? "" : "-a " + fishQuoted(list);
    }

    static std::string namesOf(const Option& option)
    {
        std::string text;
        for (const auto& name : option.names)
        {
            const bool isLong = name.rfind("--", 0) == 0;
            text += (text.empty() ? "" : " ") + std::string(isLong ? "-l " : "-s ") + name.substr(isLong ? 2 : 1);
        }
        return text;
    }

    // Names of files are offered where they are asked for only: the script turns them off with -f.
    static std::string valueOf(const Option& option)
    {
        if (option.value.empty())
            return {};
        const auto words = wordsOf(option);
        return takesFile(option) ? " -r -F" : " -x" + (words.empty() ? "" : ' ' + words);
    }

    std::string m_program;
};

} // namespace

std::string renderFishCompletion(const Command& program)
{
    const auto places = placesOf(program);
    auto text = "# What fish completes behind " + program.name + "; printed by \"" + program.name +
                " completion fish\".\n" + functionsOf(program.name, places);
    const Lines lines(program.name);
    for (const auto& place : places)
        text += lines.of(place);
    return text;
}

} // namespace usage
