#include "dispatcher.h"

#include <sstream>
#include <utility>

#include <CLI/CLI.hpp>

#include "option_tree.h"

Dispatcher::Dispatcher(const std::string& version)
    : m_app(
          std::make_unique<CLI::App>("Tells what the documents of backup jobs mean and when the jobs run", "zelmodel"))
{
    m_app->set_help_flag("-h,--help", "Print this help and exit");
    m_app->set_version_flag("--version", version, "Print the version and exit");
    m_app->require_subcommand(1);
}

Dispatcher::~Dispatcher() = default;

CommandOptions Dispatcher::define(const char* name, const char* description, Work work)
{
    auto& app = *m_app->add_subcommand(name, description);
    m_work[&app] = std::move(work);
    CommandOptions command(app, m_words);
    command.addFlag("--json", m_outputOptions.isJson, "Print JSON for programs");
    command.addFlag("--no-color", m_outputOptions.isPlain, "No bold or coloured text; as the variable NO_COLOR");
    command.addFlag("--reveal", m_outputOptions.showsSecrets, "Show secrets, which are hidden otherwise");
    return command;
}

void Dispatcher::parse(int argc, char** argv)
try
{
    m_app->parse(argc, argv);
}
catch (const CLI::Success& answer)
{
    std::ostringstream text;
    m_app->exit(answer, text, text);
    throw EarlyAnswer(text.str());
}
catch (const CLI::ParseError& error)
{
    throw UsageError(error.what());
}

int Dispatcher::run(Session& session) const
{
    return m_work.at(m_app->get_subcommands().front())(session);
}

usage::Command Dispatcher::tree() const
{
    return treeOf(*m_app, m_words);
}
