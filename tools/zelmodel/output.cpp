#include "output.h"

#include <cstdlib>
#include <iostream>

#include <sys/ioctl.h>
#include <sys/stat.h>
#include <unistd.h>

#include "describe/terminal_text.h"
#include "input.h"

namespace
{

using describe::printable;
using describe::shortened;
using nlohmann::ordered_json;

constexpr std::size_t LongestSentence = 400;

bool isPlainWanted(const OutputOptions& options)
{
    const char* noColor = std::getenv("NO_COLOR");
    return options.isPlain || (noColor != nullptr && *noColor != '\0');
}

describe::TextStyle styleOf(const OutputOptions& options)
{
    describe::TextStyle style;
    style.showsSecrets = options.showsSecrets;
    if (::isatty(STDOUT_FILENO) == 0)
        return style;
    struct winsize size = {};
    if (::ioctl(STDOUT_FILENO, TIOCGWINSZ, &size) == 0)
        style.width = size.ws_col;
    style.isBold = !isPlainWanted(options);
    return style;
}

} // namespace

Output::Output(const OutputOptions& options)
    : m_isJson(options.isJson), m_isPlain(isPlainWanted(options)), m_style(styleOf(options))
{
}

bool Output::isFile() const
{
    struct stat status = {};
    return ::fstat(STDOUT_FILENO, &status) == 0 && S_ISREG(status.st_mode);
}

void Output::flush() const
{
    std::cout.flush();
}

bool Output::isGood() const
{
    return std::cout.good();
}

void Output::print(const std::string& text) const
{
    std::cout << text;
}

void Output::printJson(const std::string& kind, const std::string& file, const ordered_json& body) const
{
    ordered_json document{{"kind", kind}, {"schema", JsonSchema}, {"file", shownName(file)}};
    document.update(body);
    printForeignJson(document);
}

void Output::printForeignJson(const ordered_json& document) const
{
    std::cout << document.dump(2, ' ', false, ordered_json::error_handler_t::replace) << '\n';
}

void Output::printRefusal(const std::string& file, int line, const std::vector<std::string>& sentences) const
{
    if (m_isJson)
    {
        ordered_json body;
        if (line > 0)
            body["line"] = line;
        body["refused"] = sentences;
        printJson("error", file, body);
        return;
    }
    std::cerr << printable(shownName(file));
    if (line > 0)
        std::cerr << ':' << line;
    std::cerr << ": refused\n";
    for (const auto& sentence : sentences)
        std::cerr << "  " << printable(shortened(sentence, LongestSentence)) << '\n';
}

void Output::printFailure(const std::string& file, const std::string& reason) const
{
    if (m_isJson)
        printJson("error", file, {{"failed", reason}});
    else
        std::cerr << printable(shownName(file)) << ": " << printable(reason) << '\n';
}

void Output::printUsageError(const std::string& reason) const
{
    if (m_isJson)
        printJson("error", "", {{"usage", reason}});
    else
        std::cerr << "zelmodel: " << printable(reason) << "\nRun with --help for more information.\n";
}
