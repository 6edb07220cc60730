#pragma once

#include <string>
#include <vector>

namespace schemas
{

/// What a schema of a kind of document says, and in which language.
enum class ESchema
{
    Written, ///< XSD: the document as the library writes it
    Read     ///< RELAX NG: the document as the library reads it, older layouts and unknown parts included
};

/// The kinds of documents that have schemas, sorted: "backup-window", "gfs-policy" and so on.
std::vector<std::string> kinds();

/// The schema of the kind as one text that needs no other file. A kind that is none throws std::out_of_range.
std::string schemaOf(const std::string& kind, ESchema which);

} // namespace schemas
