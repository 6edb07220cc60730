#pragma once

#include <functional>
#include <map>
#include <memory>

#include "command_options.h"
#include "input.h"
#include "output.h"
#include "usage/command_tree.h"

/// What a command works with: how it prints, and what it is reading.
struct Session
{
    Output output;
    Reading reading;
};

/// The commands and what each does. A command's file defines its options and registers its work here.
class Dispatcher
{
public:
    /// Does a command's work; gives the exit code.
    using Work = std::function<int(Session& session)>;

    /// What `--version` answers.
    explicit Dispatcher(const std::string& version);
    ~Dispatcher();
    Dispatcher(const Dispatcher&) = delete;
    Dispatcher& operator=(const Dispatcher&) = delete;

    /// A new command with the options that all commands have.
    CommandOptions define(const char* name, const char* description, Work work);

    /// Takes the command and its options from the arguments of the call. Throws UsageError, and EarlyAnswer when only
    /// that is asked for.
    void parse(int argc, char** argv);

    /// Does the work of the command that was chosen.
    int run(Session& session) const;

    /// The options of output that were given.
    const OutputOptions& outputOptions() const noexcept { return m_outputOptions; }

    /// All commands with their options, as the help tells them.
    usage::Command tree() const;

private:
    std::unique_ptr<CLI::App> m_app;
    WordsOfOptions m_words;
    OutputOptions m_outputOptions;
    std::map<const CLI::App*, Work> m_work;
};
