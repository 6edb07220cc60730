#include <zelplatform/util/type_name.h>

#include <cstdint>
#include <string>

#include <boost/date_time/gregorian/gregorian_types.hpp>
#include <gtest/gtest.h>

#include <zelplatform/exc/exc.h>

namespace type_name_test
{

enum EKind : int
{
};

struct EColour
{
    enum type : std::int32_t
    {
    };
};

} // namespace type_name_test

namespace
{

struct Hidden
{
};

TEST(TypeNameTest, GivesTheReadableNameOfTheType)
{
    struct Case
    {
        std::string name;
        std::string expected;
    };
    const Case cases[] = {
        {util::type_name<bool>(), "bool"},
        {util::type_name<int>(), "int"},
        {util::type_name<unsigned>(), "unsigned int"},
        {util::type_name<long>(), "long"},
        {util::type_name<unsigned long>(), "unsigned long"},
        {util::type_name<std::int64_t>(), "long"},
        {util::type_name<std::uint64_t>(), "unsigned long"},
        {util::type_name<std::size_t>(), "unsigned long"},
        {util::type_name<unsigned char>(), "unsigned char"},
        {util::type_name<std::uint8_t>(), "unsigned char"},
        {util::type_name<std::uint16_t>(), "unsigned short"},
        {util::type_name<double>(), "double"},
        {util::type_name<const long&>(), "long"},
        {util::type_name<boost::gregorian::greg_year>(), "boost::gregorian::greg_year"},
        {util::type_name<boost::gregorian::greg_month>(), "boost::gregorian::greg_month"},
        {util::type_name<boost::gregorian::greg_day>(), "boost::gregorian::greg_day"},
        {util::type_name<exc::CRuntimeExc>(), "exc::CRuntimeExc"},
        {util::type_name<type_name_test::EKind>(), "type_name_test::EKind"},
        {util::type_name<type_name_test::EColour::type>(), "type_name_test::EColour::type"},
        {util::type_name<Hidden>(), "(anonymous namespace)::Hidden"},
    };
    for (const auto& [name, expected] : cases)
        EXPECT_EQ(name, expected);
}

} // namespace
