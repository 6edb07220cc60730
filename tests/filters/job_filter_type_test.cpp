#include <string>

#include <gtest/gtest.h>

#include <support/expect_failure.h>
#include <zelmodel/sessions/job_filter_type.h>

namespace
{

using zelmodel_test::failureText;
using zelplatform::model::EJobFilterType;

TEST(JobFilterType, ReadsBackWhatItWrites)
{
    for (const auto type : {EJobFilterType::Unknown, EJobFilterType::Include, EJobFilterType::Exclude})
        EXPECT_EQ(type, EJobFilterType::fromStr(EJobFilterType::toStr(type)));
}

TEST(JobFilterType, WordsForPeopleAreTheStoredOnes)
{
    EXPECT_EQ("Unknown", EJobFilterType::toUserFriendlyStr(EJobFilterType::Unknown));
    EXPECT_EQ("Include", EJobFilterType::toUserFriendlyStr(EJobFilterType::Include));
    EXPECT_EQ("Exclude", EJobFilterType::toUserFriendlyStr(EJobFilterType::Exclude));
}

TEST(JobFilterType, RefusesTextsInOtherLetters)
{
    for (const std::string text : {"include", "EXCLUDE", "unknown", "Include ", "Included", "", "1", "%1"})
        EXPECT_EQ("Cannot convert string to job filter record type: unknown record type [" + text + "]",
                  failureText([&] { EJobFilterType::fromStr(text); }));
}

TEST(JobFilterType, QuirkRefusalsEndWithoutAFullStop)
{
    EXPECT_EQ("Cannot convert job filter type to string: unknown record type [3]",
              failureText([] { EJobFilterType::toStr(static_cast<EJobFilterType::type>(3)); }));
    EXPECT_EQ("Cannot convert string to job filter record type: unknown record type [Other]",
              failureText([] { EJobFilterType::fromStr("Other"); }));
}

} // namespace
