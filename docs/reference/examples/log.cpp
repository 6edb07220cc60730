#include <iostream>
#include <mutex>

#include <zelmodel/log.h>
#include <zelmodel/sessions.h>

using namespace zelplatform::model;

namespace
{

/// Where entries go: here to the standard output, elsewhere to a file or a service of the system. Threads may write at
/// once, so it guards itself.
class ConsoleSink : public logging::ILogSink
{
public:
    void write(const logging::Entry& entry) override
    {
        static constexpr const char* levels[] = {"info", "warning", "error"};
        const std::lock_guard<std::mutex> lock(m_guard);
        std::cout << entry.section << ' ' << levels[static_cast<int>(entry.level)] << ": " << entry.text << '\n';
    }

private:
    std::mutex m_guard;
};

} // namespace

int main()
{
    logging::set_sink(std::make_shared<ConsoleSink>());

    // A program has sections of its own.
    logging::log_section_t("agent").info("The agent starts.");

    // A line that is no record is skipped; the library notes it.
    CDateTimeEx time;
    guid::guid_t session;
    auto severity = ISessionLogWriter::Info;
    std::string message;
    const bool isRecord = CSessionLogLineParser::Parse("no record at all", time, session, severity, message);
    std::cout << (isRecord ? "a record\n" : "skipped\n");
}
