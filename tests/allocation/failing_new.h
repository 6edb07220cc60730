#pragma once

#include <cstddef>

namespace zelmodel_test
{

/// Which allocations of this thread fail while an object of FailingNew lives.
enum class EFailure
{
    None,
    One,    ///< the one of the number
    AllFrom ///< the one of the number and all after it
};

/// Makes `operator new` fail, counted from 0 at the object's beginning. The replacement reaches every library of the
/// process. What fails throws std::bad_alloc, or gives a null pointer where the caller asked for that.
class FailingNew
{
public:
    FailingNew(EFailure failure, std::size_t number) noexcept;
    FailingNew(const FailingNew&) = delete;
    FailingNew& operator=(const FailingNew&) = delete;
    ~FailingNew();

    /// Allocations that were asked for so far.
    static std::size_t asked() noexcept;

    /// Whether one of them failed.
    static bool hasFailed() noexcept;
};

/// Blocks of `operator new` that this thread took and has not given back.
long livingBlocks() noexcept;

} // namespace zelmodel_test
