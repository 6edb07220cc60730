#include <string>

#include <gtest/gtest.h>

#include "made_tree.h"
#include "usage/completions.h"
#include "usage/shell_text.h"

namespace
{

using zelmodel_test::madeTree;

TEST(ShellText, IsQuotedWhereItNeedsIt)
{
    EXPECT_EQ(usage::quoted("it's"), "'it'\\''s'");
    EXPECT_EQ(usage::quoted(""), "''");
    EXPECT_EQ(usage::word("--in-place=1.5/a_b"), "--in-place=1.5/a_b");
    for (const std::string text : {"", "a b", "$a", "a;", "*", "~", "a`b`", "\\"})
        EXPECT_EQ(usage::word(text), '\'' + text + '\'');
}

TEST(ShellText, IsBrokenBetweenItems)
{
    const std::string item(59, 'a');
    EXPECT_EQ(usage::wrapped({}, 4), "");
    EXPECT_EQ(usage::wrapped({item, item}, 1), item + ' ' + item);
    EXPECT_EQ(usage::wrapped({item, item, "b"}, 2), item + "\n  " + item + " b");
    EXPECT_EQ(usage::wrapped({std::string(130, 'c'), "d"}, 0), std::string(130, 'c') + "\nd");
}

TEST(ShellText, MarksAreReplacedOneAfterTheOther)
{
    EXPECT_EQ(usage::filled("A B A", {{"A", "B"}, {"B", "BC"}}), "BC BC BC");
}

/// What a script holds from a line on, up to and without another one.
std::string between(const std::string& script, const std::string& begin, const std::string& end)
{
    const auto from = script.find(begin);
    const auto to = script.find(end, from);
    return from == std::string::npos || to == std::string::npos ? "not found in:\n" + script
                                                                : script.substr(from, to - from);
}

TEST(BashCompletion, KnowsEachPlace)
{
    const auto script = usage::renderBashCompletion(madeTree());
    EXPECT_EQ(between(script, "    case $path in\n", "}\n"), R"(    case $path in
    '')
        commands=(put go)
        options=(-h --help --version)
        ;;
    put)
        options=(-h --help -o --out --dry)
        valued=(-o --out)
        arguments=(INPUT KEY=VALUE...)
        ;;
    go)
        commands=(far)
        options=(-h --help --at)
        valued=(--at)
        ;;
    'go far')
        options=(--level -h --help --at)
        valued=(--level --at)
        ;;
    esac
)");
    EXPECT_EQ(between(script, "    case $path:$1 in\n", "}\n"), R"(    case $path:$1 in
    'put:-o') files=yes ;;
    'put:--out') files=yes ;;
    'put:INPUT') files=yes ;;
    'put:KEY=VALUE...')
        words=(size= colour=)
        ;;
    'go far:--level')
        words=(low high)
        ;;
    esac
)");
    EXPECT_EQ(script.rfind("# What bash completes behind tool; printed by \"tool completion bash\".\n", 0), 0U);
    EXPECT_NE(script.find("\ncomplete -F _tool tool\n"), std::string::npos);
}

TEST(ZshCompletion, HasAFunctionForEachPlace)
{
    const auto script = usage::renderZshCompletion(madeTree());
    EXPECT_EQ(between(script, "#compdef", "# Read from"), R"(#compdef tool
# What zsh completes behind tool; printed by "tool completion zsh".

_tool()
{
    local curcontext=$curcontext state ret=1
    local -A opt_args
    local -a line commands=(
        'put:Put it\\there'
        'go:Go somewhere'
    )
    _arguments -C -S \
        '(-h --help)-h[Help]' \
        '(-h --help)--help[Help]' \
        '(--version)--version[Version]' \
        '1:command:->command' \
        '*::argument:->argument' && ret=0
    case $state in
    command) _describe -t commands command commands && ret=0 ;;
    argument) _call_function ret "_tool_${words[1]}" ;;
    esac
    return ret
}

_tool_put()
{
    _arguments -S \
        '(-h --help)-h[Help]' \
        '(-h --help)--help[Help]' \
        '(-o --out --dry)-o+[It'\''s a \[new\] file\: here]:FILE:_files' \
        '(-o --out --dry)--out=[It'\''s a \[new\] file\: here]:FILE:_files' \
        '(--dry --out)--dry[Nothing is written]' \
        ':FILE:_files' \
        '*:KEY=VALUE:compadd -S "" - size= colour='
}

