#include <algorithm>
#include <cstddef>
#include <cstdio>
#include <cstdlib>
#include <new>
#include <string>

#include <malloc.h>

#include <zelplatform/util/util.h>

#include "key_bundle_sample.h"

namespace
{

using zelplatform::model::structs::SExplicitBackupKeys;

std::size_t held = 0;
std::size_t peak = 0;

} // namespace

// Every block of the process is counted, as long as the heap makes it, those of the libraries included.
void* operator new(std::size_t size)
{
    void* const block = std::malloc(size == 0 ? 1 : size);
    if (block == nullptr)
        throw std::bad_alloc();
    held += malloc_usable_size(block);
    peak = std::max(peak, held);
    return block;
}

void operator delete(void* block) noexcept
{
    held -= malloc_usable_size(block);
    std::free(block);
}

void operator delete(void* block, std::size_t) noexcept
{
    operator delete(block);
}

namespace
{

// The greatest memory held while the step ran, above what was held before, what it returns included.
template <class Step>
std::size_t peakOf(Step step)
{
    const std::size_t before = held;
    peak = held;
    const auto result = step();
    return peak - before;
}

} // namespace

// Prints the bytes of a bundle's binary form and what writing and reading it as base64 takes at most; the argument is
// the size of its keys.
int main(int argc, char** argv)
{
    if (argc != 2)
        return 2;
    const auto bundle = zelmodel_bench::makeBundle(std::stoul(argv[1]));
    const std::string text = bundle.ToBase64();
    const std::size_t bytes = util::fromBase64(text).size();
    const std::size_t writing = peakOf([&] { return bundle.ToBase64(); });
    const std::size_t reading = peakOf([&] { return SExplicitBackupKeys::FromBase64(text); });
    std::printf("%zu %zu %zu\n", bytes, writing, reading);
    return 0;
}
