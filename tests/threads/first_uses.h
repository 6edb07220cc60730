#pragma once

#include <ostream>
#include <string>
#include <vector>

namespace zelmodel_test
{

/// Something that is made when it is asked for first, and what it tells then and ever after.
struct FirstUse
{
    const char* name;
    std::string (*ask)();
    std::string expected;

    /// What takes long is repeated in one of so many rounds.
    int cost = 1;
};

inline void PrintTo(const FirstUse& use, std::ostream* out)
{
    *out << use.name;
}

/// Everything of the two libraries that is made on first use: each table, and what others below them make.
const std::vector<FirstUse>& firstUses();

} // namespace zelmodel_test
