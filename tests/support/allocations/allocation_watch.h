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

/// The byte that secrets of a test are made of, and how many in a row make one.
constexpr char SecretByte = '\xC7';
constexpr std::size_t SecretRun = 32;

/// How many blocks were given back with a secret in them since watchAllocations.
std::size_t secretsGivenBack() noexcept;

} // namespace zelmodel_test
