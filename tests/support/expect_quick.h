#pragma once

#include <chrono>
#include <utility>

#include <gtest/gtest.h>

#include "slowness.h"

namespace zelmodel_test
{

/// The work ends in seconds, whatever the input: ample for work that grows with the input on a slow machine with checks
/// built in, far too little for work that grows with its square. `./dev check-time` measures.
template <class F>
void expectQuick(F&& work)
{
    const auto start = std::chrono::steady_clock::now();
    std::forward<F>(work)();
    EXPECT_LT(std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count(), 15.0 * slowness());
}

} // namespace zelmodel_test
