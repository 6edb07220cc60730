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
    std::string list;
    for (const auto& word : words)
        list += (list.empty() ? "" : ", ") + word;
    m_option->check(CLI::IsMember(words).description(""));
    m_option->description(m_option->get_description() + " (" + list + ')');
    return suggest([words] { return words; });
}

CommandOption& CommandOption::between(unsigned first, unsigned last)
{
    m_option->check(CLI::Range(first, last).description(""));
    m_option->description(m_option->get_description() + " (" + std::to_string(first) + " to " + std::to_string(last) +
                          ')');
    return *this;
}

CommandOption& CommandOption::suggest(std::function<std::vector<std::string>()> words)
{
    (*m_words)[m_option] = std::move(words);
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
    return optionOf(m_app->add_option(name, target, description));
}

CommandOption CommandOptions::add(const std::string& name, std::optional<std::string>& target,
                                  const std::string& description)
{
    return optionOf(m_app->add_option(name, target, description));
}

CommandOption CommandOptions::add(const std::string& name, std::optional<unsigned>& target,
                                  const std::string& description)
{
    return optionOf(m_app->add_option(name, target, description));
}

CommandOption CommandOptions::add(const std::string& name, std::vector<std::string>& target,
                                  const std::string& description)
{
    return optionOf(m_app->add_option(name, target, description));
}

CommandOption CommandOptions::add(const std::string& name, const std::function<void(const std::string& value)>& take,
                                  const std::string& description)
{
    return optionOf(m_app->add_option_function<std::string>(name, take, description));
}

CommandOption CommandOptions::addFlag(const std::string& name, bool& target, const std::string& description)
{
    return optionOf(m_app->add_flag(name, target, description));
}

CommandOption CommandOptions::addFlag(const std::string& name, std::function<void()> note,
                                      const std::string& description)
{
    return optionOf(m_app->add_flag_callback(name, std::move(note), description));
}

CommandOptions CommandOptions::addCommand(const std::string& name, const std::string& description)
{
    m_app->require_subcommand(1);
    auto& command = *m_app->add_subcommand(name, description);
    command.fallthrough();
    return CommandOptions(command, *m_words);
}

CommandOption CommandOptions::optionOf(CLI::Option* option)
{
    return CommandOption(*option, *m_words);
}

void CommandOptions::check(std::function<void()> call)
{
    m_app->callback(std::move(call));
}
