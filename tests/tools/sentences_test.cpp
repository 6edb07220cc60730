#include "describe/sentences.h"

#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace
{

using Texts = std::vector<std::string>;

struct SentencesCase
{
    Texts trace;
    Texts sentences;
};

TEST(Sentences, OneForEachContext)
{
    const SentencesCase cases[] = {
        {{}, {}},
        {{"Bad time pair string."}, {"Bad time pair string."}},
        {{"Outer: Failed.", "Unknown version: [4]."}, {"Outer: Failed.", "Unknown version: [4]."}},
        {{"Outer: Failed.", "Inner: Failed. Unknown version: [4]."},
         {"Outer: Failed.", "Inner: Failed.", "Unknown version: [4]."}},
        // Values in brackets stay whole, nested brackets included.
        {{"Failed. Unable to read [a. B] or [x[y. Z]. W]. End."},
         {"Failed.", "Unable to read [a. B] or [x[y. Z]. W].", "End."}},
        // A bracket that never closes may belong to a value: nothing is taken apart after it.
        {{"Failed. Value [a. B. C."}, {"Failed.", "Value [a. B. C."}},
        {{"A] b. C."}, {"A] b.", "C."}},
        // No full stop, no capital letter, or no blank: one sentence.
        {{"Failed to set time Failed to validate."}, {"Failed to set time Failed to validate."}},
        {{"Number 1.5 of e. g. this"}, {"Number 1.5 of e. g. this"}},
        {{"Ends with a blank. "}, {"Ends with a blank. "}},
    };
    for (const auto& expected : cases)
        EXPECT_EQ(describe::sentencesOf(expected.trace), expected.sentences);
}

} // namespace
