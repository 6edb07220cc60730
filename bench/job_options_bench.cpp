#include <string>

#include <benchmark/benchmark.h>
#include <tinyxml2.h>

#include <zelmodel/job_options.h>

#include "ratio_table.h"

namespace
{

using namespace zelplatform::model;
using namespace zelplatform::model::structs;

/// A job with every setting engaged; about 2 KB as text.
SBackupJobOptions fullJob()
{
    SBackupJobOptions options(KbBlockSize::KbBlockSize512);
    options.compression = BackupJobCompression::Zstd3;
    options.retentionType = ERetentionType::Days;
    options.maxDays = 30;
    options.deletedVmDataRetentionDays = 60;
    options.snapshotMode = ESnapshotMode::Hybrid;
    options.preFreezeCommand = "/opt/agent/scripts/stop-writers.sh --wait 30";
    options.postThawCommand = "/opt/agent/scripts/start-writers.sh";
    options.preJobCommand = "/opt/agent/scripts/before.sh";
    options.postJobCommand = "/opt/agent/scripts/after.sh";
    options.ignoreFreezeThawFailures = true;
    options.freezeThawScriptsTimeout = 600;
    options.retryCount = 3;
    options.indexing = {EIndexingType::IndexOnly, "/export/home;/etc"};
    options.productSpecific = "unit=7;owner=storage";
    auto& start = options.schedule.GetJobStartOptions();
    start.SetMonthly(22, 30, EWeekDayNumber::First, datetime::EDayOfWeek::Friday, CMonthMask(true));
    options.schedule.GetActiveFullOptions().SetDefaultWeekly();
    options.schedule.GetSyntheticFullOptions().SetMonthlyOnDay(CDayOfMonth(15), CMonthMask(true));
    options.gfsPolicy.isEnabled = true;
    options.gfsPolicy.weekly.emplace();
    options.gfsPolicy.monthly.emplace();
    options.gfsPolicy.yearly.emplace();
    return options;
}

const SBackupJobOptions& job()
{
    static const SBackupJobOptions options = fullJob();
    return options;
}

const std::string& jobText()
{
    static const std::string text = job().toString();
    return text;
}

void readJob(benchmark::State& state)
{
    for (auto _ : state)
        benchmark::DoNotOptimize(SBackupJobOptions::fromStr(jobText()));
}
BENCHMARK(readJob);

void parseJobWithTinyxml2(benchmark::State& state)
{
    for (auto _ : state)
    {
        tinyxml2::XMLDocument document;
        benchmark::DoNotOptimize(document.Parse(jobText().data(), jobText().size()));
    }
}
BENCHMARK(parseJobWithTinyxml2);

void writeJob(benchmark::State& state)
{
    for (auto _ : state)
        benchmark::DoNotOptimize(job().toString());
}
BENCHMARK(writeJob);

// Builds the same document from the texts of a parsed one, as a program without us would with its own values.
void copyElement(const tinyxml2::XMLElement& from, tinyxml2::XMLNode& parent, tinyxml2::XMLDocument& document)
{
    auto* element = document.NewElement(from.Name());
    parent.InsertEndChild(element);
    for (const auto* attribute = from.FirstAttribute(); attribute != nullptr; attribute = attribute->Next())
        element->SetAttribute(attribute->Name(), attribute->Value());
    if (from.GetText() != nullptr)
        element->SetText(from.GetText());
    for (const auto* child = from.FirstChildElement(); child != nullptr; child = child->NextSiblingElement())
        copyElement(*child, *element, document);
}

void buildJobWithTinyxml2(benchmark::State& state)
{
    tinyxml2::XMLDocument source;
    source.Parse(jobText().data(), jobText().size());
    for (auto _ : state)
    {
        tinyxml2::XMLDocument document;
        copyElement(*source.RootElement(), document, document);
        tinyxml2::XMLPrinter printer(nullptr, true);
        document.Print(&printer);
        benchmark::DoNotOptimize(std::string(printer.CStr(), static_cast<std::size_t>(printer.CStrSize() - 1)));
    }
}
BENCHMARK(buildJobWithTinyxml2);

const bool added = zelmodel_bench::addFigure({"reading a job document", "readJob", "parseJobWithTinyxml2", 1.30}) &&
                   zelmodel_bench::addFigure({"writing a job document", "writeJob", "buildJobWithTinyxml2", 0.90});

} // namespace
