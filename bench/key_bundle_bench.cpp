#include <map>
#include <string>
#include <vector>

#include <benchmark/benchmark.h>
#include <openssl/evp.h>

#include <zelplatform/util/util.h>

#include "key_bundle_sample.h"
#include "ratio_table.h"

namespace
{

using zelmodel_bench::SymmetricKey;
using zelmodel_bench::WrappedKey;
using zelplatform::model::structs::SExplicitBackupKeys;

struct Sample
{
    SExplicitBackupKeys bundle;
    std::string text;
};

// An agent's bundle was read: it lies in memory in the order of its entries.
const Sample& sample(std::size_t keySize)
{
    static std::map<std::size_t, Sample> samples;
    auto& made = samples[keySize];
    if (made.text.empty())
    {
        made.text = zelmodel_bench::makeBundle(keySize).ToBase64();
        made.bundle = SExplicitBackupKeys::FromBase64(made.text);
    }
    return made;
}

const Sample& sampleOf(const benchmark::State& state)
{
    return sample(static_cast<std::size_t>(state.range(0)));
}

void writeKeyBundle(benchmark::State& state)
{
    const auto& bundle = sampleOf(state).bundle;
    for (auto _ : state)
        benchmark::DoNotOptimize(bundle.ToBase64());
}
BENCHMARK(writeKeyBundle)->Arg(SymmetricKey)->Arg(WrappedKey);

void readKeyBundle(benchmark::State& state)
{
    const auto& text = sampleOf(state).text;
    for (auto _ : state)
        benchmark::DoNotOptimize(SExplicitBackupKeys::FromBase64(text));
}
BENCHMARK(readKeyBundle)->Arg(SymmetricKey)->Arg(WrappedKey);

// OpenSSL's base64 of the same bytes, without any structure.
void encodeBundleBytes(benchmark::State& state)
{
    const auto& expected = sampleOf(state).text;
    const auto bytes = util::fromBase64(expected);
    std::string text(expected.size() + 1, '\0');
    for (auto _ : state)
    {
        benchmark::DoNotOptimize(EVP_EncodeBlock(reinterpret_cast<unsigned char*>(text.data()),
                                                 reinterpret_cast<const unsigned char*>(bytes.data()),
                                                 static_cast<int>(bytes.size())));
    }
}
BENCHMARK(encodeBundleBytes)->Arg(SymmetricKey)->Arg(WrappedKey);

void decodeBundleText(benchmark::State& state)
{
    const auto& text = sampleOf(state).text;
    std::vector<unsigned char> bytes(text.size());
    for (auto _ : state)
    {
        benchmark::DoNotOptimize(EVP_DecodeBlock(bytes.data(), reinterpret_cast<const unsigned char*>(text.data()),
                                                 static_cast<int>(text.size())));
    }
}
BENCHMARK(decodeBundleText)->Arg(SymmetricKey)->Arg(WrappedKey);

bool addFigures(std::size_t keySize)
{
    const std::string size = std::to_string(keySize);
    const std::string name = " a key bundle of 10000, " + size + "-byte keys";
    return zelmodel_bench::addFigure({"writing" + name, "writeKeyBundle/" + size, "encodeBundleBytes/" + size, 2.80}) &&
           zelmodel_bench::addFigure({"reading" + name, "readKeyBundle/" + size, "decodeBundleText/" + size, 4.10});
}

const bool added = addFigures(SymmetricKey) && addFigures(WrappedKey);

} // namespace
