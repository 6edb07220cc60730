#include <string>
#include <utility>

#include <nlohmann/json.hpp>

#include "describe/json_renderer.h"
#include "describe/terminal_text.h"
#include "input.h"
#include "log_printer.h"
#include "logs/summary.h"

namespace
{

using nlohmann::ordered_json;
using zelplatform::model::ISessionLogWriter;

constexpr std::size_t MostListed = 1000;

ordered_json jsonOf(const LogFailure& failure)
{
    ordered_json json{{"file", shownName(failure.file)}};
    if (failure.refused.empty())
        json["failed"] = failure.failed;
    else
        json["refused"] = failure.refused;
    return json;
}

ordered_json jsonOf(const LogReport& report)
{
    const auto& counts = report.counts;
    return {{"file", shownName(report.file)}, {"lines", counts.lines},
            {"records", counts.records},      {"told", report.told},
            {"empty", counts.empty},          {"skipped", counts.skipped}};
}

ordered_json jsonOfSkipped(const std::string& file, const logs::LogReader& reader)
{
    return {{"file", shownName(file)},
            {"line", reader.number()},
            {"reason", describe::shortened(reader.reason(), LongestReason)}};
}

/// One object a line: records, the skipped lines when they are listed, and failures.
class JsonLinePrinter : public LogPrinter
{
public:
    JsonLinePrinter(const Output& output, bool listsSkipped) : LogPrinter(output), m_listsSkipped(listsSkipped) {}

    void record(const std::string& file, const logs::LogReader& reader) override
    {
        const auto& record = reader.record();
        add("record", {{"file", shownName(file)},
                       {"line", reader.number()},
                       {"time", logs::tellTime(record.time)},
                       {"session", record.session.ToAStr()},
                       {"severity", ISessionLogWriter::SeverityToString(record.severity)},
                       {"message", record.message}});
    }

    void skipped(const std::string& file, const logs::LogReader& reader) override
    {
        if (m_listsSkipped)
            add("skipped", jsonOfSkipped(file, reader));
    }

    void done(const LogReport& report) override { add("end", jsonOf(report)); }

    void changed(const std::string& file, logs::EChange change) override
    {
        add(change == logs::EChange::Replaced ? "replaced" : "truncated", {{"file", shownName(file)}});
    }

    void failed(const LogFailure& failure) override { add("error", jsonOf(failure)); }

    void end() override { flush(); }

private:
    void add(const char* kind, const ordered_json& members)
    {
        ordered_json object{{"kind", kind}, {"schema", JsonSchema}};
        object.update(members);
        collection() += object.dump(-1, ' ', false, ordered_json::error_handler_t::replace);
        collection() += '\n';
        collected();
    }

    bool m_listsSkipped;
};

/// One document about all files.
class JsonSummaryPrinter : public LogPrinter
{
public:
    JsonSummaryPrinter(const Output& output, bool listsSkipped, std::string name)
        : LogPrinter(output), m_listsSkipped(listsSkipped), m_name(std::move(name))
    {
    }

    void record(const std::string&, const logs::LogReader& reader) override { m_summary.add(reader.record()); }

    void skipped(const std::string& file, const logs::LogReader& reader) override
    {
        if (m_listsSkipped && m_skipped.size() < MostListed)
            m_skipped.push_back(jsonOfSkipped(file, reader));
    }

    void done(const LogReport& report) override { m_files.push_back(jsonOf(report)); }

    void changed(const std::string&, logs::EChange) override {}

    void failed(const LogFailure& failure) override { m_errors.push_back(jsonOf(failure)); }

    void end() override
    {
        if (m_files.empty() && m_errors.size() == 1)
        {
            output().printJson("error", m_name, m_errors.front());
            return;
        }
        const auto tree = logs::describeSummary(m_summary);
        ordered_json body{{tree.name, describe::toJson(tree, output().style())}, {"files", m_files}};
        if (m_listsSkipped)
            body["skipped"] = m_skipped;
        if (!m_errors.empty())
            body["errors"] = m_errors;
        output().printJson("log", m_name, body);
    }

private:
    bool m_listsSkipped;
    std::string m_name;
    logs::Summary m_summary;
    ordered_json m_files = ordered_json::array();
    ordered_json m_skipped = ordered_json::array();
    ordered_json m_errors = ordered_json::array();
};

} // namespace

std::unique_ptr<LogPrinter> makeJsonLinePrinter(const Output& output, const LogForm& form)
{
    return std::make_unique<JsonLinePrinter>(output, form.listsSkipped);
}

std::unique_ptr<LogPrinter> makeJsonSummaryPrinter(const Output& output, const LogForm& form, const std::string& name)
{
    return std::make_unique<JsonSummaryPrinter>(output, form.listsSkipped, name);
}
