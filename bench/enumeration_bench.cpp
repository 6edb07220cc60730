#include <string>

#include <benchmark/benchmark.h>

#include <zelmodel/enumerations.h>

#include "ratio_table.h"
#include "reflected_conversions.h"

namespace
{

using zelplatform::model::BackupRepositoryType;
using zelplatform::model::KbBlockSize;

constexpr KbBlockSize::type Sizes[] = {KbBlockSize::KbBlockSize256,  KbBlockSize::KbBlockSize512,
                                       KbBlockSize::KbBlockSize1024, KbBlockSize::KbBlockSize2048,
                                       KbBlockSize::KbBlockSize4096, KbBlockSize::KbBlockSize8192};
constexpr std::size_t Count = sizeof Sizes / sizeof Sizes[0];

void blockSizeToText(benchmark::State& state)
{
    std::size_t i = 0;
    for (auto _ : state)
        benchmark::DoNotOptimize(KbBlockSize::toStr(Sizes[i++ % Count]));
}
BENCHMARK(blockSizeToText);

void blockSizeToTextByReflection(benchmark::State& state)
{
    std::size_t i = 0;
    for (auto _ : state)
        benchmark::DoNotOptimize(zelmodel_bench::blockSizeName(Sizes[i++ % Count]));
}
BENCHMARK(blockSizeToTextByReflection);

void blockSizeFromText(benchmark::State& state)
{
    const auto texts = KbBlockSize::toStringList();
    std::size_t i = 0;
    for (auto _ : state)
        benchmark::DoNotOptimize(KbBlockSize::fromStr(texts[i++ % Count]));
}
BENCHMARK(blockSizeFromText);

void blockSizeFromTextByReflection(benchmark::State& state)
{
    const auto texts = KbBlockSize::toStringList();
    std::size_t i = 0;
    for (auto _ : state)
        benchmark::DoNotOptimize(zelmodel_bench::blockSizeOf(texts[i++ % Count]));
}
BENCHMARK(blockSizeFromTextByReflection);

// Any letter case, as the stored names of repositories are read.
void repositoryFromText(benchmark::State& state)
{
    const auto texts = BackupRepositoryType::toStringList();
    std::size_t i = 0;
    for (auto _ : state)
        benchmark::DoNotOptimize(BackupRepositoryType::fromStr(texts[i++ % texts.size()]));
}
BENCHMARK(repositoryFromText);

void repositoryFromTextByReflection(benchmark::State& state)
{
    const auto texts = BackupRepositoryType::toStringList();
    std::size_t i = 0;
    for (auto _ : state)
        benchmark::DoNotOptimize(zelmodel_bench::repositoryOf(texts[i++ % texts.size()]));
}
BENCHMARK(repositoryFromTextByReflection);

const bool added =
    zelmodel_bench::addFigure({"enumeration to text", "blockSizeToText", "blockSizeToTextByReflection", 1.00}) &&
    zelmodel_bench::addFigure({"enumeration from text", "blockSizeFromText", "blockSizeFromTextByReflection", 1.00}) &&
    zelmodel_bench::addFigure(
        {"enumeration from text, any letter case", "repositoryFromText", "repositoryFromTextByReflection", 1.00});

} // namespace
