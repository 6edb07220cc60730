#pragma once

#include <functional>
#include <map>
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

/// The words that an option takes, as far as they are known. They are asked for only when somebody wants them.
using WordsOfOptions = std::map<const CLI::Option*, std::function<std::vector<std::string>()>>;

/// What more is to be said of an option or argument. Others are named as they were added, and were added before.
class CommandOption
{
public:
    CommandOption(CLI::Option& option, WordsOfOptions& words) : m_option(&option), m_words(&words) {}

    CommandOption& required();

    /// How its value is called, or what it looks like, in the help. FILE stands for the name of a file.
    CommandOption& typeName(const std::string& name);

    /// It takes one value at a time, however often it is given.
    CommandOption& oneAtATime();

    /// No other words, and no number out of the range. The help tells them behind the description.
    CommandOption& oneOf(const std::vector<std::string>& words);
    CommandOption& between(unsigned first, unsigned last);

    /// Words that a shell may offer, among others. More is typed behind one that ends in "=".
    CommandOption& suggest(std::function<std::vector<std::string>()> words);

    /// Not together with the other one.
    CommandOption& excludes(const std::string& other);

    /// Only together with the other one.
    CommandOption& needs(const std::string& other);

private:
    CLI::Option* m_option;
    WordsOfOptions* m_words;
};

/// The options and arguments of one command. Names with a dash are options, others are arguments in their order. What
/// a target or function refers to must outlive the parsing. The parser stays behind this class: it is large, and
/// every source that saw it would take seconds more to compile.
class CommandOptions
{
public:
    CommandOptions(CLI::App& app, WordsOfOptions& words) : m_app(&app), m_words(&words) {}

    CommandOption add(const std::string& name, std::string& target, const std::string& description);
    CommandOption add(const std::string& name, std::optional<std::string>& target, const std::string& description);
    CommandOption add(const std::string& name, std::optional<unsigned>& target, const std::string& description);

    /// As many values as are given.
    CommandOption add(const std::string& name, std::vector<std::string>& target, const std::string& description);

    /// The function takes the value, and throws UsageError when it is wrong.
    CommandOption add(const std::string& name, const std::function<void(const std::string& value)>& take,
                      const std::string& description);

    /// An option without a value.
    CommandOption addFlag(const std::string& name, bool& target, const std::string& description);
    CommandOption addFlag(const std::string& name, std::function<void()> note, const std::string& description);

    /// A command below this one, which has the options of both. One of those below must be given.
    CommandOptions addCommand(const std::string& name, const std::string& description);

    /// Called when all options were taken; throws UsageError when they make no sense together.
    void check(std::function<void()> call);

private:
    CommandOption optionOf(CLI::Option* option);

    CLI::App* m_app;
    WordsOfOptions* m_words;
};
