#include <gtest/gtest.h>

#include "edit/new_options.h"

namespace
{

using describe::EDocumentKind;

TEST(NewOptionWords, AreTakenAndStandInTheHelp)
{
    int count = 0;
    for (const auto kind : {EDocumentKind::AgentJobOptions, EDocumentKind::ScheduleOptions,
                            EDocumentKind::ScheduleWindow, EDocumentKind::GfsPolicy})
    {
        for (const auto& option : edit::newOptions(kind))
        {
            for (const auto& word : option.words)
            {
                auto record = edit::newRecord(kind);
                for (const auto& assignment : option.assignments(word))
                    EXPECT_NO_THROW(edit::setField(record, assignment)) << option.name << ' ' << word;
                EXPECT_NE(option.help.find(word), std::string::npos) << option.name << ' ' << word;
                ++count;
            }
        }
    }
    EXPECT_EQ(count, 16);
}

} // namespace
