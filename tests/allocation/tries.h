#pragma once

#include <cstddef>

#include "failing_new.h"

namespace zelmodel_test
{

/// What the allocations of one call came to.
struct Tried
{
    bool hasFailed = false;
    std::size_t asked = 0;
};

/// Calls while allocations fail; what the call throws passes on.
template <class TCall>
Tried tryWith(EFailure failure, std::size_t number, const TCall& call)
{
    const FailingNew failing(failure, number);
    call();
    return {FailingNew::hasFailed(), FailingNew::asked()};
}

/// How many more blocks live after the call than before it.
template <class TCall>
long blocksLeftBy(const TCall& call)
{
    const auto before = livingBlocks();
    call();
    return livingBlocks() - before;
}

} // namespace zelmodel_test
