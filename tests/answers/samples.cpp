#include "samples.h"

#include <sstream>

#include <gtest/gtest.h>

#include "support/run_command.h"

namespace zelmodel_test
{

const std::vector<Sample>& samples()
{
    static const std::vector<Sample> all{
        {"show", {"show", "older/job-state-version-1.xml", "--json"}},
        {"show", {"show", "delete-points.xml", "--json"}},
        {"show", {"show", "object-storage.xml", "--json"}},
        {"show", {"show", "object-storage.xml", "--json", "--reveal"}},
        {"show", {"show", "managing-server.xml", "--json"}},
        {"show", {"show", "misspelled-window.xml", "--json"}},

        {"check", {"check", "continuous.xml", "--json"}},
        {"check", {"check", "misspelled-window.xml", "gfs-policy.xml", "no-such-file.xml", "--json"}, 4},
        {"check", {"check", "refused/several-faults.xml", "--window", "always-open-window.xml", "--json"}, 3},
        {"check", {"check", "-", "--json"}, 3, "<"},

        {"explain", {"explain", "--json"}},
        {"explain", {"explain", "no-begin", "--json"}},

        {"next", {"next", "weekly-with-monthly-fulls-and-gfs.xml", "--from", "2026-01-01", "--json"}},
        {"next", {"next", "periodical-every-4-hours.xml", "--from", "2026-01-01", "-n", "2", "--json"}},
        {"next", {"next", "continuous.xml", "--window", "office-hours-closed-window.xml", "-n", "1", "--json"}},
        {"next", {"next", "managing-server.xml", "--json"}, 5},

        {"why", {"why", "nightly-file-server.xml", "--at", "2026-03-02 22:30", "--json"}},
        {"why", {"why", "older/schedule-monthly.xml", "--at", "2026-03-02 22:30", "--json"}, 5},
        {"why",
         {"why", "continuous.xml", "--at", "2026-03-02 12:00", "--window", "office-hours-closed-window.xml", "--json"},
         5},

        {"calendar", {"calendar", "weekly-with-monthly-fulls-and-gfs.xml", "--month", "2026-01", "--json"}},
        {"calendar", {"calendar", "older/schedule-monthly.xml", "--year", "2026", "--json"}},
        {"calendar",
         {"calendar", "continuous.xml", "--month", "2026-01", "--window", "always-open-window.xml", "--json"}},
        {"calendar", {"calendar", "office-hours-closed-window.xml", "--json"}},
        {"calendar", {"calendar", "managing-server.xml", "--json"}, 5},

        {"diff", {"diff", "continuous.xml", "continuous.xml", "--json"}},
        {"diff", {"diff", "continuous.xml", "nightly-file-server.xml", "--json"}, 1},
        {"diff", {"diff", "continuous.xml", "managing-server.xml", "--json"}, 1},
        {"diff", {"diff", "continuous.xml", "schedule-options.xml", "--json"}, 1},
        {"diff", {"diff", "continuous.xml", "gfs-synthetic-full.xml", "--json"}, 1},

        {"convert", {"convert", "older/schedule-daily.xml", "--json"}},
        {"convert", {"convert", "misspelled-window.xml", "--json"}},
        {"convert", {"convert", "object-storage.xml", "--json"}},
        {"convert", {"convert", "immutability-enclosed.xml", "--json"}},

        {"new", {"new", "job", "--weekly", "Mon-Fri", "--at", "22:30", "--window", "0-6", "--json"}},
        {"new", {"new", "gfs", "--json"}},

        {"set", {"set", "nightly-file-server.xml", "maxDays=21", "schedule.jobStart.time=23:15", "--json"}},
        {"set", {"set", "nightly-file-server.xml", "maxDays=14", "--json"}},
        {"set", {"set", "gfs-policy.xml", "--fields", "--json"}},

        {"dump", {"dump", "binary/key-bundle.b64", "--json"}},
        {"dump", {"dump", "binary/password-derived-key.b64", "--json", "--reveal"}},
        {"dump", {"dump", "binary/job-start.b64", "--json"}},
        {"dump", {"dump", "binary/guid.b64", "--kind", "text", "--json"}},

        {"log", {"log", "logs/nightly.log", "--rotated", "--json"}},
        {"log", {"log", "logs/nightly.log", "no-such.log", "--skipped", "--json"}, 4},
        {"log", {"log", "-", "--json", "--skipped"}},
        {"log", {"log", "no-such.log", "nor-this.log", "--json"}, 4},
        {"log-lines", {"log", "logs/nightly.log", "no-such.log", "--skipped", "--json-lines"}, 4},

        {"schema", {"schema", "gfs-policy", "--json"}},
        {"schema", {"schema", "gfs-policy", "--relaxng", "--json"}},
        {"schema", {"schema", "--answer", "log-lines", "--json"}},
        {"completion", {"completion", "bash", "--json"}},
        {"completion", {"completion", "zsh", "--json"}},
        {"completion", {"completion", "fish", "--json"}},
        {"man", {"man", "--json"}},

        {"error", {"show", "refused/managing-server-level.xml", "--json"}, 3},
        {"error", {"show", "no-such-file.xml", "--json"}, 4},
        {"error", {"show", "--json"}, 2},
        {"error", {"--json"}, 2},
        {"error", {"no-such-command", "--json"}, 2},
        {"error", {"check", "--json"}, 2},
        {"error", {"check", "continuous.xml", "--window", "no-such-file.xml", "--json"}, 4},
        {"error", {"explain", "no-such-finding", "--json"}, 2},
        {"error", {"next", "gfs-policy.xml", "--json"}, 3},
        {"error", {"next", "continuous.xml", "--window", "no-such-file.xml", "--json"}, 4},
        {"error", {"next", "continuous.xml", "-n", "0", "--json"}, 2},
        {"error", {"why", "gfs-policy.xml", "--at", "2026-03-02 12:00", "--json"}, 3},
        {"error", {"why", "no-such-file.xml", "--at", "2026-03-02 12:00", "--json"}, 4},
        {"error", {"why", "continuous.xml", "--json"}, 2},
        {"error", {"calendar", "refused/window-of-unknown-kind.xml", "--json"}, 3},
        {"error", {"calendar", "no-such-file.xml", "--json"}, 4},
        {"error", {"calendar", "continuous.xml", "--month", "March", "--json"}, 2},
        {"error", {"diff", "continuous.xml", "refused/malformed.xml", "--json"}, 3},
        {"error", {"diff", "continuous.xml", "no-such-file.xml", "--json"}, 4},
        {"error", {"diff", "continuous.xml", "--json"}, 2},
        {"error", {"convert", "refused/unknown-document.xml", "--json"}, 3},
        {"error", {"convert", "continuous.xml", "-o", "no-such-folder/new.xml", "--json"}, 4},
        {"error", {"convert", "-", "--in-place", "--json"}, 2},
        {"error", {"new", "job", "--weekly", "Never", "--json"}, 3},
        {"error", {"new", "window", "--open", "8-17", "-o", "no-such-folder/new.xml", "--json"}, 4},
        {"error", {"new", "--json"}, 2},
        {"error", {"set", "continuous.xml", "maxDays=many", "--json"}, 3},
        {"error", {"set", "no-such-file.xml", "maxDays=1", "--json"}, 4},
        {"error", {"set", "continuous.xml", "maxDay=1", "--json"}, 2},
        {"error", {"set", "continuous.xml", "--json"}, 2},
        {"error", {"dump", "refused/binary/managing-server-cut-off.b64", "--json"}, 3},
        {"error", {"dump", "refused/binary/managing-server-cut-off.b64", "--kind", "managing-server", "--json"}, 3},
        {"error", {"dump", "continuous.xml", "--json"}, 3},
        {"error", {"dump", "no-such-file", "--json"}, 4},
        {"error", {"dump", "binary/guid.b64", "--kind", "no-such-form", "--json"}, 2},
        {"error", {"log", "no-such.log", "--json"}, 4},
        {"error", {"log", "-", "-", "--json"}, 2},
        {"error", {"schema", "--json"}, 2},
        {"error", {"completion", "csh", "--json"}, 2},
        {"error", {"man", "page", "--json"}, 2},
    };
    return all;
}

std::vector<nlohmann::json> answersOf(const Sample& sample)
{
    const auto result = runCommand(sample.call, sample.input);
    EXPECT_EQ(sample.exitCode, result.exitCode) << testing::PrintToString(sample.call) << result.output;
    if (sample.call.back() != "--json-lines")
        return {nlohmann::json::parse(result.output)};
    std::vector<nlohmann::json> answers;
    std::istringstream lines(result.output);
    for (std::string line; std::getline(lines, line);)
        answers.push_back(nlohmann::json::parse(line));
    return answers;
}

} // namespace zelmodel_test
