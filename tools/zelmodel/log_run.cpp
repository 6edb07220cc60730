#include "log_run.h"

#include <algorithm>
#include <filesystem>
#include <optional>
#include <system_error>
#include <utility>

#include <unistd.h>

#include <zelplatform/exc/exc.h>

#include "describe/sentences.h"
#include "exit_code.h"
#include "input.h"
#include "logs/byte_source.h"
#include "logs/follow.h"
#include "logs/rotated_set.h"
#include "stop_signal.h"

namespace
{

constexpr int PollMilliseconds = 100;
constexpr std::uint64_t LinesBetweenLooks = 1024;

/// Does the work; gives the failure that ended it.
template <class Work>
std::optional<LogFailure> failureOf(const std::string& file, const Work& work)
try
{
    work();
    return std::nullopt;
}
catch (const InputError& error)
{
    return LogFailure{file, error.what(), {}};
}
catch (const exc::CRuntimeExc& refusal)
{
    return LogFailure{file, {}, describe::sentencesOf(refusal.trace())};
}

std::vector<std::string> filesOf(const LogArguments& arguments, Reading& reading)
{
    if (!arguments.isRotated)
        return logs::oldestFirst(arguments.files);
    std::vector<std::string> files;
    for (const auto& name : arguments.files)
    {
        reading.name = name;
        const auto set = logs::rotatedSetOf(name);
        files.insert(files.end(), set.begin(), set.end());
    }
    // In the middle of a rotation the file in use may be missing; it is the one that is followed nevertheless.
    if (arguments.isFollow && files.back() != arguments.files.back())
        files.push_back(arguments.files.back());
    return files;
}

std::uint64_t sizeOfFile(const std::string& name)
{
    std::error_code error;
    const auto size = std::filesystem::file_size(name, error);
    return error ? 0 : size;
}

std::uint64_t sizeOfAll(const std::vector<std::string>& files)
{
    std::uint64_t size = 0;
    for (const auto& name : files)
        size += sizeOfFile(name);
    return size;
}

// Lines that go to the same terminal, at once or by way of a pager, would stand on both sides of a bar.
bool mayShowProgress(const LogArguments& arguments, const Output& output)
{
    const bool isForPeople = !output.isPlain() && !output.isJson() && !arguments.form.isJsonLines;
    const bool isApart = output.isFile() || (arguments.form.isSummary && ::isatty(STDOUT_FILENO) != 0);
    return isForPeople && isApart && !arguments.isFollow;
}

} // namespace

LogRun::LogRun(const LogArguments& arguments, Session& session)
    : m_arguments(arguments),
      m_session(session),
      m_files(filesOf(arguments, session.reading)),
      m_printer(makeLogPrinter(session.output, arguments.form, arguments.files.front())),
      m_progress(mayShowProgress(arguments, session.output), sizeOfAll(m_files))
{
}

int LogRun::work()
{
    for (const auto& name : m_files)
    {
        m_session.reading.name = name;
        const bool isFollowed = m_arguments.isFollow && &name == &m_files.back();
        if (const auto failure = failureOf(name, [&] { isFollowed ? follow(name) : read(name); }))
            fail(*failure);
        m_bytesBefore += sizeOfFile(name);
    }
    m_progress.hide();
    m_printer->end();
    return m_arguments.isCheck && m_hasFindings ? std::max<int>(m_code, exit_code::Findings) : m_code;
}

void LogRun::read(const std::string& name)
{
    files::InputFile file(name);
    const auto source = logs::openSource(file);
    logs::LogReader reader(*source, m_notes);
    const auto failure = failureOf(name, [&] { readLines(reader, *source); });
    finish(reader);
    if (failure)
        fail(*failure);
}

void LogRun::follow(const std::string& name)
{
    const StopSignal stop;
    logs::FollowSteps steps;
    steps.read = [&](logs::LogReader& reader) {
        while (!stop.isRaised() && m_session.output.isGood() && reader.next())
            take(reader);
    };
    steps.finish = [&](logs::LogReader& reader) { finish(reader); };
    steps.changed = [&](logs::EChange change) { m_printer->changed(name, change); };
    steps.wait = [&] {
        m_printer->flush();
        m_session.output.flush();
        stop.wait(PollMilliseconds);
        return !stop.isRaised() && m_session.output.isGood();
    };
    logs::follow(name, m_notes, steps);
}

void LogRun::readLines(logs::LogReader& reader, const logs::ByteSource& source)
{
    while (reader.next())
    {
        take(reader);
        if (reader.number() % LinesBetweenLooks != 0)
            continue;
        m_progress.show(m_bytesBefore + source.position());
        if (!m_session.output.isGood())
            return;
    }
}

void LogRun::take(const logs::LogReader& reader)
{
    switch (reader.kind())
    {
    case logs::ELine::Empty: return;
    case logs::ELine::Skipped:
        m_hasFindings = true;
        if (m_arguments.form.listsSkipped)
            m_progress.hide();
        m_printer->skipped(m_session.reading.name, reader);
        return;
    case logs::ELine::Record: break;
    }
    if (!m_arguments.filter.takes(reader.record(), reader.text()))
        return;
    ++m_told;
    m_hasFindings = m_hasFindings || reader.record().severity == logs::ESeverity::Error;
    m_printer->record(m_session.reading.name, reader);
}

void LogRun::finish(logs::LogReader& reader)
{
    if (reader.finish())
        take(reader);
    m_progress.hide();
    m_printer->done({m_session.reading.name, reader.counts(), std::exchange(m_told, 0)});
}

void LogRun::fail(const LogFailure& failure)
{
    m_progress.hide();
    m_printer->failed(failure);
    m_code = std::max<int>(m_code, failure.refused.empty() ? exit_code::CannotRead : exit_code::Refused);
}
