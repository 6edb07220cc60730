#pragma once

namespace zelmodel_bench
{

/// Measures what loading the shared object costs beyond the libraries under it, each time in a fresh process, and
/// prints the medians; false when a bound is exceeded.
bool printLoadFigures();

} // namespace zelmodel_bench
