#include <memory>
#include <string>
#include <vector>

#include <benchmark/benchmark.h>
#include <openssl/evp.h>

#include <zelmodel/keys.h>
#include <zelplatform/util/util.h>

#include "ratio_table.h"

namespace
{

using namespace zelplatform::model::structs;

constexpr int Entries = 10000;

SExplicitBackupKeys makeBundle()
{
    SExplicitBackupKeys bundle;
    bundle.id = guid::guid_t::CreateNew();
    for (int i = 0; i < Entries; ++i)
    {
        const std::vector<char> idBytes(16, static_cast<char>(i));
        const crypto::sec_buffer_t keyBytes(32, static_cast<char>(i));
        std::vector<std::shared_ptr<crypto::CKey>> keys{std::make_shared<crypto::CKey>(keyBytes)};
        bundle.keySets.emplace(guid::guid_t::CreateNew(),
                               std::make_shared<crypto::CKeySet>(crypto::CKeySetId({idBytes.data(), idBytes.size()}),
                                                                 crypto::ECryptAlgs::Local1,
                                                                 crypto::EKeySetUsageRole::Storage, CUniString(L"hint"),
                                                                 lin::lin_filetime_t{1700000000, 0}, keys));
    }
    return bundle;
}

const SExplicitBackupKeys& bundle()
{
    static const SExplicitBackupKeys keys = makeBundle();
    return keys;
}

const std::string& bundleText()
{
    static const std::string text = bundle().ToBase64();
    return text;
}

void writeKeyBundle(benchmark::State& state)
{
    bundle();
    for (auto _ : state)
        benchmark::DoNotOptimize(bundle().ToBase64());
}
BENCHMARK(writeKeyBundle);

void readKeyBundle(benchmark::State& state)
{
    bundleText();
    for (auto _ : state)
        benchmark::DoNotOptimize(SExplicitBackupKeys::FromBase64(bundleText()));
}
BENCHMARK(readKeyBundle);

// OpenSSL's base64 of the same bytes, without any structure.
void encodeBundleBytes(benchmark::State& state)
{
    const auto bytes = util::fromBase64(bundleText());
    std::string text(bundleText().size() + 1, '\0');
    for (auto _ : state)
    {
        benchmark::DoNotOptimize(EVP_EncodeBlock(reinterpret_cast<unsigned char*>(text.data()),
                                                 reinterpret_cast<const unsigned char*>(bytes.data()),
                                                 static_cast<int>(bytes.size())));
    }
}
BENCHMARK(encodeBundleBytes);

void decodeBundleText(benchmark::State& state)
{
    const auto& text = bundleText();
    std::vector<unsigned char> bytes(text.size());
    for (auto _ : state)
    {
        benchmark::DoNotOptimize(EVP_DecodeBlock(bytes.data(), reinterpret_cast<const unsigned char*>(text.data()),
                                                 static_cast<int>(text.size())));
    }
}
BENCHMARK(decodeBundleText);

const bool added =
    zelmodel_bench::addFigure({"writing a key bundle of 10000", "writeKeyBundle", "encodeBundleBytes", 2.80}) &&
    zelmodel_bench::addFigure({"reading a key bundle of 10000", "readKeyBundle", "decodeBundleText", 4.10});

} // namespace
