#pragma once

#include <functional>
#include <string>
#include <vector>

namespace sweep
{

struct Row
{
    int value;
    std::string text;
};

/// In which letter case a text is read.
enum class Letters
{
    Exact,
    Any,
};

/// One conversion of an enumeration, or a pair of conversions. The sweep walks first ... last + 1.
struct Case
{
    std::string name;
    std::function<std::string(int)> write;       ///< empty: the texts are only read
    std::function<int(const std::string&)> read; ///< empty: the texts are never read back
    Letters letters;                             ///< of read
    std::vector<Row> rows;                       ///< both ways
    std::vector<Row> readOnly;                   ///< aliases and names that are not written
    std::string unknownValue;                    ///< the whole chain; %1 stands for the number
    std::string unknownText;                     ///< the whole chain; %1 stands for the text
    int first = -1;                              ///< 0 for numbers without a sign
    std::string textOfOthers = {};               ///< of numbers without a row, where none is refused; %1 as above
};

template <class TEnum>
std::function<std::string(int)> writer(std::string (*convert)(TEnum))
{
    return [convert](int value) { return convert(static_cast<TEnum>(value)); };
}

template <class TEnum>
std::function<int(const std::string&)> reader(TEnum (*convert)(const std::string&))
{
    return [convert](const std::string& text) { return static_cast<int>(convert(text)); };
}

/// The enumerations of model/enums and model/size.
std::vector<Case> foundationCases();

/// Compression, retention, indexing, GFS flags and tracking, ownership, application processing.
std::vector<Case> jobConfigurationCases();

/// What a job's scope is made of.
std::vector<Case> jobFilterCases();

/// Algorithms and types of keys. Numberings of other programs are swept as texts of their numbers.
std::vector<Case> keyCases();

/// Repositories and object storages.
std::vector<Case> repositoryCases();

/// Which week day of a month a schedule means.
std::vector<Case> scheduleCases();

/// The severities of session logs.
std::vector<Case> sessionCases();

} // namespace sweep
