#include <algorithm>
#include <stdexcept>

#include "schemas/schema_files.h"

namespace schemas
{

std::string_view textOf(const std::string& path)
{
    const auto& files = schemaFiles();
    const auto found = std::find_if(files.begin(), files.end(), [&](const auto& file) { return file.path == path; });
    if (found == files.end())
        throw std::out_of_range("There is no schema " + path + '.');
    return found->text;
}

std::vector<std::string> namesIn(std::string_view folder, std::string_view suffix)
{
    std::vector<std::string> names;
    for (const auto& file : schemaFiles())
    {
        const auto begin = file.path.rfind('/') + 1; // 0 when there is no folder
        const auto end = file.path.rfind('.');
        if (file.path.substr(0, begin) == folder && file.path.substr(end) == suffix)
            names.emplace_back(file.path.substr(begin, end - begin));
    }
    std::sort(names.begin(), names.end()); // not as with their suffixes: "log" before "log-lines"
    return names;
}

} // namespace schemas
