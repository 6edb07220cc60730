#pragma once

#include <cstddef>

namespace zelmodel_test
{

/// Forgets what was asked for so far.
void watchAllocations() noexcept;

/// The bytes of the largest block, and of all blocks together, that `operator new` was asked for since.
std::size_t largestAllocation() noexcept;
std::size_t allocatedInAll() noexcept;

/// The most bytes that blocks took at one time since, above what they took then.
std::size_t mostHeld() noexcept;

} // namespace zelmodel_test
