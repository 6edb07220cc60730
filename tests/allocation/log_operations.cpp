#include <memory>

#include <zelmodel/log.h>
#include <zelplatform/exc/exc.h>
#include <zelplatform/logging/logging.h>

#include "operation.h"
#include "samples.h"

namespace zelmodel_test
{
namespace
{

/// A sink in force as long as it lives, and a section that writes to it.
struct Log
{
    Log() { logging::set_sink(sink); }
    Log(const Log&) = delete;
    Log& operator=(const Log&) = delete;
    ~Log() { logging::set_sink(nullptr); }

    std::shared_ptr<logging::memory_sink> sink = std::make_shared<logging::memory_sink>();
    logging::log_section_t section{longText("section")};
    exc::CRuntimeExc cause{longText("cause")};
};

using LogPointer = std::unique_ptr<Log>;

LogPointer begun()
{
    auto log = std::make_unique<Log>();
    log->section.info("begun");
    return log;
}

std::string tellLog(const LogPointer& log)
{
    std::string told;
    for (const auto& entry : log->sink->entries())
        told += entry.section + ": " + entry.text + '\n';
    return told;
}

std::vector<Change<LogPointer>> changes()
{
    return {
        {"info", [](LogPointer& log) { log->section.info(longText("info")); }},
        {"warn", [](LogPointer& log) { log->section.warn(longText("warning")); }},
        {"warn.cause", [](LogPointer& log) { log->section.warn("Of [%1].", longText("warning"), log->cause); }},
        {"err", [](LogPointer& log) { log->section.err(longText("error")); }},
        {"err.exception", [](LogPointer& log) { log->section.err(log->cause); }},
        {"err.cause", [](LogPointer& log) { log->section.err("Of [%1].", longText("error"), log->cause); }},
        {"zelmodel_log", [](LogPointer&) { zelmodel_log.info(longText("library")); }},
        {"clear", [](LogPointer& log) { log->sink->clear(); }},
    };
}

} // namespace

Operations logOperations()
{
    return changing<LogPointer>("log_section_t", begun, tellLog, changes()) +
           asking<LogPointer>("memory_sink", begun, {{"entries", tellLog}});
}

} // namespace zelmodel_test
