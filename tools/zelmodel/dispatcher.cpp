#include "dispatcher.h"

CLI::App& Dispatcher::define(const char* name, const char* description)
{
    auto& command = *m_app.add_subcommand(name, description);
    command.add_flag("--json", m_outputOptions.isJson, "Print JSON for programs");
    command.add_flag("--no-color", m_outputOptions.isPlain, "No bold or coloured text; as the variable NO_COLOR");
    command.add_flag("--reveal", m_outputOptions.showsSecrets, "Show secrets, which are hidden otherwise");
    return command;
}

int Dispatcher::run(Session& session) const
{
    return m_work.at(m_app.get_subcommands().front())(session);
}
