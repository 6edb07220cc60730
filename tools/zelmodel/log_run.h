#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "dispatcher.h"
#include "log_printer.h"
#include "logs/filter.h"
#include "logs/library_notes.h"

/// What the command `log` was asked.
struct LogArguments
{
    std::vector<std::string> files;
    LogForm form;
    logs::Filter filter;
    bool isCheck = false; ///< skipped lines and errors are findings
};

/// Reads logs one after the other; a file that fails does not keep the next from being read.
class LogRun
{
public:
    /// Both must outlive the run.
    LogRun(const LogArguments& arguments, Session& session);

    /// Gives the exit code: the worst of all files.
    int work();

private:
    void read(const std::string& name);
    void readLines(logs::LogReader& reader);
    void take(const logs::LogReader& reader);
    void report(const logs::LogReader& reader);
    void fail(const LogFailure& failure);

    const LogArguments& m_arguments;
    Session& m_session;
    std::unique_ptr<LogPrinter> m_printer;
    logs::LibraryNotes m_notes;
    std::uint64_t m_told = 0; ///< records of the file that passed the filter
    bool m_hasFindings = false;
    int m_code = 0;
};
