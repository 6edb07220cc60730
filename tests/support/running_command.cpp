#include "running_command.h"

#include <chrono>
#include <csignal>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <thread>

#include <fcntl.h>
#include <spawn.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include "answer_schemas.h"
#include "slowness.h"

namespace zelmodel_test
{
namespace
{

constexpr auto Pause = std::chrono::milliseconds(2);
constexpr int OnSignal = 128;

std::chrono::steady_clock::time_point deadlineFromNow()
{
    const std::chrono::duration<double> patience(30 * slowness());
    return std::chrono::steady_clock::now() + std::chrono::duration_cast<std::chrono::steady_clock::duration>(patience);
}

std::string contentOf(const std::string& path)
{
    std::ifstream file(path, std::ios::binary);
    return std::string(std::istreambuf_iterator<char>(file), {});
}

std::string contentWith(const std::string& path, const std::string& text)
{
    const auto deadline = deadlineFromNow();
    for (;;)
    {
        auto content = contentOf(path);
        if (content.find(text) != std::string::npos)
            return content;
        if (std::chrono::steady_clock::now() > deadline)
            throw std::runtime_error("[" + text + "] did not come, but [" + content + "].");
        std::this_thread::sleep_for(Pause);
    }
}

} // namespace

RunningCommand::RunningCommand(const std::vector<std::string>& arguments) : m_arguments(arguments)
{
    auto given = arguments;
    given.insert(given.begin(), ZELMODEL_COMMAND);
    std::vector<char*> pointers;
    for (auto& argument : given)
        pointers.push_back(argument.data());
    pointers.push_back(nullptr);

    posix_spawn_file_actions_t actions;
    ::posix_spawn_file_actions_init(&actions);
    const int modes = O_WRONLY | O_CREAT | O_TRUNC;
    ::posix_spawn_file_actions_addopen(&actions, STDIN_FILENO, "/dev/null", O_RDONLY, 0);
    ::posix_spawn_file_actions_addopen(&actions, STDOUT_FILENO, (m_folder / "output").c_str(), modes, 0600);
    ::posix_spawn_file_actions_addopen(&actions, STDERR_FILENO, (m_folder / "messages").c_str(), modes, 0600);
    const int result = ::posix_spawn(&m_child, ZELMODEL_COMMAND, &actions, nullptr, pointers.data(), environ);
    ::posix_spawn_file_actions_destroy(&actions);
    if (result != 0)
        throw std::runtime_error("The command cannot be started.");
}

RunningCommand::~RunningCommand()
{
    if (m_child < 0)
        return;
    signal(SIGKILL);
    waitForEnd();
}

std::string RunningCommand::outputWith(const std::string& text) const
{
    return contentWith(m_folder / "output", text);
}

std::string RunningCommand::messagesWith(const std::string& text) const
{
    return contentWith(m_folder / "messages", text);
}

void RunningCommand::signal(int number) const
{
    ::kill(m_child, number);
}

CommandResult RunningCommand::end()
{
    const auto status = waitForEnd();
    const CommandResult result{WIFEXITED(status) ? WEXITSTATUS(status) : OnSignal + WTERMSIG(status),
                               contentOf(m_folder / "output"), contentOf(m_folder / "messages")};
    expectAnswersOfSchema(m_arguments, result.output);
    return result;
}

int RunningCommand::waitForEnd()
{
    const auto deadline = deadlineFromNow();
    int status = 0;
    struct rusage usage = {};
    while (::wait4(m_child, &status, WNOHANG, &usage) == 0)
    {
        if (std::chrono::steady_clock::now() > deadline)
            throw std::runtime_error("The command does not end.");
        std::this_thread::sleep_for(Pause);
    }
    m_child = -1;
    m_peakMemory = usage.ru_maxrss;
    return status;
}

} // namespace zelmodel_test
