#pragma once

#include <functional>
#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

namespace CLI
{
class App;
class Option;
} // namespace CLI

/// A call that makes no sense. The message is "OPTION: why".
class UsageError : public std::runtime_error
{
public:
    UsageError(const std::string& option, const std::string& why) : std::runtime_error(option + ": " + why) {}
    explicit UsageError(const std::string& message) : std::runtime_error(message) {}
};

/// A call that is answered at once, as --help is, whatever else it asks for. The message is the answer.
class EarlyAnswer : public std::runtime_error
{
public:
    using std::runtime_error::runtime_error;
};

/// What more is to be said of an option or argument. Others are named as they were added, and were added before.
class CommandOption
{
public:
    explicit CommandOption(CLI::Option& option) : m_option(&option) {}

    CommandOption& required();

    /// How its value is called, or what it looks like, in the help.
    CommandOption& typeName(const std::string& name);

    /// It takes one value at a time, however often it is given.
    CommandOption& oneAtATime();

    CommandOption& oneOf(const std::vector<std::string>& words);
    CommandOption& between(unsigned first, unsigned last);

    /// Not together with the other one.
    CommandOption& excludes(const std::string& other);

    /// Only together with the other one.
    CommandOption& needs(const std::string& other);

private:
    CLI::Option* m_option;
};

/// The options and arguments of one command. Names with a dash are options, others are arguments in their order. What
/// a target or function refers to must outlive the parsing. The parser stays behind this class: it is large, and
/// every source that saw it would take seconds more to compile.
class CommandOptions
{
public:
    explicit CommandOptions(CLI::App& app) : m_app(&app) {}

    CommandOption add(const std::string& name, std::string& target, const std::string& description);
    CommandOption add(const std::string& name, std::optional<std::string>& target, const std::string& description);
    CommandOption add(const std::string& name, std::optional<unsigned>& target, const std::string& description);

    /// As many values as are given.
    CommandOption add(const std::string& name, std::vector<std::string>& target, const std::string& description);

    /// The function takes the value, and throws UsageError when it is wrong.
    CommandOption add(const std::string& name, std::function<void(const std::string& value)> take,
                      const std::string& description);

    /// An option without a value.
    CommandOption addFlag(const std::string& name, bool& target, const std::string& description);
    CommandOption addFlag(const std::string& name, std::function<void()> note, const std::string& description);

    /// A command below this one, which has the options of both. One of those below must be given.
    CommandOptions addCommand(const std::string& name, const std::string& description);

    /// Called when all options were taken; throws UsageError when they make no sense together.
    void check(std::function<void()> call);

private:
    CLI::App* m_app;
};
