#include "log_printer.h"

#include <iostream>

#include "describe/terminal_text.h"
#include "describe/text_renderer.h"
#include "describe/words.h"
#include "input.h"
#include "logs/summary.h"

namespace
{

using describe::appendPrintable;
using describe::printable;
using describe::shortened;

constexpr std::size_t PieceSize = 64UL * 1024;

/// What both forms of text have in common: messages for people on standard error.
class TextPrinter : public LogPrinter
{
public:
    TextPrinter(const Output& output, bool listsSkipped) : LogPrinter(output), m_listsSkipped(listsSkipped) {}

    void skipped(const std::string& file, const logs::LogReader& reader) override
    {
        if (!m_listsSkipped)
            return;
        flush();
        std::cerr << printable(shownName(file)) << ':' << reader.number()
                  << ": skipped: " << printable(shortened(reader.reason(), LongestReason)) << '\n';
    }

    void done(const LogReport& report) override
    {
        flush();
        if (report.counts.skipped > 0 && !m_listsSkipped)
            std::cerr << printable(shownName(report.file)) << ": " << report.counts.skipped << " of "
                      << describe::countOf(report.counts.lines, "line") << " skipped (--skipped lists them)\n";
    }

    void changed(const std::string& file, logs::EChange change) override
    {
        std::cerr << printable(shownName(file))
                  << (change == logs::EChange::Replaced ? ": replaced, going on with the new file\n"
                                                        : ": truncated, going on from its beginning\n");
    }

    void failed(const LogFailure& failure) override
    {
        flush();
        if (failure.refused.empty())
            output().printFailure(failure.file, failure.failed);
        else
            output().printRefusal(failure.file, 0, failure.refused);
    }

private:
    bool m_listsSkipped;
};

class LinePrinter : public TextPrinter
{
public:
    using TextPrinter::TextPrinter;

    void record(const std::string&, const logs::LogReader& reader) override
    {
        appendPrintable(collection(), reader.text());
        collection() += '\n';
        collected();
    }

    void end() override { flush(); }
};

class SummaryPrinter : public TextPrinter
{
public:
    using TextPrinter::TextPrinter;

    void record(const std::string&, const logs::LogReader& reader) override { m_summary.add(reader.record()); }

    void end() override { output().print(describe::renderTable(logs::describeSummary(m_summary), output().style())); }

private:
    logs::Summary m_summary;
};

} // namespace

LogPrinter::~LogPrinter() = default;

void LogPrinter::flush()
{
    m_output.print(m_collection);
    m_collection.clear();
}

void LogPrinter::collected()
{
    if (m_collection.size() >= PieceSize)
        flush();
}

std::unique_ptr<LogPrinter> makeLogPrinter(const Output& output, const LogForm& form, const std::string& name)
{
    if (form.isJsonLines)
        return makeJsonLinePrinter(output, form);
    if (output.isJson())
        return makeJsonSummaryPrinter(output, form, name);
    if (form.isSummary)
        return std::make_unique<SummaryPrinter>(output, form.listsSkipped);
    return std::make_unique<LinePrinter>(output, form.listsSkipped);
}
