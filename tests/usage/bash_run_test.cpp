#include <array>
#include <cstdio>
#include <ostream>
#include <sstream>
#include <stdexcept>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "made_tree.h"
#include "support/temporary_folder.h"
#include "usage/completions.h"
#include "usage/shell_text.h"

namespace
{

using Words = std::vector<std::string>;

/// What bash does with a line: outside of a line editor only compopt has to be stood in for.
constexpr const char* Driver = R"(
compopt() { printf '%s\n' "$*"; }
source "$1"
function=_$2
shift
COMP_WORDS=("$@") COMP_CWORD=$(($# - 1))
"$function"
printf '%s\n' "${COMPREPLY[@]}"
)";

/// Lets bash complete the last of the words; gives what it offers, and first the options "-o ..." of the offer.
Words completed(const std::string& script, const Words& words)
{
    const zelmodel_test::TemporaryFolder folder;
    auto call = "bash --norc --noprofile " + folder.write("driver", Driver) + ' ' + usage::quoted(script);
    for (const auto& word : words)
        call += ' ' + usage::quoted(word);
    auto* pipe = ::popen((call + " 2>&1").c_str(), "r");
    if (pipe == nullptr)
        throw std::runtime_error("bash does not start.");
    std::string text;
    std::array<char, 4096> piece{};
    for (std::size_t count = 0; (count = std::fread(piece.data(), 1, piece.size(), pipe)) > 0;)
        text.append(piece.data(), count);
    EXPECT_EQ(::pclose(pipe), 0) << text;
    Words offers;
    std::istringstream lines(text);
    for (std::string line; std::getline(lines, line);)
    {
        if (!line.empty())
            offers.push_back(line);
    }
    return offers;
}

/// The words behind the program's name, as bash cuts them, the last being typed.
struct LineCase
{
    Words words;
    Words offers;
};

std::ostream& operator<<(std::ostream& stream, const LineCase& test)
{
    return stream << testing::PrintToString(test.words);
}

const Words OfFiles{"-o default"};

class BashCompletes : public testing::TestWithParam<LineCase>
{
};

TEST_P(BashCompletes, ALineOfTheCommand)
{
    Words words{"zelmodel"};
    words.insert(words.end(), GetParam().words.begin(), GetParam().words.end());
    EXPECT_EQ(completed(ZELMODEL_EXAMPLES_DIR "/../completions/zelmodel.bash", words), GetParam().offers);
}

INSTANTIATE_TEST_SUITE_P(Commands, BashCompletes,
                         testing::Values(LineCase{{"c"}, {"calendar", "check", "completion", "convert"}},
                                         LineCase{{"xyz"}, {}}, LineCase{{"--v"}, {"--version"}},
                                         LineCase{{"new", ""}, {"job", "schedule", "window", "gfs"}},
                                         LineCase{{"new", "--json", "s"}, {"schedule"}},
                                         LineCase{{"new", "job", ""}, {}}, LineCase{{"man", ""}, {}}));

INSTANTIATE_TEST_SUITE_P(Options, BashCompletes,
                         testing::Values(LineCase{{"show", "-"}, {"-h", "--help", "--json", "--no-color", "--reveal"}},
                                         LineCase{{"new", "job", "--co"}, {"--continuously", "--compression"}},
                                         LineCase{{"new", "window", "--j"}, {"--json"}},
                                         LineCase{{"log", "a.log", "--severity", "warn", "--su"}, {"--summary"}},
                                         LineCase{{"show", "--", "-"}, OfFiles},
                                         LineCase{{"why", "--at", "\"2026-03-02 22:30\"", "--w"}, {"--window"}},
                                         // Bash cuts the text of an option at its "=", and a time at its ":".
                                         LineCase{{"check", "--window", "=", "w.xml", "--s"}, {"--sarif"}},
                                         LineCase{{"new", "job", "--at", "22", ":", "30", "--da"}, {"--daily"}}));

INSTANTIATE_TEST_SUITE_P(Values, BashCompletes,
                         testing::Values(LineCase{{"log", "--severity", ""}, {"processing", "info", "warn", "error"}},
                                         LineCase{{"log", "--severity", "=", "w"}, {"warn"}},
                                         LineCase{{"log", "--severity", "="}, {"processing", "info", "warn", "error"}},
                                         LineCase{{"log", "--severity=w"}, {"--severity=warn"}},
                                         LineCase{{"dump", "--kind", "key"}, {"key-bundle", "key-set"}},
                                         LineCase{{"new", "job", "--compression", "Zs"}, {"Zstd3", "Zstd9"}},
                                         LineCase{{"completion", ""}, {"bash", "zsh", "fish"}},
                                         LineCase{{"explain", "window-c"}, {"window-closed-at-start"}},
                                         LineCase{{"explain", "never-runs", "w"}, {}},
                                         LineCase{{"log", "--grep", "w"}, {}},
                                         LineCase{{"next", "job.xml", "--from", ""}, {}}));

INSTANTIATE_TEST_SUITE_P(
    Files, BashCompletes,
    testing::Values(LineCase{{"show", ""}, OfFiles}, LineCase{{"show", "job.xml", ""}, {}},
                    LineCase{{"diff", "a.xml", ""}, OfFiles}, LineCase{{"diff", "a.xml", "b.xml", ""}, {}},
                    LineCase{{"diff", "show", "b"}, OfFiles}, LineCase{{"check", "a.xml", "b.xml", "c"}, OfFiles},
                    LineCase{{"check", "--window", ""}, OfFiles}, LineCase{{"check", "--window", "=", "w"}, OfFiles},
                    LineCase{{"new", "gfs", "-o", "a"}, OfFiles}, LineCase{{"show", "-", ""}, {}},
                    LineCase{{"set", "a"}, OfFiles}));

INSTANTIATE_TEST_SUITE_P(
    Fields, BashCompletes,
    testing::Values(LineCase{{"set", "job.xml", "maxD"}, {"-o nospace", "maxDays="}},
                    LineCase{{"set", "job.xml", "maxDays", "=", "2", "maxP"}, {"-o nospace", "maxPoints="}},
                    LineCase{{"set", "job.xml", "maxDays", "=", "2"}, {}},
                    LineCase{{"set", "gfs.xml", "weekly.k"}, {"-o nospace", "weekly.keepCount="}}));

TEST(BashScript, StandsAloneForAnyTree)
{
    const zelmodel_test::TemporaryFolder folder;
    const auto script = folder.write("tool.bash", usage::renderBashCompletion(zelmodel_test::madeTree()));
    EXPECT_EQ(completed(script, {"tool", ""}), (Words{"put", "go"}));
    EXPECT_EQ(completed(script, {"tool", "go", "far", "--level", "h"}), Words{"high"});
    EXPECT_EQ(completed(script, {"tool", "go", "--at", "far", "f"}), Words{"far"});
    EXPECT_EQ(completed(script, {"tool", "put", "x", "col"}), (Words{"-o nospace", "colour="}));
}

} // namespace
