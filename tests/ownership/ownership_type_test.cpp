#include <string>

#include <gtest/gtest.h>

#include <support/expect_failure.h>
#include <zelmodel/structs/ownership_type.h>

namespace
{

using zelmodel_test::failureText;
using zelplatform::model::structs::EOwnershipType;

TEST(OwnershipType, ReadsNamesInAnyLetters)
{
    for (const char* text : {"noowner", "NOOWNER", "NoOwner", "nOoWnEr"})
        EXPECT_EQ(EOwnershipType::NoOwner, EOwnershipType::FromStr(text)) << text;
    for (const char* text : {"qor", "QOR", "Qor"})
        EXPECT_EQ(EOwnershipType::QOR, EOwnershipType::FromStr(text)) << text;
    for (const char* text : {"pel", "PEL", "pEL"})
        EXPECT_EQ(EOwnershipType::PEL, EOwnershipType::FromStr(text)) << text;
}

TEST(OwnershipType, RefusalKeepsTheSpellingOfTheCaller)
{
    for (const std::string text : {"", "QoR ", "No Owner", "Not set", "Backup server", "QOR.Job", "1", "%2"})
        EXPECT_EQ("Unable to convert string [" + text + "] to EOwnershipType::type.",
                  failureText([&] { EOwnershipType::FromStr(text); }));
}

TEST(OwnershipType, WordsForPeopleAreNotRead)
{
    for (const auto type : {EOwnershipType::NoOwner, EOwnershipType::QOR, EOwnershipType::PEL})
    {
        const std::string words = EOwnershipType::ToFriendlyName(type);
        EXPECT_NE("", failureText([&] { EOwnershipType::FromStr(words); })) << words;
    }
}

} // namespace
