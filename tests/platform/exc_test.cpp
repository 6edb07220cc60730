#include <zelplatform/exc/exc.h>

#include <functional>
#include <stdexcept>
#include <string>
#include <type_traits>
#include <vector>

#include <gtest/gtest.h>

namespace
{

static_assert(std::is_nothrow_copy_constructible_v<exc::CRuntimeExc>);
static_assert(std::is_nothrow_copy_assignable_v<exc::CRuntimeExc>);
static_assert(!std::is_convertible_v<std::string, exc::CRuntimeExc>);

using Trace = std::vector<std::string>;

exc::CRuntimeExc caught(const std::function<void()>& action)
{
    try
    {
        action();
    }
    catch (const exc::CRuntimeExc& failure)
    {
        return failure;
    }
    ADD_FAILURE() << "nothing was thrown";
    return exc::CRuntimeExc("");
}

TEST(RuntimeExcTest, BuildsItsMessageFromTheFormat)
{
    struct Case
    {
        exc::CRuntimeExc failure;
        std::string message;
    };
    const Case cases[] = {
        {exc::CRuntimeExc("Plain text."), "Plain text."},
        {exc::CRuntimeExc(""), ""},
        {exc::CRuntimeExc("%1: Failed.", "CSize"), "CSize: Failed."},
        {exc::CRuntimeExc("%1: Failed to convert from string [%2].", "CSize", "x"),
         "CSize: Failed to convert from string [x]."},
        {exc::CRuntimeExc("%3 %2 %1", "a", "b", "c"), "c b a"},
        {exc::CRuntimeExc("[%1] [%2]", "%2", "%1"), "[%2] [%1]"},
    };
    for (const auto& [failure, message] : cases)
    {
        EXPECT_EQ(failure.what(), message);
        EXPECT_EQ(failure.trace(), Trace{message});
    }
}

TEST(RuntimeExcTest, TakesASingleTextAsItStands)
{
    EXPECT_STREQ(exc::CRuntimeExc("100%1 of %2 {} %s").what(), "100%1 of %2 {} %s");
}

TEST(RuntimeExcTest, SharesItsMessageWithCopies)
{
    exc::CRuntimeExc original("Text.");
    const exc::CRuntimeExc copy = original;
    EXPECT_EQ(copy.what(), original.what());
    original = exc::CRuntimeExc("Other text.");
    EXPECT_STREQ(original.what(), "Other text.");
    EXPECT_STREQ(copy.what(), "Text.");
}

TEST(RuntimeExcTest, CanBeThrownAsAPointerPastReferenceHandlers)
{
    const auto action = [] {
        try
        {
            throw new exc::CRuntimeExc("Kind [%1].", "");
        }
        catch (std::exception&)
        {
            ADD_FAILURE() << "a reference handler caught the pointer";
        }
    };
    try
    {
        action();
        FAIL() << "nothing was thrown";
    }
    catch (exc::CRuntimeExc* failure)
    {
        EXPECT_STREQ(failure->what(), "Kind [].");
        delete failure;
    }
}

TEST(RegenTest, PutsTheContextInFrontOfTheCause)
{
    const std::runtime_error cause("Cause with %1 and %2.");
    struct Case
    {
        std::function<void()> action;
        std::string message;
    };
    const Case cases[] = {
        {[&] { exc::RegenTraceExc("Context %1.", cause); }, "Context %1. Cause with %1 and %2."},
        {[&] { exc::RegenTraceExc("[%1]", "a", cause); }, "[a] Cause with %1 and %2."},
        {[&] { exc::RegenTraceExc("[%1][%2]", "%2", "b", cause); }, "[%2][b] Cause with %1 and %2."},
        {[&] { exc::RegenTraceExc("[%3][%2][%1]", "a", "b", "c", cause); }, "[c][b][a] Cause with %1 and %2."},
        {[&] { exc::RegenTraceExc("", cause); }, "Cause with %1 and %2."},
        {[&] { exc::RegenExc("Context %1.", cause); }, "Context %1. Cause with %1 and %2."},
        {[&] { exc::RegenExc("[%1]", "a", cause); }, "[a] Cause with %1 and %2."},
        {[&] { exc::RegenExc("[%1][%2]", "%2", "b", cause); }, "[%2][b] Cause with %1 and %2."},
        {[&] { exc::RegenExc("[%3][%2][%1]", "a", "b", "c", cause); }, "[c][b][a] Cause with %1 and %2."},
        {[&] { exc::RegenExc("", cause); }, "Cause with %1 and %2."},
        {[&] { exc::RegenExc("ID: ", cause); }, "ID:  Cause with %1 and %2."},
    };
    for (const auto& [action, message] : cases)
        EXPECT_EQ(caught(action).what(), message);
}

TEST(RegenTest, KeepsTheTraceOutermostFirst)
{
    const auto inner = caught([] { exc::RegenTraceExc("Middle.", exc::CRuntimeExc("Unknown [%1].", "x")); });
    const auto outer = caught([&] { exc::RegenTraceExc("Outer.", inner); });
    EXPECT_STREQ(outer.what(), "Outer. Middle. Unknown [x].");
    EXPECT_EQ(outer.trace(), (Trace{"Outer.", "Middle.", "Unknown [x]."}));

    const auto untraced = caught([&] { exc::RegenExc("Outer.", inner); });
    EXPECT_STREQ(untraced.what(), "Outer. Middle. Unknown [x].");
    EXPECT_EQ(untraced.trace(), (Trace{"Outer.", "Middle. Unknown [x]."}));

    const auto foreign = caught([] { exc::RegenTraceExc("Outer.", std::out_of_range("Bad day.")); });
    EXPECT_EQ(foreign.trace(), (Trace{"Outer.", "Bad day."}));

    const auto withoutContext = caught([&] { exc::RegenTraceExc("", inner); });
    EXPECT_STREQ(withoutContext.what(), "Middle. Unknown [x].");
    EXPECT_EQ(withoutContext.trace(), (Trace{"Middle.", "Unknown [x]."}));
}

} // namespace
