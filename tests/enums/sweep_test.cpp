#include "sweep_case.h"

#include <algorithm>
#include <cctype>
#include <ostream>
#include <set>

#include <gtest/gtest.h>

#include <zelplatform/exc/exc.h>

#include "support/expect_failure.h"

namespace sweep
{

void PrintTo(const Case& sweepCase, std::ostream* out)
{
    *out << sweepCase.name;
}

namespace
{

using zelmodel_test::failureText;

std::vector<Case> allCases()
{
    std::vector<Case> all;
    for (const auto& family : {
             foundationCases(),
             jobConfigurationCases(),
             jobFilterCases(),
             keyCases(),
             repositoryCases(),
             scheduleCases(),
             sessionCases(),
         })
        all.insert(all.end(), family.begin(), family.end());
    return all;
}

std::string filled(std::string chain, const std::string& word)
{
    for (auto at = chain.find("%1"); at != std::string::npos; at = chain.find("%1", at + word.size()))
        chain.replace(at, 2, word);
    return chain;
}

std::string recased(std::string text, int (*convert)(int))
{
    for (auto& c : text)
        c = static_cast<char>(convert(static_cast<unsigned char>(c)));
    return text;
}

std::vector<Row> readRows(const Case& sweepCase)
{
    auto rows = sweepCase.rows;
    rows.insert(rows.end(), sweepCase.readOnly.begin(), sweepCase.readOnly.end());
    return rows;
}

class SweepTest : public testing::TestWithParam<Case>
{
protected:
    void expectRefused(const std::string& text)
    {
        EXPECT_EQ(failureText([&] { GetParam().read(text); }), filled(GetParam().unknownText, text));
    }
};

TEST_P(SweepTest, WritesEveryNumberOrRefusesIt)
{
    const auto& sweepCase = GetParam();
    int last = 0;
    for (const auto& row : readRows(sweepCase))
        last = std::max(last, row.value);

    for (int value = sweepCase.first; sweepCase.write && value <= last + 1; ++value)
    {
        SCOPED_TRACE(value);
        const auto row = std::find_if(sweepCase.rows.begin(), sweepCase.rows.end(),
                                      [&](const Row& candidate) { return candidate.value == value; });
        if (row != sweepCase.rows.end())
            EXPECT_EQ(sweepCase.write(value), row->text);
        else if (!sweepCase.textOfOthers.empty())
            EXPECT_EQ(sweepCase.write(value), filled(sweepCase.textOfOthers, std::to_string(value)));
        else
            EXPECT_EQ(failureText([&] { sweepCase.write(value); }),
                      filled(sweepCase.unknownValue, std::to_string(value)));
    }
}

TEST_P(SweepTest, ReadsEveryTextInItsLetters)
{
    const auto& sweepCase = GetParam();
    if (!sweepCase.read)
    {
        EXPECT_TRUE(sweepCase.unknownText.empty());
        EXPECT_TRUE(sweepCase.readOnly.empty());
        return;
    }

    for (const auto& row : readRows(sweepCase))
    {
        SCOPED_TRACE(row.text);
        EXPECT_EQ(sweepCase.read(row.text), row.value);
        for (const auto& other : {recased(row.text, std::tolower), recased(row.text, std::toupper)})
        {
            if (sweepCase.letters == Letters::Any || other == row.text)
                EXPECT_EQ(sweepCase.read(other), row.value);
            else
                expectRefused(other);
        }
    }
}

TEST_P(SweepTest, RefusesEveryOtherText)
{
    const auto& sweepCase = GetParam();
    if (!sweepCase.read)
        return;

    std::set<std::string> known;
    for (const auto& row : readRows(sweepCase))
        known.insert(recased(row.text, std::tolower));

    std::set<std::string> others{"", " ", "Nonsense", "-1", "0", "7"};
    for (const auto& row : readRows(sweepCase))
    {
        others.insert({row.text + " ", " " + row.text, row.text + "x", row.text.substr(1),
                       row.text.substr(0, row.text.size() - 1)});
        EXPECT_THROW(sweepCase.read(row.text + '\0'), exc::CRuntimeExc) << row.text;
    }
    for (const auto& text : others)
    {
        if (known.count(recased(text, std::tolower)) == 0)
            expectRefused(text);
    }
    EXPECT_EQ(failureText([&] { sweepCase.read("a%2b"); }), filled(sweepCase.unknownText, "a%2b"));
}

INSTANTIATE_TEST_SUITE_P(Enums, SweepTest, testing::ValuesIn(allCases()),
                         [](const testing::TestParamInfo<Case>& caseInfo) { return caseInfo.param.name; });

} // namespace
} // namespace sweep
