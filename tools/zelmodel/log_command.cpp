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
    throw CLI::ValidationError("--session", error.what());
}

void addFilterOptions(CLI::App& command, Options& options)
{
    auto& filter = options.run.filter;
    command
        .add_option_function<std::vector<std::string>>(
            "--session", [&filter](const auto& texts) { addSessions(filter, texts); },
            "Only records of this session; may be given several times")
        ->type_name("GUID")
        ->allow_extra_args(false);
    command
        .add_option_function<std::string>(
            "--severity",
            [&filter](const std::string& word) { filter.leastSeverity = ISessionLogWriter::SeverityFromString(word); },
            "Only records of this severity and worse ones")
        ->check(CLI::IsMember(severityWords()));
    addMomentRangeOption(command, "--since", options.since, "Only records of this moment (UTC) and later ones");
    addMomentRangeOption(command, "--until", options.until,
                         "Only records up to the end of this day, minute or second (UTC)");
    command.add_option("--grep", filter.text, "Only records with this text in their line, letter case counts")
        ->type_name("TEXT");
}

void addFormOptions(CLI::App& command, LogForm& form)
{
    auto* const summary = command.add_flag("--summary", form.isSummary,
                                           "A row for each session in place of the lines; --json implies it");
    auto* const jsonLines =
        command.add_flag("--json-lines", form.isJsonLines, "A JSON object for each record, on a line");
    jsonLines->excludes(summary)->excludes(command.get_option("--json"));
    command.add_flag("--skipped", form.listsSkipped, "List each skipped line with its number and the reason");
}

void complete(Options& options)
{
    auto& run = options.run;
    run.filter.since = options.since ? std::optional(options.since->first) : std::nullopt;
    run.filter.until = options.until ? std::optional(options.until->last) : std::nullopt;
    const auto inputs = std::count(run.files.begin(), run.files.end(), StandardInput);
    if (inputs > 1)
        throw CLI::ValidationError("FILE", "Standard input can be read only once");
    if (inputs > 0 && run.isRotated)
        throw CLI::ValidationError("--rotated", "Standard input has no rotated set");
    if (run.isFollow && run.files.back() == StandardInput)
        throw CLI::ValidationError("--follow", "Standard input cannot be followed; it is read to its end anyway");
    if (run.filter.since && run.filter.until && *run.filter.until < *run.filter.since)
        throw CLI::ValidationError("--until", "The end is before the beginning");
}

} // namespace

void addLog(Dispatcher& commands)
{
    auto& command = commands.define("log", "Tell what session logs hold");
    const auto options = std::make_shared<Options>();
    auto& run = options->run;
    command.add_option("FILE", run.files, "Session logs, plain or gzip; - is standard input")->required();
    addFormOptions(command, run.form);
    addFilterOptions(command, *options);
    command.add_flag("--rotated", run.isRotated, "Read FILE.2.gz, FILE.1 and so on before FILE");
    command.add_flag("--follow", run.isFollow, "Go on with what is appended to the last FILE, until interrupted");
    command.add_flag("--check", run.isCheck, "End with 1 when lines were skipped or errors told");
    command.callback([options] { complete(*options); });
    commands.setWork(command, [options](Session& session) { return LogRun(options->run, session).work(); });
}
