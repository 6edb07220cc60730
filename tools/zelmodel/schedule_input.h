#pragma once

#include <memory>
#include <optional>
#include <string>

#include <zelmodel/datetime/date.h>
#include <zelmodel/structs/schedule/backup_window.h>
#include <zelmodel/structs/schedule/schedule_options.h>

#include "describe/document.h"
#include "describe/document_kind.h"
#include "describe/node.h"
#include "dispatcher.h"
#include "input.h"

/// The documents of a command that asks when a job starts.
struct ScheduleArguments
{
    std::string file;
    std::string window; ///< empty: none
};

/// What they hold: the records as the library read them, and the trees that know the lines.
struct ScheduleInput
{
    describe::EDocumentKind kind;
    zelplatform::model::structs::CScheduleOptions schedule;
    describe::Node tree;
    std::shared_ptr<const zelplatform::model::structs::BackupWindow> window;
    describe::Node windowTree;
};

/// Adds FILE and --window; the arguments must outlive the parsing.
void addScheduleArguments(CommandOptions& command, ScheduleArguments& arguments);

/// Refuses two documents from one standard input; for the command's callback.
void checkScheduleArguments(const ScheduleArguments& arguments);

/// Reads the documents. After it the reading names the first one again.
ScheduleInput readSchedule(const ScheduleArguments& arguments, Reading& reading);

/// The same when the first document is open already: it is the one of the reading.
ScheduleInput readSchedule(const describe::Document& document, const ScheduleArguments& arguments, Reading& reading);

/// The name of a document for people: that of its file without the folder, escaped.
std::string nameOf(const std::string& file);

/// Says that the job does not start, and why; gives the exit code.
int tellNothing(const Session& session, const ScheduleArguments& arguments, const char* kind,
                const std::string& reason);

/// The local date of today.
zelplatform::model::CDate today();
