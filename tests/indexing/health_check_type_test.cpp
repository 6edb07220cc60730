#include <gtest/gtest.h>

#include <support/expect_failure.h>
#include <zelmodel/structs/health_check_type.h>

namespace
{

using zelmodel_test::failureText;
using zelplatform::model::structs::EHealthCheckType;

TEST(HealthCheckType, ConvertsEveryRow)
{
    EXPECT_EQ("Disabled", EHealthCheckType::ToStr(static_cast<EHealthCheckType::type>(0)));
    EXPECT_EQ("Light", EHealthCheckType::ToStr(static_cast<EHealthCheckType::type>(1)));
    EXPECT_EQ(0, static_cast<int>(EHealthCheckType::FromStr("Disabled")));
    EXPECT_EQ(1, static_cast<int>(EHealthCheckType::FromStr("Light")));
}

TEST(HealthCheckType, RefusesOtherValuesAndTexts)
{
    for (const int number : {-1, 2, 99})
        EXPECT_EQ("Unable to convert health-check type [" + std::to_string(number) + "] to string.",
                  failureText([&] { EHealthCheckType::ToStr(static_cast<EHealthCheckType::type>(number)); }));
    for (const std::string text : {"", "disabled", "LIGHT", " Light", "Full", "0"})
        EXPECT_EQ("Unable to convert string [" + text + "] to health-check type.",
                  failureText([&] { EHealthCheckType::FromStr(text); }));
}

} // namespace
