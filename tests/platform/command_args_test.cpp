#include <zelplatform/mivo/mivo.h>

#include <functional>
#include <limits>
#include <string>

#include <gtest/gtest.h>

#include "support/expect_failure.h"

namespace
{

using datetime::CDateTime;
using mivo::CMivoCommandArgs;

TEST(CommandArgsTest, GivesBackWhatWasSet)
{
    CMivoCommandArgs arguments;
    arguments.SetString("title", std::string("a\0b", 3));
    arguments.SetString("", "");
    arguments.SetUInt64("usn", std::numeric_limits<unsigned long>::max());
    arguments.SetDateTime("utc", CDateTime(true));
    arguments.SetDateTime("local", CDateTime(1709816709, false));

    EXPECT_EQ(arguments.GetString("title"), std::string("a\0b", 3));
    EXPECT_EQ(arguments.GetString(""), "");
    EXPECT_EQ(arguments.GetUInt64("usn"), 18446744073709551615U);
    EXPECT_EQ(arguments.GetDateTime("utc").toUnixTime(), 0);
    EXPECT_TRUE(arguments.GetDateTime("utc").isUtcTime());
    EXPECT_EQ(arguments.GetDateTime("local").toUnixTime(), 1709816709);
    EXPECT_FALSE(arguments.GetDateTime("local").isUtcTime());
}

TEST(CommandArgsTest, KnowsItsKeys)
{
    CMivoCommandArgs arguments;
    EXPECT_FALSE(arguments.Has("title"));
    arguments.SetString("title", "");
    EXPECT_TRUE(arguments.Has("title"));
    EXPECT_FALSE(arguments.Has("Title"));
    EXPECT_FALSE(arguments.Has(""));
}

TEST(CommandArgsTest, ReplacesValueAndType)
{
    CMivoCommandArgs arguments;
    arguments.SetString("x", "first");
    arguments.SetString("x", "second");
    EXPECT_EQ(arguments.GetString("x"), "second");
    arguments.SetUInt64("x", 7);
    EXPECT_EQ(arguments.GetUInt64("x"), 7U);
    EXPECT_EQ(zelmodel_test::failureText([&] { arguments.GetString("x"); }), "Argument [x] has another type.");
}

TEST(CommandArgsTest, DoesNotShareValuesBetweenCopies)
{
    CMivoCommandArgs arguments;
    arguments.SetUInt64("x", 1);
    const CMivoCommandArgs copy = arguments;
    arguments.SetUInt64("x", 2);
    EXPECT_EQ(copy.GetUInt64("x"), 1U);
}

TEST(CommandArgsTest, ConvertsNothing)
{
    CMivoCommandArgs arguments;
    arguments.SetString("text", "7");
    arguments.SetUInt64("number", 7);
    arguments.SetDateTime("date", CDateTime(7, true));

    struct Case
    {
        std::function<void()> get;
        std::string message;
    };
    const Case cases[] = {
        {[&] { arguments.GetString("number"); }, "Argument [number] has another type."},
        {[&] { arguments.GetString("date"); }, "Argument [date] has another type."},
        {[&] { arguments.GetUInt64("text"); }, "Argument [text] has another type."},
        {[&] { arguments.GetUInt64("date"); }, "Argument [date] has another type."},
        {[&] { arguments.GetDateTime("text"); }, "Argument [text] has another type."},
        {[&] { arguments.GetDateTime("number"); }, "Argument [number] has another type."},
        {[&] { arguments.GetString("none"); }, "Argument [none] is not found."},
        {[&] { arguments.GetUInt64("Number"); }, "Argument [Number] is not found."},
        {[&] { arguments.GetDateTime(""); }, "Argument [] is not found."},
    };
    for (const auto& [get, message] : cases)
        EXPECT_EQ(zelmodel_test::failureText(get), message);
}

} // namespace
