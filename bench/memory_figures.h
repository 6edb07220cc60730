#pragma once

namespace zelmodel_bench
{

/// Measures the heap that writing and reading a key bundle takes at most, as a multiple of the bundle's binary form,
/// each size in a process of its own, and prints it; false when a bound is exceeded.
bool printMemoryFigures();

} // namespace zelmodel_bench
