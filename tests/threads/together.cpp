#include "together.h"

#include <atomic>
#include <cstdlib>
#include <string>
#include <thread>
#include <vector>

namespace zelmodel_test
{
namespace
{

constexpr int RoundsOfSuite = 300;

} // namespace

int roundCount()
{
    const char* variable = std::getenv("ZELMODEL_THREAD_ROUNDS");
    return variable == nullptr ? RoundsOfSuite : std::stoi(variable);
}

void runTogether(const std::function<void(int thread)>& work)
{
    std::atomic<int> missing{ThreadCount};
    std::vector<std::thread> threads;
    for (int thread = 0; thread < ThreadCount; ++thread)
    {
        threads.emplace_back([&, thread] {
            --missing;
            while (missing != 0)
                std::this_thread::yield();
            work(thread);
        });
    }
    for (auto& thread : threads)
        thread.join();
}

void repeatTogether(const std::function<void(int thread, int round)>& work)
{
    const int rounds = roundCount();
    runTogether([&](int thread) {
        for (int round = 0; round < rounds; ++round)
            work(thread, round);
    });
}

} // namespace zelmodel_test
