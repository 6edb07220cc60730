#include "openssl_command.h"

#include <algorithm>
#include <cstdio>
#include <memory>
#include <stdexcept>

#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>

namespace zelmodel_test
{
namespace
{

using File = std::unique_ptr<std::FILE, int (*)(std::FILE*)>;

File temporaryFile()
{
    File file(std::tmpfile(), std::fclose);
    if (!file)
        throw std::runtime_error("no temporary file for openssl");
    return file;
}

std::string contentOf(std::FILE* file)
{
    std::rewind(file);
    std::string text;
    for (int c = std::fgetc(file); c != EOF; c = std::fgetc(file))
        text += static_cast<char>(c);
    return text;
}

[[noreturn]] void becomeOpenssl(std::vector<char*>& arguments, std::FILE* in, std::FILE* out)
{
    ::dup2(::fileno(in), STDIN_FILENO);
    ::dup2(::fileno(out), STDOUT_FILENO);
    ::dup2(::open("/dev/null", O_WRONLY), STDERR_FILENO);
    ::execvp("openssl", arguments.data());
    ::_exit(127);
}

} // namespace

std::string openssl(std::vector<std::string> arguments, const std::string& input)
{
    arguments.insert(arguments.begin(), "openssl");
    std::vector<char*> pointers;
    for (auto& argument : arguments)
        pointers.push_back(argument.data());
    pointers.push_back(nullptr);

    const File in = temporaryFile();
    std::fwrite(input.data(), 1, input.size(), in.get());
    std::rewind(in.get());
    const File out = temporaryFile();

    const pid_t child = ::fork();
    if (child < 0)
        throw std::runtime_error("no process for openssl");
    if (child == 0)
        becomeOpenssl(pointers, in.get(), out.get());
    int status = 0;
    ::waitpid(child, &status, 0);
    if (!WIFEXITED(status) || WEXITSTATUS(status) != 0)
        throw std::runtime_error("the command openssl " + arguments.at(1) + " failed; is the package openssl there?");
    return contentOf(out.get());
}

std::string freshCertificate(const std::string& name, const std::vector<std::string>& key)
{
    std::vector<std::string> arguments = {"req",   "-x509",       "-nodes",  "-days",     "30",
                                          "-subj", "/CN=" + name, "-keyout", "/dev/null", "-newkey"};
    arguments.insert(arguments.end(), key.begin(), key.end());
    return openssl(arguments);
}

std::string fingerprintByCommand(const std::string& pem)
{
    std::string text = openssl({"x509", "-noout", "-fingerprint", "-sha256"}, pem);
    text.erase(0, text.find('=') + 1);
    text.erase(std::remove_if(text.begin(), text.end(), [](char c) { return c == ':' || c == '\n'; }), text.end());
    return text;
}

} // namespace zelmodel_test
