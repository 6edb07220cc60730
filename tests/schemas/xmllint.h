#pragma once

#include <string>
#include <vector>

namespace zelmodel_test
{

/// What xmllint says of a document.
struct Verdict
{
    bool isValid = false;
    std::string messages; ///< why it is not
};

/// Lets one run of xmllint judge all documents by the schema, an XSD or a RELAX NG schema by the ending of its name.
/// Throws std::runtime_error when there is no xmllint, when the schema is none, and for a text that is no XML.
std::vector<Verdict> judge(const std::string& schema, const std::vector<std::string>& texts);

} // namespace zelmodel_test
