#pragma once

#include <string>

#include <gtest/gtest.h>

#include <readers/outcome.h>

namespace zelmodel_test
{

/// A test of every way in which outside input reaches the library.
class EveryReader : public testing::TestWithParam<std::size_t>
{
protected:
    const readers::Reader& reader() const { return readers::all()[GetParam()]; }
};

inline auto everyReader()
{
    return testing::Range<std::size_t>(0, readers::all().size());
}

/// The reader's name as gtest takes names.
inline std::string readerName(const testing::TestParamInfo<std::size_t>& info)
{
    std::string name = readers::all()[info.param].name;
    for (auto& c : name)
        c = c == '.' ? '_' : c;
    return name;
}

} // namespace zelmodel_test
