#pragma once

#include <set>
#include <string>
#include <vector>

namespace zelmodel_test
{

/// A document that differs from another one in one place.
struct Variation
{
    std::string place; ///< "Schedule@Type" for an attribute, "RetainDays" for an element
    std::string text;
    std::string value; ///< what the place got, if it got a value
};

/// Every attribute is taken away and gets each of many values, texts of elements too; every element is taken away, gets
/// an empty one of its name before and behind it, gets an attribute, a text and an element that nobody knows, and has
/// its children the other way round. Of elements of one name the first is taken, unless the name is one of those to be
/// left alone.
std::vector<Variation> variationsOf(const std::string& text, std::set<std::string> leftAlone = {});

} // namespace zelmodel_test
