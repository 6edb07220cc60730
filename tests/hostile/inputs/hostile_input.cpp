#include "hostile_input.h"

#include <exception>
#include <utility>

namespace zelmodel_test
{

std::vector<HostileInput> hostileInputs()
{
    std::vector<HostileInput> all;
    for (const auto family : {hostileMarkup, hostileValues, hostileForms, hostileLogs})
    {
        for (auto& input : family())
            all.push_back(std::move(input));
    }
    return all;
}

std::string repeated(const std::string& piece, std::size_t size)
{
    std::string text;
    text.reserve(size);
    while (text.size() + piece.size() <= size)
        text += piece;
    return text;
}

std::function<void(const std::string&)> takingOrRefusing(std::function<void(const std::string&)> action)
{
    return [action = std::move(action)](const std::string& input) {
        try
        {
            action(input);
        }
        catch (const std::exception&)
        {
        }
    };
}

} // namespace zelmodel_test
