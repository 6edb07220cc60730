#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace schemas
{

/// A file of the project's folder of schemas, as it was when the command was built.
struct SchemaFile
{
    std::string_view path; ///< below that folder
    std::string_view text;
};

/// All of them, sorted by their paths. The table is made by the build.
const std::vector<SchemaFile>& schemaFiles();

/// The text of the file; throws std::out_of_range when there is none of the path.
std::string_view textOf(const std::string& path);

/// The names of the files in a folder, "" or "parts/", without the suffix that they have; sorted.
std::vector<std::string> namesIn(std::string_view folder, std::string_view suffix);

} // namespace schemas
