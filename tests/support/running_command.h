#pragma once

#include <string>
#include <vector>

#include <sys/types.h>

#include "run_command.h"
#include "temporary_folder.h"

namespace zelmodel_test
{

/// The program `zelmodel` while it runs beside the test, without input. Nothing waits longer than half a minute
/// times slowness().
class RunningCommand
{
public:
    explicit RunningCommand(const std::vector<std::string>& arguments);
    RunningCommand(const RunningCommand&) = delete;
    RunningCommand& operator=(const RunningCommand&) = delete;

    /// Kills a program that the test did not see the end of.
    ~RunningCommand();

    /// What it has written so far, as soon as the text is there.
    std::string outputWith(const std::string& text) const;
    std::string messagesWith(const std::string& text) const;

    void signal(int number) const;

    /// Waits for the end. An answer in JSON must be of its schema, as with runCommand.
    CommandResult end();

    /// The most memory that it had, in KiB; known after the end.
    long peakMemory() const noexcept { return m_peakMemory; }

private:
    /// Gives the status of the process.
    int waitForEnd();

    std::vector<std::string> m_arguments;
    TemporaryFolder m_folder;
    pid_t m_child = -1;
    long m_peakMemory = 0;
};

} // namespace zelmodel_test
