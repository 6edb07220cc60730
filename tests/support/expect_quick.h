#pragma once

#include <utility>

#include <gtest/gtest.h>

#include "processor_time.h"
#include "slowness.h"

namespace zelmodel_test
{

/// The work takes seconds of processor time, whatever the input: ample for work that grows with the input on a slow
/// machine with checks built in, far too little for work that grows with its square. `./dev check-time` measures.
template <class F>
void expectQuick(F&& work)
{
    const ProcessorTime time;
    std::forward<F>(work)();
    EXPECT_LT(time.seconds(), 15.0 * slowness());
}

} // namespace zelmodel_test