_tool_go()
{
    local curcontext=$curcontext state ret=1
    local -A opt_args
    local -a line commands=(
        'far:Go far'
    )
    _arguments -C -S \
        '(-h --help)-h[Help]' \
        '(-h --help)--help[Help]' \
        '*--at=[When]:DAY HH\:MM: ' \
        '1:command:->command' \
        '*::argument:->argument' && ret=0
    case $state in
    command) _describe -t commands command commands && ret=0 ;;
    argument) _call_function ret "_tool_go_${words[1]}" ;;
    esac
    return ret
}

_tool_go_far()
{
    _arguments -S \
        '(--level)--level=[How far]:N:(low high)' \
        '(-h --help)-h[Help]' \
        '(-h --help)--help[Help]' \
        '*--at=[When]:DAY HH\:MM: '
}

)");
}

TEST(FishCompletion, HasALineForEachOfferAndOption)
{
    const auto script = usage::renderFishCompletion(madeTree());
    EXPECT_NE(script.find("            case ':put' ':go' 'go:far'\n"), std::string::npos) << script;
    EXPECT_NE(script.find("            case 'put:-o' 'put:--out' 'go:--at' 'go far:--level' 'go far:--at'\n"),
              std::string::npos)
        << script;
    const auto lines = script.find("complete -c tool -f\n");
    ASSERT_NE(lines, std::string::npos);
    EXPECT_EQ(script.substr(lines), R"(complete -c tool -f
complete -c tool -n '__tool_at "" 1' -a 'put' -d 'Put it\\there'
complete -c tool -n '__tool_at "" 1' -a 'go' -d 'Go somewhere'
complete -c tool -n '__tool_at ""' -s h -l help -d 'Help'
complete -c tool -n '__tool_at ""' -l version -d 'Version'
complete -c tool -n '__tool_at "put" 1 1' -F
complete -c tool -n '__tool_at "put" 2' -a 'size= colour='
complete -c tool -n '__tool_at "put"' -s h -l help -d 'Help'
complete -c tool -n '__tool_at "put"' -s o -l out -r -F -d 'It\'s a [new] file: here'
complete -c tool -n '__tool_at "put"' -l dry -d 'Nothing is written'
complete -c tool -n '__tool_at "go" 1' -a 'far' -d 'Go far'
complete -c tool -n '__tool_at "go"' -s h -l help -d 'Help'
complete -c tool -n '__tool_at "go"' -l at -x -d 'When'
complete -c tool -n '__tool_at "go far"' -l level -x -a 'low high' -d 'How far'
complete -c tool -n '__tool_at "go far"' -s h -l help -d 'Help'
complete -c tool -n '__tool_at "go far"' -l at -x -d 'When'
)");
}

TEST(Completions, AProgramWithoutCommandsHasThemToo)
{
    const usage::Command lone{"lone", "Alone", {}, {{{"FILE"}, "FILE", "What is read", false, true}}};
    EXPECT_NE(usage::renderBashCompletion(lone).find("        arguments=(FILE...)\n"), std::string::npos);
    EXPECT_NE(usage::renderZshCompletion(lone).find("    _arguments -S \\\n        '*:FILE:_files'\n"),
              std::string::npos);
    const auto fish = usage::renderFishCompletion(lone);
    EXPECT_NE(fish.find("            case ''\n                set is_value yes\n"), std::string::npos) << fish;
    EXPECT_NE(fish.find("complete -c lone -n '__lone_at \"\" 1' -F\n"), std::string::npos) << fish;
}

// zsh knows arguments by their numbers.
TEST(ZshCompletion, AnOptionExcludesAnArgument)
{
    usage::Option answer{{"--answer"}, "NAME", "An answer"};
    answer.excludes = {"KIND", "--other"};
    const usage::Option first{{"FILE"}, "FILE", "What is read"};
    const usage::Option second{{"KIND"}, "KIND", "A kind"};
    const usage::Command lone{"lone", "Alone", {answer}, {first, second}};
    EXPECT_NE(usage::renderZshCompletion(lone).find("'(--answer 2 --other)--answer=[An answer]"), std::string::npos)
        << usage::renderZshCompletion(lone);
}

} // namespace
