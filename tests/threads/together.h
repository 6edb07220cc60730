#pragma once

#include <functional>

namespace zelmodel_test
{

constexpr int ThreadCount = 8;

/// How often each thread does its work: a few hundred times, or as often as ZELMODEL_THREAD_ROUNDS says.
int roundCount();

/// Calls the work once in each thread, with the number of the thread from 0; none begins before all are there.
void runTogether(const std::function<void(int thread)>& work);

/// The same with roundCount() calls in each thread, the round counted from 0.
void repeatTogether(const std::function<void(int thread, int round)>& work);

} // namespace zelmodel_test
