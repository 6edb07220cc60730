#include "hostile_input.h"

#include <sstream>

#include <zelmodel/log.h>
#include <zelmodel/sessions.h>

namespace zelmodel_test
{
namespace
{

using namespace zelplatform::model;

const std::string recordStart = "2024-03-07 13:05:09 UTC 0f8fad5b-d9cb-469f-a165-70867728950e info ";

void parse(const std::string& line)
{
    CDateTimeEx time;
    guid::guid_t id;
    auto severity = ISessionLogWriter::ESeverity::Info;
    std::string message;
    CSessionLogLineParser::Parse(line, time, id, severity, message);
}

void parseLines(const std::string& text)
{
    std::istringstream lines(text);
    for (std::string line; std::getline(lines, line);)
        parse(line);
}

HostileInput made(const std::string& name, const std::string& start, const std::string& piece)
{
    return {name, [=](std::size_t size) { return start + repeated(piece, size); }, parseLines};
}

} // namespace

std::vector<HostileInput> hostileLogs()
{
    return {
        made("one message", recordStart, "x"),
        made("one message of blanks", recordStart, " "),
        made("one line of letters", "", "x"),
        made("one line of blanks", "", " "),
        made("one line of dashes", "", "-"),
        made("one severity", recordStart.substr(0, recordStart.size() - 5), "x"),
        made("one time", "2024-03-07 13:05:", "9"),
        made("lines of one letter", "", "x\n"),
        made("empty lines", "", "\n"),
        made("lines without a message", "", recordStart + "\n"),
        made("lines with a wrong severity", "", recordStart.substr(0, recordStart.size() - 5) + "x x\n"),
        made("lines with a wrong time", "", "2024-13-07 13:05:09 UTC x info x\n"),
    };
}

} // namespace zelmodel_test
