#include <iostream>

#include <zelmodel/log.h>
#include <zelmodel/sessions.h>

namespace
{

/// Where entries go: here to the standard output, elsewhere to a file or a service of the system. Threads may write at
/// once; std::cout takes that.
class ConsoleSink : public logging::ILogSink
{
public:
    void write(const logging::Entry& entry) override
    {
        static constexpr const char* levels[] = {"info", "warning", "error"};
        std::cout << entry.section << ' ' << levels[static_cast<int>(entry.level)] << ": " << entry.text << '\n';
    }
};

} // namespace

int main()
{
    logging::set_sink(std::make_shared<ConsoleSink>());

    // A program may write to the library's section, too, or to one of its own.
    logging::log_section_t("agent").info("The agent starts.");

    // A line that is no record is skipped; the library notes it.
    zelplatform::model::CDateTimeEx time;
    guid::guid_t session;
    auto severity = zelplatform::model::ISessionLogWriter::Info;
    std::string message;
    const bool isRecord =
        zelplatform::model::CSessionLogLineParser::Parse("no record at all", time, session, severity, message);
    std::cout << (isRecord ? "a record\n" : "skipped\n");

    // Without a sink nothing is kept.
    logging::set_sink(nullptr);
    zelmodel_log.err("Nobody reads this.");
}
