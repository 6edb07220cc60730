#include <zelmodel/enums/backup_object_type.h>

#include <gtest/gtest.h>

#include "support/expect_failure.h"

using namespace zelplatform::model;
using zelmodel_test::failureText;

namespace
{

struct Pair
{
    int value;
    const char* text;
    bool isCustom;
};

constexpr Pair Pairs[] = {
    {1, "VM", false},
    {0, "0", false},
    {2, "2", false},
    {-3, "-3", false},
    {99, "99", false},
    {100, "ExternalPlatformValue100", true},
    {117, "ExternalPlatformValue117", true},
    {150, "ExternalPlatformValue150", true},
    {199, "ExternalPlatformValue199", true},
    {200, "200", false},
    {4000, "4000", false},
    {2147483647, "2147483647", false},
    {-2147483647 - 1, "-2147483648", false},
};

TEST(BackupObjectTypeTest, WritesAndReadsEveryKindOfNumber)
{
    for (const auto& [value, text, isCustom] : Pairs)
    {
        SCOPED_TRACE(text);
        EXPECT_EQ(ToString(static_cast<EBObjectType>(value)), text);
        EXPECT_EQ(ParseBObjectType(text), static_cast<EBObjectType>(value));
        EXPECT_EQ(IsCustomValue(static_cast<EBObjectType>(value)), isCustom);
    }
}

TEST(BackupObjectTypeTest, ReadsBareNumbersOfNamedValues)
{
    EXPECT_EQ(ParseBObjectType("1"), VM);
    EXPECT_EQ(ParseBObjectType("117"), static_cast<EBObjectType>(117));
}

TEST(BackupObjectTypeTest, RefusesWhatIsNoNumber)
{
    const std::pair<const char*, const char*> refused[] = {
        {"ExternalPlatformValue250", "ExternalPlatformValue250"},
        {"ExternalPlatformValue99", "ExternalPlatformValue99"},
        {"ExternalPlatformValue", ""},
        {"ExternalPlatformValuex", "x"},
        {"externalplatformvalue117", "externalplatformvalue117"},
        {"vm", "vm"},
        {"", ""},
        {" 1", " 1"},
        {"2147483648", "2147483648"},
    };
    for (const auto& [text, number] : refused)
    {
        EXPECT_EQ(failureText([&, input = text] { ParseBObjectType(input); }),
                  std::string("Unable to convert string [") + text + "] to EBObjectType::type. " +
                      "Unable to convert string [" + number + "] to [int].");
    }
}

} // namespace
