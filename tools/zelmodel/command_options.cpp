#include "command_options.h"

#include <utility>

#include <CLI/CLI.hpp>

CommandOption& CommandOption::required()
{
    m_option->required();
    return *this;
}

CommandOption& CommandOption::typeName(const std::string& name)
{
    m_option->type_name(name);
    return *this;
}

CommandOption& CommandOption::oneAtATime()
{
    m_option->allow_extra_args(false);
    return *this;
}

CommandOption& CommandOption::oneOf(const std::vector<std::string>& words)
{
    m_option->check(CLI::IsMember(words));
    return *this;
}

CommandOption& CommandOption::between(unsigned first, unsigned last)
{
    m_option->check(CLI::Range(first, last));
    return *this;
}

CommandOption& CommandOption::excludes(const std::string& other)
{
    m_option->excludes(other);
    return *this;
}

CommandOption& CommandOption::needs(const std::string& other)
{
    m_option->needs(other);
    return *this;
}

CommandOption CommandOptions::add(const std::string& name, std::string& target, const std::string& description)
{
    return CommandOption(*m_app->add_option(name, target, description));
}

CommandOption CommandOptions::add(const std::string& name, std::optional<std::string>& target,
                                  const std::string& description)
{
    return CommandOption(*m_app->add_option(name, target, description));
}

CommandOption CommandOptions::add(const std::string& name, std::optional<unsigned>& target,
                                  const std::string& description)
{
    return CommandOption(*m_app->add_option(name, target, description));
}

CommandOption CommandOptions::add(const std::string& name, std::vector<std::string>& target,
                                  const std::string& description)
{
    return CommandOption(*m_app->add_option(name, target, description));
}

CommandOption CommandOptions::add(const std::string& name, std::function<void(const std::string& value)> take,
                                  const std::string& description)
{
    return CommandOption(*m_app->add_option_function<std::string>(name, take, description));
}

CommandOption CommandOptions::addFlag(const std::string& name, bool& target, const std::string& description)
{
    return CommandOption(*m_app->add_flag(name, target, description));
}

CommandOption CommandOptions::addFlag(const std::string& name, std::function<void()> note,
                                      const std::string& description)
{
    return CommandOption(*m_app->add_flag_callback(name, std::move(note), description));
}

CommandOptions CommandOptions::addCommand(const std::string& name, const std::string& description)
{
    m_app->require_subcommand(1);
    auto& command = *m_app->add_subcommand(name, description);
    command.fallthrough();
    return CommandOptions(command);
}

void CommandOptions::check(std::function<void()> call)
{
    m_app->callback(std::move(call));
}
