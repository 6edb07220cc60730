#include <map>
#include <set>

#include <gtest/gtest.h>

#include <schemas/answer.h>
#include <support/answer_schemas.h>

#include "samples.h"

namespace zelmodel_test
{
namespace
{

using nlohmann::json;
using Pointer = json::json_pointer;

/// The places of everything in the answer, the whole of it included.
void addPlaces(const json& value, const Pointer& place, std::vector<Pointer>& places)
{
    places.push_back(place);
    if (!value.is_structured())
        return;
    for (const auto& [key, member] : value.items())
        addPlaces(member, value.is_array() ? place / std::stoul(key) : place / key, places);
}

/// Calls the function with each sample, each of its answers and each place in it.
template <class TCheck>
void atEveryPlace(const TCheck& check)
{
    for (const auto& sample : samples())
    {
        for (const auto& answer : answersOf(sample))
        {
            std::vector<Pointer> places;
            addPlaces(answer, Pointer(), places);
            for (const auto& place : places)
                check(sample, answer, place);
        }
    }
}

void expectRefused(const Sample& sample, const json& changed, const std::string& what)
{
    EXPECT_FALSE(isAnswer(sample.schema, changed)) << testing::PrintToString(sample.call) << ": " << what;
}

TEST(WrongAnswers, OfAnotherVersionKindOrFile)
{
    const std::pair<const char*, json> members[] = {{"schema", 2},     {"schema", 0}, {"schema", "1"},
                                                    {"kind", "other"}, {"kind", 1},   {"file", json::array()}};
    for (const auto& sample : samples())
    {
        for (const auto& answer : answersOf(sample))
        {
            for (const auto& [member, value] : members)
            {
                auto changed = answer;
                changed[member] = value;
                expectRefused(sample, changed, member + value.dump());
            }
        }
    }
}

// A field that is no field is no field of a tree either.
TEST(WrongAnswers, WithAMemberThatNobodyKnows)
{
    atEveryPlace([](const Sample& sample, const json& answer, const Pointer& place) {
        if (!answer[place].is_object())
            return;
        auto changed = answer;
        changed[place]["noSuchMember"] = 1;
        expectRefused(sample, changed, place.to_string());
    });
}

// No answer holds a fraction.
TEST(WrongAnswers, WithAValueOfAnotherType)
{
    atEveryPlace([](const Sample& sample, const json& answer, const Pointer& place) {
        auto changed = answer;
        changed[place] = 1.5;
        expectRefused(sample, changed, place.to_string());
    });
}

/// What may be missing from answers, in words: the fields of a tree are "a field".
using Optional = std::set<std::string>;

// A place has more members when its neighbours need them: a line without the name that it was read from is refused.
TEST(WrongAnswers, WithoutAMember)
{
    const std::map<std::string, Optional> expected{
        {"calendar", {"backupWindow", "months", "a field", "default"}},
        {"check", {"line", "refused"}},
        {"completion", {}},
        {"convert", {"enclosing"}},
        {"diff", {"sharedPart", "a field", "value", "default", "fields"}},
        {"dump", {"document", "secret", "a field", "value", "fields"}},
        {"error", {"line", "a field"}},
        {"explain", {}},
        {"log", {"skipped", "errors"}},
        {"log-lines", {}},
        {"man", {}},
        {"new", {}},
        {"next", {}},
        {"schema", {}},
        {"set", {"a field", "value", "fields"}},
        {"show", {"a field", "value", "default", "secret", "olderForm", "notCarried", "fields"}},
        {"why", {"a field", "default", "olderForm", "fields"}},
    };
    std::map<std::string, Optional> found;
    for (const auto& name : schemas::answers())
        found[name];
    atEveryPlace([&found](const Sample& sample, const json& answer, const Pointer& place) {
        if (place.empty() || answer[place.parent_pointer()].is_array())
            return;
        auto changed = answer;
        changed[place.parent_pointer()].erase(place.back());
        if (!isAnswer(sample.schema, changed))
            return;
        const auto parent = place.parent_pointer();
        found[sample.schema].insert(!parent.empty() && parent.back() == "fields" ? "a field" : place.back());
    });
    EXPECT_EQ(expected, found);
}

} // namespace
} // namespace zelmodel_test
