#include "command_tree.h"

#include <algorithm>

namespace usage
{
namespace
{

void addPlaces(std::vector<Place>& places, const std::string& path, const Command& command,
               const std::vector<Option>& above)
{
    Place place{path, &command, command.options};
    if (command.takesOptionsAbove)
        std::copy_if(above.begin(), above.end(), std::back_inserter(place.options),
                     [&place](const Option& option) { return !hasOption(place.options, option); });
    const auto options = place.options;
    places.push_back(std::move(place));
    for (const auto& below : command.commands)
        addPlaces(places, path.empty() ? below.name : path + ' ' + below.name, below, options);
}

} // namespace

bool takesFile(const Option& option)
{
    return option.value == "FILE";
}

std::vector<Place> placesOf(const Command& program)
{
    std::vector<Place> places;
    addPlaces(places, {}, program, {});
    return places;
}

std::vector<Option> commonOptions(const Command& program)
{
    std::vector<Option> common;
    if (!program.commands.empty())
        common = program.commands.front().options;
    common.erase(std::remove_if(common.begin(), common.end(),
                                [&program](const Option& option) {
                                    return !std::all_of(program.commands.begin(), program.commands.end(),
                                                        [&option](const Command& command) {
                                                            return hasOption(command.options, option);
                                                        });
                                }),
                 common.end());
    return common;
}

bool hasOption(const std::vector<Option>& options, const Option& option)
{
    return std::any_of(options.begin(), options.end(),
                       [&option](const Option& one) { return one.names.back() == option.names.back(); });
}

} // namespace usage
