#pragma once

#include <cstdlib>
#include <string>

namespace zelmodel_test
{

/// How many times slower than a usual machine this one is: ZELMODEL_TEST_SLOWNESS, else 1. An emulated processor sets
/// it, and every bound of time is multiplied by it.
inline double slowness()
{
    const char* const variable = std::getenv("ZELMODEL_TEST_SLOWNESS");
    return variable == nullptr ? 1.0 : std::stod(variable);
}

} // namespace zelmodel_test
