#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "logs/follow.h"
#include "logs/log_reader.h"
#include "output.h"

/// Bytes of the reason of a skipped line; the middle of longer ones is left out.
constexpr std::size_t LongestReason = 400;

/// What the command prints of a log.
struct LogForm
{
    bool isSummary = false;    ///< a row for each session in place of the lines
    bool isJsonLines = false;  ///< an object for each record, each on a line of its own
    bool listsSkipped = false; ///< each skipped line with its number and the reason
};

/// What was read of a file.
struct LogReport
{
    std::string file;
    logs::LineCounts counts;
    std::uint64_t told = 0; ///< records that passed the filter
};

/// Why a file could not be read to its end.
struct LogFailure
{
    std::string file;
    std::string failed;               ///< the system's reason; empty when the file was refused
    std::vector<std::string> refused; ///< the sentences of the refusal
};

/// Prints what a log holds as it comes. Output is collected in large pieces.
class LogPrinter
{
public:
    explicit LogPrinter(const Output& output) : m_output(output) {}
    LogPrinter(const LogPrinter&) = delete;
    LogPrinter& operator=(const LogPrinter&) = delete;
    virtual ~LogPrinter();

    /// The reader's line is a record that passed the filter.
    virtual void record(const std::string& file, const logs::LogReader& reader) = 0;

    /// The reader's line is one that is skipped.
    virtual void skipped(const std::string& file, const logs::LogReader& reader) = 0;

    /// The file was read as far as that was possible.
    virtual void done(const LogReport& report) = 0;

    /// The file that is followed begins again.
    virtual void changed(const std::string& file, logs::EChange change) = 0;

    virtual void failed(const LogFailure& failure) = 0;

    /// Nothing more comes.
    virtual void end() = 0;

    /// Prints what was collected.
    void flush();

protected:
    const Output& output() const noexcept { return m_output; }

    /// The end of the text that is collected; call collected() when a part is complete.
    std::string& collection() noexcept { return m_collection; }
    void collected();

private:
    const Output& m_output;
    std::string m_collection;
};

/// The printer of the form. The name is the one that a JSON document is about; the output must outlive the printer.
std::unique_ptr<LogPrinter> makeLogPrinter(const Output& output, const LogForm& form, const std::string& name);

/// Those that print JSON.
std::unique_ptr<LogPrinter> makeJsonLinePrinter(const Output& output, const LogForm& form);
std::unique_ptr<LogPrinter> makeJsonSummaryPrinter(const Output& output, const LogForm& form, const std::string& name);
