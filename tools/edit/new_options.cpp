#include "option_tables.h"

#include <utility>

namespace edit
{
namespace
{

using describe::EDocumentKind;

void append(std::vector<NewOption>& options, const std::vector<NewOption>& more)
{
    options.insert(options.end(), more.begin(), more.end());
}

std::vector<NewOption> wholeJob()
{
    auto options = inPart("schedule", scheduleOptionRows());
    append(options, jobOptionRows());
    append(options, inPart("gfsPolicy", gfsOptionRows()));
    return options;
}

} // namespace

NewOption rowOf(std::string name, std::string typeName, std::string help, std::string path,
                std::vector<Assignment> fixed)
{
    return {std::move(name), std::move(typeName), std::move(help),
            [path = std::move(path), fixed = std::move(fixed)](const std::string& text) {
                auto all = fixed;
                all.push_back({path, text});
                return all;
            }};
}

NewOption flagOf(std::string name, std::string help, std::vector<Assignment> fixed)
{
    return {std::move(name), "", std::move(help), [fixed = std::move(fixed)](const std::string&) { return fixed; }};
}

NewOption withWords(NewOption option, std::vector<std::string> words)
{
    option.words = std::move(words);
    return option;
}

std::vector<NewOption> inPart(const std::string& part, std::vector<NewOption> options)
{
    for (auto& option : options)
        option.assignments = [inner = option.assignments, part](const std::string& text) {
            auto all = inner(text);
            for (auto& assignment : all)
                assignment.path.insert(0, part + '.');
            return all;
        };
    return options;
}

const std::vector<NewOption>& newOptions(EDocumentKind kind)
{
    static const auto job = wholeJob();
    static const auto schedule = scheduleOptionRows();
    static const auto window = windowOptionRows();
    static const auto gfs = gfsOptionRows();
    static const std::vector<NewOption> none;
    switch (kind)
    {
    case EDocumentKind::AgentJobOptions: return job;
    case EDocumentKind::ScheduleOptions: return schedule;
    case EDocumentKind::ScheduleWindow: return window;
    case EDocumentKind::GfsPolicy: return gfs;
    default: return none;
    }
}

} // namespace edit
