#include "allocation_watch.h"

#include <atomic>
#include <cstdlib>
#include <new>

#include <malloc.h>

namespace
{

std::atomic<std::size_t> largest{0};
std::atomic<std::size_t> inAll{0};
std::atomic<std::size_t> held{0};
std::atomic<std::size_t> heldBefore{0};
std::atomic<std::size_t> peak{0};

void take(void* block) noexcept
{
    const auto now = held += ::malloc_usable_size(block);
    for (auto most = peak.load(); most < now && !peak.compare_exchange_weak(most, now);)
    {
    }
}

void giveBack(void* block) noexcept
{
    if (block == nullptr)
        return;
    held -= ::malloc_usable_size(block);
    std::free(block);
}

} // namespace

void* operator new(std::size_t size)
{
    if (size > largest)
        largest = size;
    inAll += size;
    void* const block = std::malloc(size == 0 ? 1 : size);
    if (block == nullptr)
        throw std::bad_alloc();
    take(block);
    return block;
}

// The temporary buffers of algorithms come from here. A sanitizer's own form would not know our blocks.
void* operator new(std::size_t size, const std::nothrow_t&) noexcept
{
    try
    {
        return ::operator new(size);
    }
    catch (const std::bad_alloc&)
    {
        return nullptr;
    }
}

void operator delete(void* block, const std::nothrow_t&) noexcept
{
    giveBack(block);
}

void operator delete(void* block) noexcept
{
    giveBack(block);
}

void operator delete(void* block, std::size_t) noexcept
{
    giveBack(block);
}

namespace zelmodel_test
{

void watchAllocations() noexcept
{
    largest = 0;
    inAll = 0;
    heldBefore = held.load();
    peak = held.load();
}

std::size_t largestAllocation() noexcept
{
    return largest;
}

std::size_t allocatedInAll() noexcept
{
    return inAll;
}

std::size_t mostHeld() noexcept
{
    return peak - heldBefore;
}

} // namespace zelmodel_test
