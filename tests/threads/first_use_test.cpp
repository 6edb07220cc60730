#include <array>
#include <cstdlib>
#include <string>

#include <gtest/gtest.h>

#include "first_uses.h"
#include "together.h"

#if defined(__has_feature)
#if __has_feature(thread_sanitizer)
#define ZELMODEL_TEST_WATCHES_THREADS
#endif
#elif defined(__SANITIZE_THREAD__)
#define ZELMODEL_TEST_WATCHES_THREADS
#endif

namespace
{

using namespace zelmodel_test;

/// What the eight threads got; they share nothing but what they ask for.
using Answers = std::array<std::string, ThreadCount>;

/// Ends a process of its own with 0 when all is as expected: what is made on first use is made once in a process.
[[noreturn]] void endWith(bool isGood)
{
    std::exit(isGood ? EXIT_SUCCESS : EXIT_FAILURE);
}

class FirstUses : public testing::TestWithParam<FirstUse>
{
protected:
    FirstUses() { GTEST_FLAG_SET(death_test_style, "threadsafe"); }
};

TEST_P(FirstUses, IsSafeInAllThreadsAtOnce)
{
    const auto& use = GetParam();
    const auto ask = [&] {
        Answers first;
        Answers last;
        last.fill(use.expected);
        runTogether([&](int thread) {
            const auto at = static_cast<std::size_t>(thread);
            first[at] = use.ask();
            for (int round = 1; round < roundCount() / use.cost; ++round)
                last[at] = use.ask();
        });
        Answers expected;
        expected.fill(use.expected);
        endWith(first == expected && last == expected);
    };
    EXPECT_EXIT(ask(), testing::ExitedWithCode(EXIT_SUCCESS), "");
}

INSTANTIATE_TEST_SUITE_P(Threads, FirstUses, testing::ValuesIn(firstUses()),
                         [](const auto& tested) { return std::string(tested.param.name); });

/// Each thread begins with another one, so that some are made while others that they need are.
TEST(AllFirstUses, AreSafeInAnyOrder)
{
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    const auto ask = [] {
        const auto& uses = firstUses();
        std::array<bool, ThreadCount> isGood{};
        runTogether([&](int thread) {
            const auto begin = static_cast<std::size_t>(thread) * uses.size() / ThreadCount;
            bool areEqual = true;
            for (std::size_t i = 0; i < uses.size(); ++i)
            {
                const auto& use = uses[(begin + i) % uses.size()];
                areEqual = use.ask() == use.expected && areEqual;
            }
            isGood[static_cast<std::size_t>(thread)] = areEqual;
        });
        std::array<bool, ThreadCount> expected{};
        expected.fill(true);
        endWith(isGood == expected);
    };
    EXPECT_EXIT(ask(), testing::ExitedWithCode(EXIT_SUCCESS), "");
}

#ifdef ZELMODEL_TEST_WATCHES_THREADS

extern "C" void __sanitizer_set_report_path(const char* path);

// What the others rely on: a report ends a process with another status. This one's goes nowhere.
TEST(ThreadWatch, SeesARace)
{
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    const auto race = [] {
        __sanitizer_set_report_path("/dev/null");
        int number = 0;
        repeatTogether([&](int, int) { ++number; });
        endWith(number != 0);
    };
    EXPECT_EXIT(race(), testing::ExitedWithCode(66), "");
}

#endif

} // namespace
