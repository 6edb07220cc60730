#include <memory>
#include <string>

#include <benchmark/benchmark.h>
#include <tinyxml2.h>

#include <zelmodel/transforms.h>

#include "ratio_table.h"

namespace
{

using namespace zelplatform::model::transform;

CTransformSpec specWith(long points)
{
    CTransformSpec spec;
    spec.SetSessionId(guid::guid_t::CreateNew());
    spec.SetBackupId(guid::guid_t::CreateNew());
    for (long i = 0; i < points; ++i)
        spec.AddPointId(guid::guid_t::CreateNew());
    return spec;
}

void readTransform(benchmark::State& state)
{
    const auto text = specWith(state.range(0)).ToString();
    for (auto _ : state)
        benchmark::DoNotOptimize(CTransformSpec::FromString(text));
}

void parseTransformWithTinyxml2(benchmark::State& state)
{
    const auto text = specWith(state.range(0)).ToString();
    for (auto _ : state)
    {
        tinyxml2::XMLDocument document;
        benchmark::DoNotOptimize(document.Parse(text.data(), text.size()));
    }
}

void writeTransform(benchmark::State& state)
{
    const auto spec = specWith(state.range(0));
    for (auto _ : state)
        benchmark::DoNotOptimize(spec.ToString());
}

void buildTransformWithTinyxml2(benchmark::State& state)
{
    const auto spec = specWith(state.range(0));
    for (auto _ : state)
    {
        tinyxml2::XMLDocument document;
        auto* root = document.NewElement("DeletePointTransformSpec");
        document.InsertEndChild(root);
        root->SetAttribute("Id", spec.GetSessionId().ToAStr().c_str());
        root->SetAttribute("BackupId", spec.GetBackupId().ToAStr().c_str());
        root->SetAttribute("OperationType", 0);
        root->SetAttribute("TransformType", 0);
        root->SetAttribute("EnableIntegrityChecks", false);
        auto* list = document.NewElement("IncrementPointIds");
        root->InsertEndChild(list);
        for (const auto& point : spec.GetPointIds())
        {
            auto* element = document.NewElement("Guid");
            element->SetAttribute("value", point.ToAStr().c_str());
            list->InsertEndChild(element);
        }
        tinyxml2::XMLPrinter printer(nullptr, true);
        document.Print(&printer);
        benchmark::DoNotOptimize(std::string(printer.CStr(), static_cast<std::size_t>(printer.CStrSize() - 1)));
    }
}

BENCHMARK(readTransform)->Arg(1000)->Arg(10000)->Arg(100000);
BENCHMARK(parseTransformWithTinyxml2)->Arg(1000)->Arg(10000)->Arg(100000);
BENCHMARK(writeTransform)->Arg(1000)->Arg(10000)->Arg(100000);
BENCHMARK(buildTransformWithTinyxml2)->Arg(1000)->Arg(10000)->Arg(100000);

bool addFigures()
{
    for (const char* points : {"/1000", "/10000", "/100000"})
    {
        const std::string suffix = points;
        zelmodel_bench::addFigure({"reading a transform, points" + suffix, "readTransform" + suffix,
                                   "parseTransformWithTinyxml2" + suffix, 1.50});
        zelmodel_bench::addFigure({"writing a transform, points" + suffix, "writeTransform" + suffix,
                                   "buildTransformWithTinyxml2" + suffix, 0.90});
    }
    // A hundred times the points; the bound is 1.7 times the time per point.
    zelmodel_bench::addFigure(
        {"reading, 100000 points against 1000", "readTransform/100000", "readTransform/1000", 170});
    return zelmodel_bench::addFigure(
        {"writing, 100000 points against 1000", "writeTransform/100000", "writeTransform/1000", 170});
}

const bool added = addFigures();

} // namespace
