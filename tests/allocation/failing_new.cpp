#include "failing_new.h"

#include <cstdlib>
#include <new>

namespace
{

struct Countdown
{
    zelmodel_test::EFailure failure = zelmodel_test::EFailure::None;
    std::size_t number = 0;
    std::size_t asked = 0;
    bool hasFailed = false;
};

thread_local Countdown t_countdown;
thread_local long t_living = 0;

bool mustFail() noexcept
{
    using zelmodel_test::EFailure;
    auto& countdown = t_countdown;
    const auto number = countdown.asked++;
    const bool fails = (countdown.failure == EFailure::One && number == countdown.number) ||
                       (countdown.failure == EFailure::AllFrom && number >= countdown.number);
    countdown.hasFailed = countdown.hasFailed || fails;
    return fails;
}

void giveBack(void* block) noexcept
{
    if (block != nullptr)
        --t_living;
    std::free(block);
}

} // namespace

void* operator new(std::size_t size, const std::nothrow_t&) noexcept
{
    if (mustFail())
        return nullptr;
    void* const block = std::malloc(size == 0 ? 1 : size);
    if (block != nullptr)
        ++t_living;
    return block;
}

void* operator new(std::size_t size)
{
    if (void* const block = ::operator new(size, std::nothrow))
        return block;
    throw std::bad_alloc();
}

// A sanitizer's forms for arrays would pass by those of single objects.
void* operator new[](std::size_t size, const std::nothrow_t&) noexcept
{
    return ::operator new(size, std::nothrow);
}

void* operator new[](std::size_t size)
{
    return ::operator new(size);
}

void operator delete(void* block) noexcept
{
    giveBack(block);
}

void operator delete(void* block, std::size_t) noexcept
{
    giveBack(block);
}

void operator delete(void* block, const std::nothrow_t&) noexcept
{
    giveBack(block);
}

void operator delete[](void* block) noexcept
{
    giveBack(block);
}

void operator delete[](void* block, std::size_t) noexcept
{
    giveBack(block);
}

void operator delete[](void* block, const std::nothrow_t&) noexcept
{
    giveBack(block);
}

namespace zelmodel_test
{

FailingNew::FailingNew(EFailure failure, std::size_t number) noexcept
{
    t_countdown = {failure, number, 0, false};
}

FailingNew::~FailingNew()
{
    t_countdown.failure = EFailure::None;
}

std::size_t FailingNew::asked() noexcept
{
    return t_countdown.asked;
}

bool FailingNew::hasFailed() noexcept
{
    return t_countdown.hasFailed;
}

long livingBlocks() noexcept
{
    return t_living;
}

} // namespace zelmodel_test
