#include "accepted_values.h"

#include <algorithm>

#include <zelplatform/datetime/names.h>
#include <zelplatform/util/util.h>

#include "describe/document_names.h"
#include "describe/nearest_name.h"

namespace check
{
namespace
{

using Values = std::vector<std::optional<std::string>>;

/// Values that keep the meaning of what stands around them.
struct FittingRow
{
    const char* name;
    std::optional<const char*> value;
};

constexpr FittingRow FittingValues[] = {
    // A calendar without a type is told by its other fields.
    {describe::schedule_names::Type, std::nullopt}, {describe::schedule_names::Version, "3"},
    {describe::schedule_names::Version, "2"},       {describe::job_names::MaxPoints, "7"},
    {describe::job_names::RetainCycles, "7"},       {describe::job_names::CompressionLevel, "5"},
};

/// One stored word of each table first, the others behind them.
constexpr const char* Words[] = {"Every",
                                 "IndexAll",
                                 "Cycles",
                                 "Lz4",
                                 "KbBlockSize1024",
                                 "Hybrid",
                                 "Disabled",
                                 "password",
                                 "Full",
                                 "ENone",
                                 "First",
                                 "Second",
                                 "Third",
                                 "Fourth",
                                 "Last",
                                 "IsOff",
                                 "IndexOnly",
                                 "IndexExcept",
                                 "Days",
                                 "NoCompression",
                                 "Rle",
                                 "Zstd3",
                                 "Zstd9",
                                 "KbBlockSize256",
                                 "KbBlockSize512",
                                 "KbBlockSize2048",
                                 "KbBlockSize4096",
                                 "KbBlockSize8192",
                                 "NoSnapshot",
                                 "SnapshotRequired",
                                 "ByAge",
                                 "BySize",
                                 "file",
                                 "peer",
                                 "Syntethic",
                                 "Increment",
                                 "Different",
                                 "Transform",
                                 "TransformForeverIncremental",
                                 "ESucceeded",
                                 "EWarning",
                                 "EFailed"};

constexpr std::size_t FirstWords = 10;

constexpr const char* PlainValues[] = {"true", "1", "0", "01/01/2024 00:00:00", "00000000-0000-0000-0000-000000000000",
                                       ""};

std::string leadingNumber(const std::string& text)
{
    const auto end = text.find_first_not_of("0123456789", text.find_first_not_of("+-"));
    return text.substr(0, end);
}

// "no" most likely means false, "14x" 14, "fifth" the nearest word that is stored.
void addGuesses(const std::string& refused, Values& values)
{
    const auto text = util::str_trim(refused);
    const auto lowered = util::tolower(text);
    if (text != refused)
        values.emplace_back(text);
    if (lowered == "no" || lowered == "off" || lowered == "n")
        values.emplace_back("false");
    const auto number = leadingNumber(text);
    if (!number.empty() && number != refused)
        values.emplace_back(number);
    const auto word = describe::nearestName(text, {std::begin(Words), std::end(Words)});
    if (!word.empty())
        values.emplace_back(word);
}

bool isDayOrMonth(const std::string& name)
{
    const auto holds = [&](const std::vector<std::string>& names) {
        return std::find(names.begin(), names.end(), name) != names.end();
    };
    return holds(datetime::EDayOfWeek::GetLongStrSet()) || holds(datetime::EMonth::GetLongStrSet());
}

} // namespace

Values valuesToTry(const std::string& name, const std::string& refused)
{
    Values values;
    addGuesses(refused, values);
    // A day or month that is not mentioned was hardly chosen.
    if (refused.empty() && isDayOrMonth(name))
        values.emplace_back("false");
    for (const auto& row : FittingValues)
    {
        if (name == row.name)
            values.push_back(row.value ? std::optional<std::string>(*row.value) : std::nullopt);
    }
    values.insert(values.end(), std::begin(PlainValues), std::end(PlainValues));
    values.insert(values.end(), std::begin(Words), std::begin(Words) + FirstWords);
    values.emplace_back(std::nullopt);
    return values;
}

std::vector<std::string> namesToTry(const std::string& refused)
{
    auto days = datetime::EDayOfWeek::GetLongStrSet();
    const auto nearest = describe::nearestName(refused, days);
    if (!nearest.empty())
        days.insert(days.begin(), nearest);
    return days;
}

} // namespace check
