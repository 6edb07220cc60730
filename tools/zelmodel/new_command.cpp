#include <memory>
#include <string>
#include <vector>

#include "commands.h"
#include "new_documents.h"

namespace
{

using describe::EDocumentKind;
using edit::NewOption;

struct NewKind
{
    const char* name;
    EDocumentKind kind;
    const char* description;
    bool hasWindow; ///< a window can be written with it
};

constexpr NewKind Kinds[] = {
    {"job", EDocumentKind::AgentJobOptions, "Write job options", true},
    {"schedule", EDocumentKind::ScheduleOptions, "Write schedule options", true},
    {"window", EDocumentKind::ScheduleWindow, "Write a backup window; it is closed unless told otherwise", false},
    {"gfs", EDocumentKind::GfsPolicy, "Write a GFS policy; it is off unless told otherwise", false},
};

bool isGiven(const NewRequest& request, const std::vector<std::string>& names)
{
    for (const auto& given : request.given)
    {
        for (const auto& name : names)
        {
            if (given.option->name == name)
                return true;
        }
    }
    return names.empty();
}

void checkNeeds(const NewRequest& request)
{
    for (const auto& given : request.given)
    {
        if (isGiven(request, given.option->needs))
            continue;
        std::string list;
        for (const auto& name : given.option->needs)
            list += (list.empty() ? "" : " or ") + name;
        throw UsageError(given.option->name, "has a meaning with " + list + " only");
    }
}

void addOption(CommandOptions& command, const NewOption& row, const std::shared_ptr<NewRequest>& request)
{
    auto option = row.typeName.empty() ? command.addFlag(
                                             row.name,
                                             [request, &row] {
                                                 request->given.push_back({&row, ""});
                                             },
                                             row.help)
                                       : command.add(
                                             row.name,
                                             [request, &row](const std::string& text) {
                                                 request->given.push_back({&row, text});
                                             },
                                             row.help);
    if (!row.typeName.empty())
        option.typeName(row.typeName);
    if (!row.words.empty())
        option.suggest([&row] { return row.words; });
    if (row.choice.empty())
        return;
    for (const auto& other : edit::newOptions(request->kind))
    {
        if (&other == &row)
            return;
        if (other.choice == row.choice)
            option.excludes(other.name);
    }
}

void addWindow(CommandOptions& command, const std::shared_ptr<NewRequest>& request)
{
    command.add("--window", request->window, "A backup window, which is a document of its own: " + windowOption().help)
        .typeName(windowOption().typeName);
    command
        .add("--window-output", request->windowOutput,
             "The file of the window; beside the output unless given: job.window.xml for job.xml")
        .typeName("FILE")
        .needs("--window");
}

} // namespace

void addNew(Dispatcher& commands)
{
    const auto chosen = std::make_shared<std::shared_ptr<const NewRequest>>();
    auto command = commands.define("new", "Write a document without knowing its XML",
                                   [chosen](Session& session) { return writeNew(**chosen, session); });
    for (const auto& kind : Kinds)
    {
        auto sub = command.addCommand(kind.name, kind.description);
        const auto request = std::make_shared<NewRequest>();
        request->kind = kind.kind;
        request->name = std::string("new ") + kind.name;
        for (const auto& row : edit::newOptions(kind.kind))
            addOption(sub, row, request);
        if (kind.hasWindow)
            addWindow(sub, request);
        sub.add("-o,--output", request->output, "A new file for the document; standard output unless given")
            .typeName("FILE");
        sub.check([request, chosen] {
            checkNeeds(*request);
            *chosen = request;
        });
    }
}
