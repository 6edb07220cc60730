#include "manual.h"

#include <utility>

#include "exit_code.h"

namespace
{

using usage::Section;

// When the texts of the page changed last. The day on which it is printed says nothing.
constexpr const char* LastChange = "2026-11-22";

Section description()
{
    return {"DESCRIPTION",
            {"zelmodel reads the documents of a backup agent's data model: job options, schedules, backup windows, GFS "
             "policies, repositories, storage, sessions, transforms, binary forms and session logs. It tells in words "
             "what they hold and when a job runs, finds what is wrong, compares, converts, writes and changes them. "
             "The library that answers is the one that the agent's service uses.",
             "The kind of a document is found by reading it. In place of the name of a FILE, - is standard input, "
             "once in a call."}};
}

Section exitStatus()
{
    Section section{"EXIT STATUS", {}};
    for (int code = 0; code < exit_code::Count; ++code)
        section.entries.push_back({std::to_string(code), std::string(exit_code::Meanings[code]) + '.'});
    section.paragraphs.emplace_back("Of several files, the worst status wins.");
    return section;
}

Section environment()
{
    return {"ENVIRONMENT",
            {},
            {{"NO_COLOR", "When it is set and not empty, there is no bold or coloured text, as with --no-color."},
             {"TZ", "The time zone in which schedules are told, which hold local times and no zone of their own. "
                    "Without it, the zone of the machine."}}};
}

Section files()
{
    return {"FILES",
            {},
            {{"FILE.orig, FILE.orig.1, ...",
              "What a file held before --in-place replaced it. No such file is ever overwritten."},
             {"FILE.1, FILE.2.gz, ...", "Older parts of a session log, read before FILE with --rotated."},
             {"JOB.window.xml", "The backup window that new writes beside a job JOB.xml."}}};
}

Section security()
{
    return {"SECURITY",
            {"Secrets in documents, such as keys, passwords and their hints, are hidden in what is told for people and "
             "as JSON; only their length is shown. With --reveal they are shown: on the terminal and in what it "
             "remembers, in a file, in a pipe. A document that convert or set writes holds the secrets that it held "
             "before and is to be kept like that one. A terminal gets no such document of convert without --reveal.",
             "Documents and logs may come from anybody: what could act on a terminal is escaped."}};
}

Section examples()
{
    return {"EXAMPLES",
            {},
            {{"zelmodel show job.xml", "What does the document say?"},
             {"zelmodel check job.xml --window window.xml", "What is wrong with it, and with its window?"},
             {"zelmodel next job.xml --from 2026-03-01 -n 5", "When does the job run next?"},
             {"zelmodel why job.xml --at \"2026-03-02 22:30\"", "Does it run at that time, and why?"},
             {"zelmodel diff job.xml other.xml", "In what do the two differ?"},
             {"zelmodel new job --weekly Mon-Fri --at 22:30 --keep-days 14", "A new document, on standard output."},
             {"zelmodel set job.xml maxDays=21 --json", "The document with one field changed, as JSON."},
             {"zelmodel log session.log --severity warn --summary", "Which sessions had warnings or errors?"}}};
}

} // namespace

usage::Manual manualOf(usage::Command program)
{
    return {std::move(program),
            ZELMODEL_VERSION,
            LastChange,
            description(),
            {exitStatus(), environment(), files(), security(), examples()}};
}
