#pragma once

#include <ostream>
#include <vector>

namespace zelmodel_test
{

/// A member that gets another value, or is left out when there is none.
struct Change
{
    const char* place;
    const char* value = nullptr;
};

/// A right answer, and changes that make a right or a wrong one of it.
struct AnswerCase
{
    const char* name;
    const char* schema;
    const char* answer;
    std::vector<Change> right;
    std::vector<Change> wrong;

    friend void PrintTo(const AnswerCase& shown, std::ostream* out) { *out << shown.name; }
};

/// Of what tells documents and schedules.
const std::vector<AnswerCase>& toldAnswers();

/// Of what writes documents.
const std::vector<AnswerCase>& writtenAnswers();

/// Of binary forms, logs, texts and errors.
const std::vector<AnswerCase>& otherAnswers();

} // namespace zelmodel_test
