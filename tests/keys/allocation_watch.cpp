#include "allocation_watch.h"

#include <atomic>
#include <cstdlib>
#include <new>

#include <malloc.h>

namespace
{

std::atomic<std::size_t> largest{0};
std::atomic<std::size_t> inAll{0};
std::atomic<std::size_t> secrets{0};

bool holdsSecret(const char* bytes, std::size_t size) noexcept
{
    std::size_t run = 0;
    for (std::size_t i = 0; i < size; ++i)
    {
        run = bytes[i] == zelmodel_test::SecretByte ? run + 1 : 0;
        if (run == zelmodel_test::SecretRun)
            return true;
    }
    return false;
}

void giveBack(void* block) noexcept
{
    if (block != nullptr && holdsSecret(static_cast<const char*>(block), ::malloc_usable_size(block)))
        ++secrets;
    std::free(block);
}

} // namespace

void* operator new(std::size_t size)
{
    if (size > largest)
        largest = size;
    inAll += size;
    if (void* block = std::malloc(size == 0 ? 1 : size))
        return block;
    throw std::bad_alloc();
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
    secrets = 0;
}

std::size_t largestAllocation() noexcept
{
    return largest;
}

std::size_t allocatedInAll() noexcept
{
    return inAll;
}

std::size_t secretsGivenBack() noexcept
{
    return secrets;
}

} // namespace zelmodel_test
