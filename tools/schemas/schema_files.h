#pragma once

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

} // namespace schemas
