#include <functional>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include <zelmodel/data_size.h>
#include <zelmodel/sessions/job_session_progress_details.h>

#include "failing_new.h"

namespace zelmodel_test
{
namespace
{

using zelplatform::CSize;
using zelplatform::model::SJobSessionProgressDetails;

/// A conversion that no value makes fail: only memory can.
struct Conversion
{
    std::string sentence; ///< what the failure begins with
    std::function<void()> run;
};

/// What the conversion says when its allocations fail one after the other, each in a run of its own.
std::vector<std::string> failuresOf(const Conversion& conversion)
{
    std::vector<std::string> failures;
    for (bool hasFailed = true; hasFailed;)
    {
        const FailingNew failing(EFailure::One, failures.size());
        std::string failure;
        try
        {
            conversion.run();
        }
        catch (const std::exception& error)
        {
            failure = error.what();
        }
        hasFailed = FailingNew::hasFailed();
        if (hasFailed)
            failures.push_back(failure);
    }
    return failures;
}

void expectSentence(const std::string& sentence, const std::vector<std::string>& failures)
{
    EXPECT_FALSE(failures.empty()) << sentence;
    for (const auto& failure : failures)
    {
        EXPECT_EQ(failure.rfind(sentence, 0), 0U) << sentence << ": " << failure;
        EXPECT_NE(failure.find("std::bad_alloc"), std::string::npos) << failure;
    }
}

void expectFailures(const Conversion& conversion)
{
    expectSentence(conversion.sentence, failuresOf(conversion));
}

TEST(FailingConversion, OfTheEmptyProgressDocumentIsTold)
{
    // It is built at the first use, again after a failure, and once in a process.
    [[maybe_unused]] static const bool isBuilt = [] {
        const std::string sentence = "Failed to create empty xml. ";
        auto failures = failuresOf({sentence, [] { SJobSessionProgressDetails::CreateEmptyXml(); }});
        // The copy that is handed out is no part of building it.
        EXPECT_EQ("std::bad_alloc", failures.at(failures.size() - 1));
        failures.pop_back();
        expectSentence(sentence, failures);
        return true;
    }();
    EXPECT_EQ(SJobSessionProgressDetails().ToXml(), SJobSessionProgressDetails::CreateEmptyXml());
}

TEST(FailingConversion, OfASizeIntoWordsIsTold)
{
    // One byte more than a terabyte takes all digits.
    const CSize size((1UL << 40U) + 1);
    expectFailures({"CSize: Failed to convert to NBytes string. ", [&] { size.ToNBytesStr(); }});
    expectFailures({"CSize: Failed to convert to user-friendly string. ", [&] { size.ToStr(5, true); }});
}

} // namespace
} // namespace zelmodel_test
