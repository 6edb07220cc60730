#pragma once

#include <functional>
#include <map>

#include <CLI/CLI.hpp>

#include "input.h"
#include "output.h"

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

    explicit Dispatcher(CLI::App& app) : m_app(app) {}

    /// A new command with the options that all commands have.
    CLI::App& define(const char* name, const char* description);

    /// Sets the work of a command.
    void setWork(const CLI::App& command, Work work) { m_work[&command] = std::move(work); }

    /// Does the work of the command that was chosen.
    int run(Session& session) const;

    /// The options of output that were given.
    const OutputOptions& outputOptions() const noexcept { return m_outputOptions; }

private:
    CLI::App& m_app;
    OutputOptions m_outputOptions;
    std::map<const CLI::App*, Work> m_work;
};
