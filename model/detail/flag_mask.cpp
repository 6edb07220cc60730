#include "detail/flag_mask.h"

#include <algorithm>

namespace zelplatform::model::detail
{

std::vector<std::string> namesOfFlags(const std::vector<bool>& mask, const std::vector<std::string>& names)
{
    std::vector<std::string> result;
    for (std::size_t i = 0; i < std::max(mask.size(), names.size()); ++i)
    {
        if (mask.at(i))
            result.push_back(names.at(i));
    }
    return result;
}

bool areAllFlags(const std::vector<bool>& mask, bool value) noexcept
{
    return std::all_of(mask.begin(), mask.end(), [value](bool flag) { return flag == value; });
}

} // namespace zelplatform::model::detail
