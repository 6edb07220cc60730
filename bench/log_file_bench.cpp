#include <cstddef>
#include <filesystem>
#include <fstream>
#include <stdexcept>
#include <string>
#include <vector>

#include <benchmark/benchmark.h>

#include <unistd.h>

#include <zelmodel/sessions.h>

#include "describe/terminal_text.h"
#include "files/input_file.h"
#include "log_lines.h"
#include "logs/byte_source.h"
#include "logs/filter.h"
#include "logs/log_reader.h"
#include "logs/summary.h"
#include "ratio_table.h"

namespace
{

using namespace zelplatform::model;

constexpr std::size_t Lines = 64UL * 1024;
constexpr std::size_t PieceOfOutput = 64UL * 1024;

const std::vector<std::string>& logLines()
{
    static const auto lines = zelmodel_bench::makeLogLines(Lines);
    return lines;
}

/// A file with the lines, about 8 MB.
class LogFile
{
public:
    LogFile()
        : m_path((std::filesystem::temp_directory_path() / ("log_file_bench_" + std::to_string(::getpid()))).string())
    {
        std::ofstream file(m_path, std::ios::binary);
        for (const auto& line : logLines())
            file << line << '\n';
        if (!file.flush())
            throw std::runtime_error("The log of the measurement cannot be written.");
    }
    LogFile(const LogFile&) = delete;
    LogFile& operator=(const LogFile&) = delete;
    ~LogFile() { std::filesystem::remove(m_path); }

    const std::string& path() const noexcept { return m_path; }

private:
    std::string m_path;
};

const std::string& logFile()
{
    static const LogFile file;
    return file.path();
}

/// Reads the file as the command does; gives the number of records that it handed on.
template <class Take>
std::size_t readLog(const Take& take)
{
    files::InputFile file(logFile());
    const auto source = logs::openSource(file);
    logs::LibraryNotes notes;
    logs::LogReader reader(*source, notes);
    const logs::Filter filter;
    std::size_t count = 0;
    while (reader.next())
    {
        if (reader.kind() != logs::ELine::Record || !filter.takes(reader.record(), reader.text()))
            continue;
        take(reader);
        ++count;
    }
    return count;
}

void checkCount(benchmark::State& state, std::size_t count)
{
    if (count != Lines)
        state.SkipWithError("Not every line was read.");
}

void sumUpLogFile(benchmark::State& state)
{
    for (auto _ : state)
    {
        logs::Summary summary;
        checkCount(state, readLog([&](const auto& reader) { summary.add(reader.record()); }));
        benchmark::DoNotOptimize(summary.sessions());
    }
}
BENCHMARK(sumUpLogFile);

void tellLogFile(benchmark::State& state)
{
    for (auto _ : state)
    {
        std::string text;
        checkCount(state, readLog([&](const auto& reader) {
                       if (text.size() > PieceOfOutput)
                           text.clear();
                       describe::appendPrintable(text, reader.text());
                       text += '\n';
                   }));
        benchmark::DoNotOptimize(text);
    }
}
BENCHMARK(tellLogFile);

// The parser alone, over lines that are in memory already.
void parseLogLines(benchmark::State& state)
{
    const auto& lines = logLines();
    CDateTimeEx time;
    guid::guid_t id;
    auto severity = ISessionLogWriter::Info;
    std::string message;
    for (auto _ : state)
    {
        std::size_t count = 0;
        for (const auto& line : lines)
            count += CSessionLogLineParser::Parse(line, time, id, severity, message) ? 1U : 0U;
        checkCount(state, count);
    }
}
BENCHMARK(parseLogLines);

const bool added[] = {zelmodel_bench::addFigure({"summing up a log file", "sumUpLogFile", "parseLogLines", 3.00}),
                      zelmodel_bench::addFigure({"telling a log file", "tellLogFile", "parseLogLines", 3.00})};

} // namespace
