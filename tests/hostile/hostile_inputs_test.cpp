#include <gtest/gtest.h>

#include <support/allocations/allocation_watch.h>
#include <support/expect_quick.h>

#include "inputs/hostile_input.h"

namespace
{

using zelmodel_test::expectQuick;
using zelmodel_test::HostileInput;

constexpr std::size_t InputSize = 1UL << 20;

// The leanest pieces of a form or a document, four bytes each, become objects of some 100 bytes.
constexpr std::size_t MostPerByte = 64;

void expectBounded(const std::vector<HostileInput>& inputs)
{
    EXPECT_FALSE(inputs.empty());
    for (const auto& input : inputs)
    {
        SCOPED_TRACE(input.name);
        const auto bytes = input.make(InputSize);
        zelmodel_test::watchAllocations();
        expectQuick([&] { input.read(bytes); });
        EXPECT_LE(zelmodel_test::mostHeld(), MostPerByte * bytes.size());
    }
}

TEST(HostileInputs, MarkupTakesBoundedTimeAndMemory)
{
    expectBounded(zelmodel_test::hostileMarkup());
}

TEST(HostileInputs, ValuesTakeBoundedTimeAndMemory)
{
    expectBounded(zelmodel_test::hostileValues());
}

TEST(HostileInputs, FormsTakeBoundedTimeAndMemory)
{
    expectBounded(zelmodel_test::hostileForms());
}

TEST(HostileInputs, LogsTakeBoundedTimeAndMemory)
{
    expectBounded(zelmodel_test::hostileLogs());
}

} // namespace
