#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "dispatcher.h"
#include "log_printer.h"
#include "logs/filter.h"
#include "logs/library_notes.h"
#include "progress_bar.h"

/// What the command `log` was asked.
struct LogArguments
{
    std::vector<std::string> files;
    LogForm form;
    logs::Filter filter;
    bool isRotated = false; ///< each file stands for its rotated set
    bool isFollow = false;  ///< the last file is followed
    bool isCheck = false;   ///< skipped lines and errors are findings
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
    void follow(const std::string& name);
    void readLines(logs::LogReader& reader, const logs::ByteSource& source);
    void take(const logs::LogReader& reader);
    void finish(logs::LogReader& reader);
    void fail(const LogFailure& failure);

    const LogArguments& m_arguments;
    Session& m_session;
    std::vector<std::string> m_files;
    std::unique_ptr<LogPrinter> m_printer;
    logs::LibraryNotes m_notes;
    ProgressBar m_progress;
    std::uint64_t m_bytesBefore = 0; ///< of the files that were read already
    std::uint64_t m_told = 0;        ///< records of the file that passed the filter
    bool m_hasFindings = false;
    int m_code = 0;
};
