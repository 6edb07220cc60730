#include "rotated_set.h"

#include <algorithm>
#include <cstddef>
#include <filesystem>
#include <map>
#include <string_view>
#include <system_error>
#include <utility>

#include "files/input_file.h"

namespace logs
{
namespace
{

constexpr std::string_view Compressed = ".gz";
constexpr std::size_t MostDigits = 9;

/// A name of a set: what all names of it begin with, and how often the file was rotated; 0 is the file in use.
struct RotatedName
{
    std::string base;
    unsigned long age = 0;
    bool isCompressed = false;
};

bool isDigit(char c) noexcept
{
    return c >= '0' && c <= '9';
}

RotatedName takeApart(const std::string& name)
{
    RotatedName parts{name, 0, false};
    if (name.size() > Compressed.size() &&
        name.compare(name.size() - Compressed.size(), Compressed.size(), Compressed) == 0)
    {
        parts.isCompressed = true;
        parts.base.resize(name.size() - Compressed.size());
    }
    auto start = parts.base.size();
    while (start > 0 && isDigit(parts.base[start - 1]))
        --start;
    const auto digits = parts.base.size() - start;
    if (digits == 0 || digits > MostDigits || start < 2 || parts.base[start - 1] != '.')
        return {name, 0, parts.isCompressed};
    parts.age = std::stoul(parts.base.substr(start));
    parts.base.resize(start - 1);
    return parts;
}

std::vector<std::string> namesIn(const std::filesystem::path& folder)
{
    std::vector<std::string> names;
    std::error_code error;
    std::filesystem::directory_iterator entries(folder.empty() ? "." : folder, error);
    for (; !error && entries != std::filesystem::directory_iterator(); entries.increment(error))
        names.push_back(entries->path().filename().string());
    if (error)
        throw files::InputError("cannot be read: " + error.message());
    return names;
}

} // namespace

std::vector<std::string> rotatedSetOf(const std::string& name)
{
    const std::filesystem::path path(name);
    const auto base = path.filename().string();
    const auto folder = name.substr(0, name.size() - base.size());
    std::map<unsigned long, std::string> names;
    for (const auto& entry : namesIn(path.parent_path()))
    {
        const auto parts = takeApart(entry);
        const bool isOfSet = entry == base || (parts.base == base && parts.age > 0);
        if (!isOfSet)
            continue;
        const auto [place, isNew] = names.try_emplace(parts.age, entry);
        if (!isNew && !parts.isCompressed)
            place->second = entry;
    }
    std::vector<std::string> set;
    for (auto at = names.rbegin(); at != names.rend(); ++at)
        set.push_back(folder + at->second);
    return set.empty() ? std::vector<std::string>{name} : set;
}

std::vector<std::string> oldestFirst(const std::vector<std::string>& names)
{
    struct Placed
    {
        std::size_t set; ///< where the first name of the set stood
        unsigned long age;
        std::string name;
    };
    std::map<std::string, std::size_t> sets;
    std::vector<Placed> placed;
    for (const auto& name : names)
    {
        const auto parts = takeApart(name);
        const auto set = sets.try_emplace(parts.base, sets.size()).first->second;
        placed.push_back({set, parts.age, name});
    }
    std::stable_sort(placed.begin(), placed.end(),
                     [](const auto& a, const auto& b) { return a.set != b.set ? a.set < b.set : a.age > b.age; });
    std::vector<std::string> sorted;
    sorted.reserve(placed.size());
    for (auto& file : placed)
        sorted.push_back(std::move(file.name));
    return sorted;
}

} // namespace logs
