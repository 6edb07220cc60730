#include "log_run.h"

#include <algorithm>
#include <optional>
#include <utility>

#include <zelplatform/exc/exc.h>

#include "describe/sentences.h"
#include "exit_code.h"
#include "input.h"
#include "logs/byte_source.h"

namespace
{

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

} // namespace

LogRun::LogRun(const LogArguments& arguments, Session& session)
    : m_arguments(arguments),
      m_session(session),
      m_printer(makeLogPrinter(session.output, arguments.form, arguments.files.front()))
{
}

int LogRun::work()
{
    for (const auto& name : m_arguments.files)
    {
        m_session.reading.name = name;
        if (const auto failure = failureOf(name, [&] { read(name); }))
            fail(*failure);
    }
    m_printer->end();
    if (m_arguments.isCheck && m_hasFindings)
        m_code = std::max(m_code, exit_code::Findings);
    return m_code;
}

void LogRun::read(const std::string& name)
{
    files::InputFile file(name);
    const auto source = logs::openSource(file);
    logs::LogReader reader(*source, m_notes);
    const auto failure = failureOf(name, [&] { readLines(reader); });
    if (reader.finish())
        take(reader);
    report(reader);
    if (failure)
        fail(*failure);
}

void LogRun::readLines(logs::LogReader& reader)
{
    while (m_session.output.isGood() && reader.next())
        take(reader);
}

void LogRun::take(const logs::LogReader& reader)
{
    switch (reader.kind())
    {
    case logs::ELine::Empty: return;
    case logs::ELine::Skipped:
        m_hasFindings = true;
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

void LogRun::report(const logs::LogReader& reader)
{
    m_printer->done({m_session.reading.name, reader.counts(), std::exchange(m_told, 0)});
}

void LogRun::fail(const LogFailure& failure)
{
    m_printer->failed(failure);
    m_code = std::max(m_code, failure.refused.empty() ? exit_code::CannotRead : exit_code::Refused);
}
