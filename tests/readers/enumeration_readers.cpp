#include <algorithm>

#include <enums/sweep_case.h>

#include "reader.h"

namespace readers
{
namespace
{

// A few texts are read as values that have none.
bool hasText(const sweep::Case& enumeration, int value)
{
    const auto isOfValue = [value](const sweep::Row& row) { return row.value == value; };
    return std::any_of(enumeration.rows.begin(), enumeration.rows.end(), isOfValue);
}

std::string rewrite(const sweep::Case& enumeration, const std::string& text)
{
    const int value = enumeration.read(text);
    if (!enumeration.write)
        return std::to_string(value);
    return hasText(enumeration, value) ? enumeration.write(value) : text;
}

} // namespace

Readers enumerationReaders()
{
    Readers readers;
    for (const auto& family : {
             sweep::foundationCases(),
             sweep::jobConfigurationCases(),
             sweep::jobFilterCases(),
             sweep::keyCases(),
             sweep::repositoryCases(),
             sweep::scheduleCases(),
             sweep::sessionCases(),
         })
    {
        for (const auto& enumeration : family)
        {
            if (!enumeration.read)
                continue;
            std::vector<std::string> texts;
            for (const auto& row : enumeration.rows)
                texts.push_back(row.text);
            for (const auto& row : enumeration.readOnly)
                texts.push_back(row.text);
            readers.push_back({enumeration.name,
                               [enumeration](const std::string& text) { return rewrite(enumeration, text); },
                               std::move(texts), enumeration.write ? EWritten::ReadsBack : EWritten::Words});
        }
    }
    return readers;
}

} // namespace readers
