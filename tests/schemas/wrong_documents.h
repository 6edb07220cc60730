#pragma once

#include <vector>

namespace zelmodel_test
{

enum class EWrong
{
    Everywhere,   ///< neither schema takes it, nor does the reader
    WhereWritten, ///< the reader takes it, and so does the schema of what is read
};

/// A golden document that is changed in one place of its text.
struct WrongDocument
{
    const char* kind;
    const char* golden;
    const char* from; ///< the first one is changed
    const char* to;
    EWrong wrong = EWrong::Everywhere;
};

std::vector<WrongDocument> wrongDocuments();

} // namespace zelmodel_test
