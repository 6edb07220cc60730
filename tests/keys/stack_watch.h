#pragma once

#include <functional>

namespace zelmodel_test
{

/// Runs the operation twice, each time on a stack of its own, and tells whether the second one holds a secret when all
/// is done. The first run binds the functions that the operation calls, which saves registers on the stack.
bool leavesSecretOnStack(const std::function<void()>& operation);

} // namespace zelmodel_test
