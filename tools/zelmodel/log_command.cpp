#include <map>
#include <memory>
#include <string>

#include "commands.h"
#include "exit_code.h"
#include "log_run.h"
#include "moment_option.h"

void addLog(Dispatcher& commands)
{
    auto& command = commands.define("log", "Tell what session logs hold");
    const auto arguments = std::make_shared<LogArguments>();
    command.add_option("FILE", arguments->files, "Session logs; - is standard input")->required();
    command.add_flag("--summary", arguments->form.isSummary, "A row for each session in place of the lines");
    commands.setWork(command, [arguments](Session& session) { return LogRun(*arguments, session).work(); });
}
