#pragma once

#include <zelplatform/exc/exc.h>
#include <zelplatform/util/util.h>

namespace zelplatform::model::detail
{

// Arithmetic on seconds that come from outside: a result that leaves 64 bits throws.

inline long checkedAdd(long a, long b)
{
    long result = 0;
    if (__builtin_add_overflow(a, b, &result))
        throw exc::CRuntimeExc("The sum of [%1] and [%2] is out of range.", util::toStr(a), util::toStr(b));
    return result;
}

inline long checkedSubtract(long a, long b)
{
    long result = 0;
    if (__builtin_sub_overflow(a, b, &result))
        throw exc::CRuntimeExc("The difference of [%1] and [%2] is out of range.", util::toStr(a), util::toStr(b));
    return result;
}

inline long checkedMultiply(long a, long b)
{
    long result = 0;
    if (__builtin_mul_overflow(a, b, &result))
        throw exc::CRuntimeExc("The product of [%1] and [%2] is out of range.", util::toStr(a), util::toStr(b));
    return result;
}

} // namespace zelplatform::model::detail
