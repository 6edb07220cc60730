#include <algorithm>
#include <memory>

#include <logs/pieces.h>
#include <support/gzip_bytes.h>
#include <zelplatform/util/util.h>

#include "check/check.h"
#include "check/report.h"
#include "describe/conversion.h"
#include "describe/document.h"
#include "describe/json_renderer.h"
#include "describe/text_renderer.h"
#include "dump/dump.h"
#include "dump/renderer.h"
#include "edit/fields.h"
#include "edit/record.h"
#include "logs/gzip_source.h"
#include "logs/log_reader.h"
#include "reader.h"
#include "samples.h"

namespace readers
{
namespace
{

using zelmodel_test::Pieces;

std::string show(const std::string& text)
{
    const auto tree = describe::Document(text).describe();
    return describe::renderText(tree, {}) + describe::toJson(tree, {}).dump();
}

std::string convert(const std::string& text)
{
    const describe::Document document(text);
    const auto conversion = describe::convert(text, document.kind(), document.describe());
    return conversion.text;
}

std::string check(const std::string& text)
{
    return check::toText({"document.xml", check::checkText(text), {}});
}

std::string rewriteRecord(const std::string& text)
{
    return edit::writeRecord(edit::readRecord(describe::Document(text))).text;
}

// A line for each field: "path=value".
std::string setFields(const std::string& text)
{
    auto record = edit::newRecord(describe::EDocumentKind::AgentJobOptions);
    for (const auto& line : util::str_split(text, "\n"))
    {
        const auto end = std::min(line.find('='), line.size());
        edit::setField(record, {line.substr(0, end), line.substr(std::min(end + 1, line.size()))});
    }
    return edit::writeRecord(record).text;
}

std::string dumpBytes(const std::string& bytes)
{
    const auto told = dump::tell(bytes, nullptr, false);
    return dump::renderText(told, {}) + dump::toJson(told, {}).dump();
}

std::string readLog(const std::string& text)
{
    const auto half = text.size() / 2;
    Pieces pieces({text.substr(0, half), text.substr(half)});
    logs::LibraryNotes notes;
    logs::LogReader reader(pieces, notes);
    std::string told;
    while (reader.next() || reader.finish())
        told += reader.kind() == logs::ELine::Record ? reader.record().message : reader.reason();
    return told + util::toStr(reader.counts().lines);
}

std::string unzip(const std::string& bytes)
{
    logs::GzipSource source(std::make_unique<Pieces>(std::vector<std::string>{bytes}));
    std::size_t size = 0;
    for (auto piece = source.next(); !piece.empty(); piece = source.next())
        size += piece.size();
    return util::toStr(size);
}

Texts documents()
{
    Texts all;
    for (const auto* folder : {"JobOptions",
                               "JobOptionsRoot",
                               "ScheduleOptions",
                               "ScheduleWindow",
                               "GfsPolicy",
                               "OracleConfig",
                               "PostgresConfig",
                               "JobSettings",
                               "ImmutabilitySettings",
                               "DirectBackupImmutabilitySettings",
                               "AmazonS3SpecificParams",
                               "root",
                               "SqlVariant",
                               "Details",
                               "ProgressDetails",
                               "Record",
                               "MountSessionDetails",
                               "BackupJobState",
                               "DeletePointTransformSpec",
                               "FullTransformSpec",
                               "GfsFullTransformSpec"})
        all = all + goldenFolder(folder);
    return all;
}

Texts binaryForms()
{
    Texts all{exampleFile("binary/cloud-client.txt"), exampleBase64("key-bundle"), exampleBase64("managing-server")};
    for (const auto* name :
         {"key-bundle", "key-set", "password-derived-key", "managing-server", "schedule-options", "job-start", "guid"})
        all.push_back(exampleBytes(name));
    return all;
}

} // namespace

Readers toolReaders()
{
    const auto editable = goldenFolder("JobOptions") + goldenFolder("ScheduleOptions") +
                          goldenFolder("ScheduleWindow") + goldenFolder("GfsPolicy");
    // The library has no writer of these.
    auto convertible = documents();
    const auto isNotWritten = [](const std::string& text) {
        return text.find("<DirectBackupImmutabilitySettings") != std::string::npos ||
               text.find("ordinalId") != std::string::npos;
    };
    convertible.erase(std::remove_if(convertible.begin(), convertible.end(), isNotWritten), convertible.end());
    const std::string log = exampleFile("logs/nightly.log");
    return {
        {"tools.show", show, documents(), EWritten::Words},
        {"tools.convert", convert, convertible},
        {"tools.check", check, documents(), EWritten::Words},
        {"tools.edit", rewriteRecord, editable},
        {"tools.set",
         setFields,
         {"maxDays=14\nblockSize=KbBlockSize512", "schedule.jobStart.time=22:30"},
         EWritten::Words},
        {"tools.dump", dumpBytes, binaryForms(), EWritten::Words},
        {"tools.log", readLog, {log}, EWritten::Words},
        {"tools.gzip",
         unzip,
         {zelmodel_test::gzipBytes(log.substr(0, 400)), exampleFile("logs/nightly.log.2.gz")},
         EWritten::Words},
    };
}

} // namespace readers
