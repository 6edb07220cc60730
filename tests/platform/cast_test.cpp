#include <zelplatform/util/cast.h>

#include <cstdint>
#include <limits>
#include <string>

#include <gtest/gtest.h>

#include <zelplatform/util/text.h>

#include "support/expect_failure.h"

namespace cast_test
{

enum EWindow : std::int32_t
{
    Enabled,
    Disabled
};

struct ELetter
{
    enum type : std::uint8_t
    {
        First
    };
};

} // namespace cast_test

namespace
{

using util::safe_cast;
using zelmodel_test::failureText;

constexpr long LeastLong = std::numeric_limits<long>::min();
constexpr unsigned long GreatestUlong = std::numeric_limits<unsigned long>::max();

template <class To, class From>
std::string refusal(From value)
{
    return failureText([&] { safe_cast<To>(value); });
}

TEST(CastTest, KeepsValuesThatFit)
{
    EXPECT_EQ(safe_cast<std::uint8_t>(255L), 255);
    EXPECT_EQ(safe_cast<std::int8_t>(-128L), -128);
    EXPECT_EQ(safe_cast<int>(-2147483648L), -2147483647 - 1);
    EXPECT_EQ(safe_cast<unsigned>(4294967295UL), 4294967295U);
    EXPECT_EQ(safe_cast<long>(9223372036854775807UL), 9223372036854775807L);
    EXPECT_EQ(safe_cast<unsigned long>(0), 0UL);
    EXPECT_EQ(safe_cast<long>(LeastLong), LeastLong);
    EXPECT_EQ(safe_cast<cast_test::EWindow>(1L), cast_test::Disabled);
    EXPECT_EQ(static_cast<int>(safe_cast<cast_test::EWindow>(-7L)), -7);
    EXPECT_EQ(safe_cast<std::uint8_t>(cast_test::Disabled), 1);
    EXPECT_EQ(safe_cast<unsigned long>(1.9), 1UL);
    EXPECT_EQ(safe_cast<unsigned long>(-0.5), 0UL);
    EXPECT_EQ(safe_cast<unsigned long>(18446744073709549568.0), 18446744073709549568UL);
    EXPECT_EQ(safe_cast<long>(-9223372036854775808.0), LeastLong);
    EXPECT_EQ(safe_cast<std::int8_t>(-128.9), -128);
}

TEST(CastTest, NamesBothTypesOfAValueThatDoesNotFit)
{
    struct Case
    {
        std::string message;
        std::string from;
        std::string to;
    };
    const Case cases[] = {
        {refusal<std::uint8_t>(256L), "long", "unsigned char"},
        {refusal<std::uint8_t>(-1L), "long", "unsigned char"},
        {refusal<std::int8_t>(128), "int", "signed char"},
        {refusal<int>(2147483648L), "long", "int"},
        {refusal<unsigned>(4294967296UL), "unsigned long", "unsigned int"},
        {refusal<unsigned>(-1), "int", "unsigned int"},
        {refusal<int>(4294967295U), "unsigned int", "int"},
        {refusal<unsigned long>(-1L), "long", "unsigned long"},
        {refusal<unsigned long>(LeastLong), "long", "unsigned long"},
        {refusal<long>(9223372036854775808UL), "unsigned long", "long"},
        {refusal<long>(GreatestUlong), "unsigned long", "long"},
        {refusal<unsigned char>(std::size_t{256}), "unsigned long", "unsigned char"},
        {refusal<cast_test::EWindow>(2147483648L), "long", "cast_test::EWindow"},
        {refusal<cast_test::ELetter::type>(256), "int", "cast_test::ELetter::type"},
        {refusal<unsigned long>(18446744073709551616.0), "double", "unsigned long"},
        {refusal<unsigned long>(-1.0), "double", "unsigned long"},
        {refusal<long>(9223372036854775808.0), "double", "long"},
        {refusal<std::int8_t>(-129.0), "double", "signed char"},
        {refusal<int>(std::numeric_limits<double>::quiet_NaN()), "double", "int"},
        {refusal<int>(std::numeric_limits<double>::infinity()), "double", "int"},
    };
    for (const auto& [message, from, to] : cases)
        EXPECT_EQ(message, util::str_format("Unable to cast value from [%1] to [%2].", from, to));
}

} // namespace
