#include <gtest/gtest.h>

#include <support/expect_failure.h>
#include <zelplatform/datetime/names.h>

namespace
{

using datetime::EDayOfWeek;
using datetime::EMonth;
using zelmodel_test::failureText;

const std::vector<std::string> longDays = {"Sunday",   "Monday", "Tuesday", "Wednesday",
                                           "Thursday", "Friday", "Saturday"};
const std::vector<std::string> shortDays = {"Sun", "Mon", "Tue", "Wed", "Thu", "Fri", "Sat"};
const std::vector<std::string> longMonths = {"January", "February", "March",     "April",   "May",      "June",
                                             "July",    "August",   "September", "October", "November", "December"};
const std::vector<std::string> shortMonths = {"Jan", "Feb", "Mar", "Apr", "May", "Jun",
                                              "Jul", "Aug", "Sep", "Oct", "Nov", "Dec"};

std::string withCase(std::string text, int (*change)(int))
{
    for (char& each : text)
        each = static_cast<char>(change(static_cast<unsigned char>(each)));
    return text;
}

/// Names by value, and every letter case of them read back.
template <class TEnum>
void expectNames(const std::vector<std::string>& longNames, const std::vector<std::string>& shortNames)
{
    EXPECT_EQ(longNames, TEnum::GetLongStrSet());
    EXPECT_EQ(shortNames, TEnum::GetShortStrSet());
    EXPECT_EQ(&TEnum::GetLongStrSet(), &TEnum::GetLongStrSet());
    for (std::size_t value = 0; value < longNames.size(); ++value)
    {
        EXPECT_EQ(longNames[value], TEnum::ToStr(static_cast<typename TEnum::type>(value)));
        for (const std::string& name : {longNames[value], shortNames[value]})
            for (const std::string& written :
                 {name, withCase(name, [](int c) { return c >= 'a' && c <= 'z' ? c - 32 : c; }),
                  withCase(name, [](int c) { return c >= 'A' && c <= 'Z' ? c + 32 : c; })})
                EXPECT_EQ(value, static_cast<std::size_t>(TEnum::FromStr(written))) << written;
    }
}

TEST(DayOfWeek, Names)
{
    expectNames<EDayOfWeek>(longDays, shortDays);
    EXPECT_EQ(0, static_cast<int>(EDayOfWeek::Sunday));
    EXPECT_EQ(6, static_cast<int>(EDayOfWeek::Saturday));
}

TEST(DayOfWeek, RefusesOtherTextsAndValues)
{
    for (const std::string text : {"", "Su", "Sonday", "Sund", " Sunday", "Sunday ", "Sunday,Monday", "0", "January"})
        EXPECT_EQ("Unknown day of week: [" + text + "].", failureText([&] { EDayOfWeek::FromStr(text); }));
    for (const int number : {-1, 7, 100})
        EXPECT_EQ("Unknown day of week: [" + std::to_string(number) + "].",
                  failureText([&] { EDayOfWeek::ToStr(static_cast<EDayOfWeek::type>(number)); }));
}

TEST(Month, Names)
{
    expectNames<EMonth>(longMonths, shortMonths);
    EXPECT_EQ(0, static_cast<int>(EMonth::January));
    EXPECT_EQ(11, static_cast<int>(EMonth::December));
}

TEST(Month, RefusesOtherTextsAndValues)
{
    for (const std::string text : {"", "Ja", "Janu", "Sept", " May", "May ", "1", "Sunday"})
        EXPECT_EQ("Unknown month: [" + text + "].", failureText([&] { EMonth::FromStr(text); }));
    for (const int number : {-1, 12, 100})
        EXPECT_EQ("Unknown month: [" + std::to_string(number) + "].",
                  failureText([&] { EMonth::ToStr(static_cast<EMonth::type>(number)); }));
}

} // namespace
