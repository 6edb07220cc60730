#include <string>

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <support/answer_schemas.h>

#include "changed_answers.h"

namespace zelmodel_test
{
namespace
{

using nlohmann::json;

json changed(const json& answer, const Change& change)
{
    const json::json_pointer place(change.place);
    if (change.value == nullptr)
        return answer.patch({{{"op", "remove"}, {"path", change.place}}});
    const bool isThere = answer.contains(place);
    return answer.patch(
        {{{"op", isThere ? "replace" : "add"}, {"path", change.place}, {"value", json::parse(change.value)}}});
}

std::string tell(const Change& change)
{
    return std::string(change.place) + ": " + (change.value == nullptr ? "left out" : change.value);
}

class ChangedAnswers : public testing::TestWithParam<AnswerCase>
{
};

TEST_P(ChangedAnswers, AreTakenOrRefused)
{
    const auto& [name, schema, text, right, wrong] = GetParam();
    const auto answer = json::parse(text);
    EXPECT_EQ("", faultsOf(schema, answer));
    for (const auto& change : right)
        EXPECT_EQ("", faultsOf(schema, changed(answer, change))) << tell(change);
    for (const auto& change : wrong)
        EXPECT_FALSE(isAnswer(schema, changed(answer, change))) << tell(change);
    for (const auto* member : {"kind", "schema", "file"})
        EXPECT_FALSE(isAnswer(schema, changed(answer, {("/" + std::string(member)).c_str()}))) << member;
}

std::string nameOfCase(const testing::TestParamInfo<AnswerCase>& info)
{
    return info.param.name;
}

INSTANTIATE_TEST_SUITE_P(Told, ChangedAnswers, testing::ValuesIn(toldAnswers()), nameOfCase);
INSTANTIATE_TEST_SUITE_P(Written, ChangedAnswers, testing::ValuesIn(writtenAnswers()), nameOfCase);
INSTANTIATE_TEST_SUITE_P(Other, ChangedAnswers, testing::ValuesIn(otherAnswers()), nameOfCase);

} // namespace
} // namespace zelmodel_test
