#include "xmllint.h"

#include <array>
#include <cstdio>
#include <filesystem>
#include <memory>
#include <sstream>
#include <stdexcept>

#include <unistd.h>

#include <support/temporary_folder.h>

namespace zelmodel_test
{
namespace
{

// Long enough for a hundred thousand names in the order of their numbers.
std::string nameOf(std::size_t number)
{
    const auto digits = std::to_string(100000 + number);
    return digits.substr(1) + ".xml";
}

std::string outputOf(const std::string& command)
{
    const std::unique_ptr<FILE, int (*)(FILE*)> pipe(::popen(command.c_str(), "r"), &::pclose);
    if (pipe == nullptr)
        throw std::runtime_error("No process can be started.");
    std::string output;
    std::array<char, 65536> piece{};
    for (auto count = std::size_t{1}; count > 0;)
    {
        count = std::fread(piece.data(), 1, piece.size(), pipe.get());
        output.append(piece.data(), count);
    }
    return output;
}

// In memory where there is such a folder: other file systems are slow where thousands of files come and go.
std::filesystem::path folderOfFiles()
{
    const std::filesystem::path memory("/dev/shm");
    return ::access(memory.c_str(), W_OK) == 0 ? memory : std::filesystem::temp_directory_path();
}

bool endsWith(const std::string& text, const std::string& ending)
{
    return text.size() > ending.size() && text.compare(text.size() - ending.size(), ending.size(), ending) == 0;
}

// A line for each document, "00007.xml validates" or "00007.xml fails to validate", and before it what is wrong.
std::vector<Verdict> verdictsOf(const std::string& output, std::size_t count)
{
    std::vector<Verdict> verdicts;
    std::istringstream lines(output);
    std::string messages;
    for (std::string line; std::getline(lines, line);)
    {
        const auto name = nameOf(verdicts.size());
        const bool isValid = line == name + " validates";
        if (!isValid && line != name + " fails to validate")
        {
            messages += line + '\n';
            continue;
        }
        verdicts.push_back({isValid, messages});
        messages.clear();
    }
    if (verdicts.size() != count)
        throw std::runtime_error("xmllint of the package libxml2-utils judges " + std::to_string(verdicts.size()) +
                                 " of " + std::to_string(count) + " documents.\n" + messages);
    return verdicts;
}

} // namespace

std::vector<Verdict> judge(const std::string& schema, const std::vector<std::string>& texts)
{
    const TemporaryFolder folder(folderOfFiles());
    for (std::size_t i = 0; i < texts.size(); ++i)
        folder.write(nameOf(i), texts[i]);
    const std::string option = endsWith(schema, ".xsd") ? "--schema" : "--relaxng";
    return verdictsOf(
        outputOf("cd '" + folder / "." + "' && xmllint --noout --nonet " + option + " '" + schema + "' *.xml 2>&1"),
        texts.size());
}

} // namespace zelmodel_test
