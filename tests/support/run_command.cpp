#include "run_command.h"

#include <array>
#include <cerrno>
#include <csignal>
#include <cstddef>
#include <cstdlib>
#include <stdexcept>
#include <utility>

#include <fcntl.h>
#include <poll.h>
#include <pty.h>
#include <sys/ioctl.h>
#include <sys/wait.h>
#include <unistd.h>

#include "answer_schemas.h"

namespace zelmodel_test
{
namespace
{

constexpr int NoProgram = 127;
constexpr int OnSignal = 128;

class Descriptor
{
public:
    explicit Descriptor(int number) : m_number(number) {}
    Descriptor(Descriptor&& other) noexcept : m_number(std::exchange(other.m_number, -1)) {}
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;
    Descriptor& operator=(Descriptor&&) = delete;
    ~Descriptor() { close(); }

    int number() const noexcept { return m_number; }
    void close()
    {
        if (m_number >= 0)
            ::close(std::exchange(m_number, -1));
    }

private:
    int m_number;
};

struct Pipe
{
    Descriptor reading;
    Descriptor writing;
};

[[noreturn]] void fail(const char* what)
{
    throw std::runtime_error(std::string(what) + " failed in the test's runner");
}

Pipe makePipe()
{
    std::array<int, 2> ends{};
    if (::pipe2(ends.data(), O_CLOEXEC) != 0)
        fail("pipe2");
    return {Descriptor(ends[0]), Descriptor(ends[1])};
}

constexpr const char* ZoneOfTests = "UTC";

[[noreturn]] void becomeCommand(std::vector<char*>& arguments, const std::string& zone,
                                const std::vector<std::string>& environment)
{
    ::setenv("TZ", zone.c_str(), 1);
    ::unsetenv("NO_COLOR");
    for (const auto& entry : environment)
        ::setenv(entry.c_str(), "1", 1);
    if (::chdir(ZELMODEL_EXAMPLES_DIR) == 0)
        ::execv(ZELMODEL_COMMAND, arguments.data());
    ::_exit(NoProgram);
}

std::vector<char*> pointersTo(std::vector<std::string>& arguments)
{
    arguments.insert(arguments.begin(), ZELMODEL_COMMAND);
    std::vector<char*> pointers;
    for (auto& argument : arguments)
        pointers.push_back(argument.data());
    pointers.push_back(nullptr);
    return pointers;
}

/// Appends what is there to read; false at the end.
bool readPiece(int descriptor, std::string& text)
{
    std::array<char, 65536> piece{};
    const auto count = ::read(descriptor, piece.data(), piece.size());
    if (count > 0)
        text.append(piece.data(), static_cast<std::size_t>(count));
    return count > 0 || (count < 0 && errno == EINTR);
}

/// Feeds the input and collects both outputs at once, so that no full pipe makes either side wait for ever.
void converse(Descriptor& toInput, const std::string& input, Descriptor& output, Descriptor& messages,
              CommandResult& result)
{
    std::size_t written = 0;
    while (output.number() >= 0 || messages.number() >= 0)
    {
        if (written == input.size())
            toInput.close();
        std::array<pollfd, 3> waits{
            {{toInput.number(), POLLOUT, 0}, {output.number(), POLLIN, 0}, {messages.number(), POLLIN, 0}}};
        if (::poll(waits.data(), waits.size(), -1) < 0 && errno != EINTR)
            fail("poll");
        if (waits[0].revents != 0)
        {
            const auto count = ::write(toInput.number(), input.data() + written, input.size() - written);
            written = count < 0 ? input.size() : written + static_cast<std::size_t>(count);
        }
        if (waits[1].revents != 0 && !readPiece(output.number(), result.output))
            output.close();
        if (waits[2].revents != 0 && !readPiece(messages.number(), result.messages))
            messages.close();
    }
}

int waitForEnd(pid_t child)
{
    int status = 0;
    while (::waitpid(child, &status, 0) < 0)
    {
        if (errno != EINTR)
            fail("waitpid");
    }
    return WIFEXITED(status) ? WEXITSTATUS(status) : OnSignal + WTERMSIG(status);
}

CommandResult runWithPipes(const std::vector<std::string>& arguments, const std::string& input,
                           const std::string& outputFile, const std::string& zone = ZoneOfTests)
{
    auto given = arguments;
    auto pointers = pointersTo(given);
    std::signal(SIGPIPE, SIG_IGN);
    auto in = makePipe();
    auto out = makePipe();
    auto err = makePipe();
    const Descriptor file(outputFile.empty() ? -1 : ::open(outputFile.c_str(), O_WRONLY | O_CLOEXEC));
    const pid_t child = ::fork();
    if (child < 0)
        fail("fork");
    if (child == 0)
    {
        std::signal(SIGPIPE, SIG_DFL);
        ::dup2(in.reading.number(), STDIN_FILENO);
        ::dup2(outputFile.empty() ? out.writing.number() : file.number(), STDOUT_FILENO);
        ::dup2(err.writing.number(), STDERR_FILENO);
        becomeCommand(pointers, zone, {});
    }
    in.reading.close();
    out.writing.close();
    err.writing.close();
    ::fcntl(in.writing.number(), F_SETFL, O_NONBLOCK);
    CommandResult result;
    converse(in.writing, input, out.reading, err.reading, result);
    in.writing.close();
    result.exitCode = waitForEnd(child);
    if (outputFile.empty())
        expectAnswersOfSchema(arguments, result.output);
    return result;
}

} // namespace

CommandResult runCommand(const std::vector<std::string>& arguments, const std::string& input)
{
    return runWithPipes(arguments, input, {});
}

CommandResult runCommandInZone(const std::string& zone, const std::vector<std::string>& arguments)
{
    return runWithPipes(arguments, {}, {}, zone);
}

CommandResult runCommandInto(const std::string& outputFile, const std::vector<std::string>& arguments)
{
    return runWithPipes(arguments, {}, outputFile);
}

CommandResult runCommandOnTerminal(const std::vector<std::string>& arguments, unsigned short width,
                                   const std::vector<std::string>& environment)
{
    auto given = arguments;
    auto pointers = pointersTo(given);
    winsize size = {};
    size.ws_row = 24;
    size.ws_col = width;
    int terminal = -1;
    const pid_t child = ::forkpty(&terminal, nullptr, nullptr, &size);
    if (child < 0)
        fail("forkpty");
    if (child == 0)
        becomeCommand(pointers, ZoneOfTests, environment);
    const Descriptor reading(terminal);
    CommandResult result;
    while (readPiece(reading.number(), result.output))
        continue;
    result.exitCode = waitForEnd(child);
    expectAnswersOfSchema(arguments, result.output);
    return result;
}

} // namespace zelmodel_test
