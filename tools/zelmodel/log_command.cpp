#include <algorithm>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "commands.h"
#include "log_run.h"
#include "moment_range_option.h"

namespace
{

using zelplatform::model::ISessionLogWriter;

struct Options
{
    LogArguments run;
    std::vector<std::string> sessions;
    std::optional<MomentRange> since;
    std::optional<MomentRange> until;
};

std::vector<std::string> severityWords()
{
    std::vector<std::string> words;
    for (const auto& [severity, word] : ISessionLogWriter::s_msgTypes())
        words.push_back(word);
    return words;
}

void addSessions(logs::Filter& filter, const std::vector<std::string>& texts)
try
{
    for (const auto& text : texts)
        filter.sessions.push_back(guid::guid_t::FromAStr(text));
}
catch (const std::exception& error)
{
    throw UsageError("--session", error.what());
}

void addFilterOptions(CommandOptions& command, Options& options)
{
    auto& filter = options.run.filter;
    command.add("--session", options.sessions, "Only records of this session; may be given several times")
        .typeName("GUID")
        .oneAtATime();
    command
        .add(
            "--severity",
            [&filter](const std::string& word) { filter.leastSeverity = ISessionLogWriter::SeverityFromString(word); },
            "Only records of this severity and worse ones")
        .typeName("WORD")
        .oneOf(severityWords());
    addMomentRangeOption(command, "--since", options.since, "Only records of this moment (UTC) and later ones");
    addMomentRangeOption(command, "--until", options.until,
                         "Only records up to the end of this day, minute or second (UTC)");
    command.add("--grep", filter.text, "Only records with this text in their line, letter case counts")
        .typeName("TEXT");
}

void addFormOptions(CommandOptions& command, LogForm& form)
{
    command.addFlag("--summary", form.isSummary, "A row for each session in place of the lines; --json implies it");
    command.addFlag("--json-lines", form.isJsonLines, "A JSON object for each record, on a line")
        .excludes("--summary")
        .excludes("--json");
    command.addFlag("--skipped", form.listsSkipped, "List each skipped line with its number and the reason");
}

void complete(Options& options)
{
    auto& run = options.run;
    addSessions(run.filter, options.sessions);
    run.filter.since = options.since ? std::optional(options.since->first) : std::nullopt;
    run.filter.until = options.until ? std::optional(options.until->last) : std::nullopt;
    const auto inputs = std::count(run.files.begin(), run.files.end(), StandardInput);
    if (inputs > 1)
        throw UsageError("FILE", "Standard input can be read only once");
    if (inputs > 0 && run.isRotated)
        throw UsageError("--rotated", "Standard input has no rotated set");
    if (run.isFollow && run.files.back() == StandardInput)
        throw UsageError("--follow", "Standard input cannot be followed; it is read to its end anyway");
    if (run.filter.since && run.filter.until && *run.filter.until < *run.filter.since)
        throw UsageError("--until", "The end is before the beginning");
}

} // namespace

void addLog(Dispatcher& commands)
{
    const auto options = std::make_shared<Options>();
    auto command = commands.define("log", "Tell what session logs hold",
                                   [options](Session& session) { return LogRun(options->run, session).work(); });
    auto& run = options->run;
    command.add("FILE", run.files, "Session logs, plain or gzip; - is standard input").required();
    addFormOptions(command, run.form);
    addFilterOptions(command, *options);
    command.addFlag("--rotated", run.isRotated, "Read FILE.2.gz, FILE.1 and so on before FILE");
    command.addFlag("--follow", run.isFollow, "Go on with what is appended to the last FILE, until interrupted");
    command.addFlag("--check", run.isCheck, "End with 1 when lines were skipped or errors told");
    command.check([options] { complete(*options); });
}
