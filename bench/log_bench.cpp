#include <array>
#include <charconv>
#include <cstring>
#include <ctime>
#include <string>
#include <vector>

#include <benchmark/benchmark.h>

#include <zelmodel/sessions.h>

#include "log_lines.h"
#include "ratio_table.h"

namespace
{

using namespace zelplatform::model;

constexpr std::size_t Lines = 4096;

/// The benchmarks go round them.
const std::vector<std::string>& logLines()
{
    static const auto lines = zelmodel_bench::makeLogLines(Lines);
    return lines;
}

void parseLogLine(benchmark::State& state)
{
    const auto& lines = logLines();
    CDateTimeEx time;
    guid::guid_t id;
    auto severity = ISessionLogWriter::Info;
    std::string message;
    std::size_t i = 0;
    for (auto _ : state)
        benchmark::DoNotOptimize(CSessionLogLineParser::Parse(lines[i++ % Lines], time, id, severity, message));
}
BENCHMARK(parseLogLine);

int twoDigits(const char* at)
{
    return (at[0] - '0') * 10 + (at[1] - '0');
}

unsigned hexDigit(char c)
{
    return static_cast<unsigned>(c <= '9' ? c - '0' : (c | 0x20) - 'a' + 10);
}

struct Scanned
{
    long utc = 0;
    long offset = 0;
    std::array<unsigned char, 16> id{};
    int severity = 0;
    std::string message;
};

// The offset of the machine's local time, asked once a second as the library does.
long localOffset()
{
    static std::time_t cachedSecond = -1;
    static long cachedOffset = 0;
    const std::time_t now = std::time(nullptr);
    if (now != cachedSecond)
    {
        std::tm local{};
        localtime_r(&now, &local);
        cachedOffset = local.tm_gmtoff;
        cachedSecond = now;
    }
    return cachedOffset;
}

// Walks the fixed layout with a pointer and trusts it: no check of the calendar, the digits or the separators.
bool scanLine(const std::string& line, Scanned& out)
{
    const char* at = line.c_str();
    const long year = twoDigits(at) * 100 + twoDigits(at + 2);
    const long month = twoDigits(at + 5);
    const long day = twoDigits(at + 8);
    const long shifted = month <= 2 ? year - 1 : year;
    const long era = shifted / 400;
    const long yearOfEra = shifted - era * 400;
    const long dayOfYear = (153 * (month + (month > 2 ? -3 : 9)) + 2) / 5 + day - 1;
    const long days = era * 146097 + yearOfEra * 365 + yearOfEra / 4 - yearOfEra / 100 + dayOfYear - 719468;
    out.utc = days * 86400 + twoDigits(at + 11) * 3600 + twoDigits(at + 14) * 60 + twoDigits(at + 17);
    out.offset = localOffset();
    if (std::memcmp(at + 20, "UTC ", 4) != 0)
        return false;
    at += 24;
    for (std::size_t i = 0; i < out.id.size(); ++i)
    {
        if (*at == '-')
            ++at;
        out.id[i] = static_cast<unsigned char>(hexDigit(at[0]) << 4U | hexDigit(at[1]));
        at += 2;
    }
    ++at;
    const char* end = std::strchr(at, ' ');
    switch (*at)
    {
    case 'p': out.severity = 0; break;
    case 'i': out.severity = 1; break;
    case 'w': out.severity = 2; break;
    default: out.severity = 3; break;
    }
    out.message.assign(end + 1, line.c_str() + line.size());
    return true;
}

void scanLogLineByHand(benchmark::State& state)
{
    const auto& lines = logLines();
    Scanned scanned;
    std::size_t i = 0;
    for (auto _ : state)
        benchmark::DoNotOptimize(scanLine(lines[i++ % Lines], scanned));
}
BENCHMARK(scanLogLineByHand);

const bool added = zelmodel_bench::addFigure({"reading a log line", "parseLogLine", "scanLogLineByHand", 1.50});

} // namespace
