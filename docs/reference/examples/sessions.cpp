#include <iostream>
#include <sstream>

#include <zelmodel/sessions.h>

using namespace zelplatform::model;

namespace
{

constexpr const char* Log = "2024-03-07 21:00:01 UTC 6f9619ff-8b86-d011-b42d-00c04fc964ff info Job started\n"
                            "2024-03-07 21:03:40 UTC 6f9619ff-8b86-d011-b42d-00c04fc964ff warn Volume is nearly full\n"
                            "\n"
                            "2024-03-07 21:09:12 UTC 6f9619ff-8b86-d011-b42d-00c04fc964ff info Job finished\n";

} // namespace

int main()
{
    std::istringstream lines(Log);
    std::map<ISessionLogWriter::ESeverity, int> counts;
    CDateTimeEx first;
    CDateTimeEx last;
    for (std::string line; std::getline(lines, line);)
    {
        CDateTimeEx time;
        guid::guid_t session;
        auto severity = ISessionLogWriter::Info;
        std::string message;
        // What is no record is skipped, never thrown.
        if (!CSessionLogLineParser::Parse(line, time, session, severity, message))
            continue;
        ++counts[severity];
        first = first.isSet() ? first : time;
        last = time;
        if (severity != ISessionLogWriter::Info)
            std::cout << ISessionLogWriter::SeverityToString(severity) << ": " << message << '\n';
    }
    for (const auto& [severity, count] : counts)
        std::cout << count << ' ' << ISessionLogWriter::SeverityToString(severity) << '\n';
    std::cout << "took " << (last - first).toStdString("%H:%M:%S") << '\n';
}
