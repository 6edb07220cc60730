#pragma once

#include <string>
#include <vector>

namespace zelmodel_test
{

/// What a process left behind.
struct CommandResult
{
    int exitCode = -1; ///< 128 and the signal's number when a signal ended it
    std::string output;
    std::string messages;
};

/// Runs the program `zelmodel` without a shell, gives it the text on standard input, and waits for its end. It starts
/// in the folder of the examples, so that messages name files as an example call does, in the zone UTC. An answer in
/// JSON must be of its schema, whoever asks for it: the test fails otherwise.
CommandResult runCommand(const std::vector<std::string>& arguments, const std::string& input = {});

/// The same in another zone.
CommandResult runCommandInZone(const std::string& zone, const std::vector<std::string>& arguments);

/// runCommand with standard output going into the file instead of the result.
CommandResult runCommandInto(const std::string& outputFile, const std::vector<std::string>& arguments);

/// runCommand on a terminal of the width, which gets output and messages; the named environment variables are set to 1.
CommandResult runCommandOnTerminal(const std::vector<std::string>& arguments, unsigned short width,
                                   const std::vector<std::string>& environment = {});

} // namespace zelmodel_test
