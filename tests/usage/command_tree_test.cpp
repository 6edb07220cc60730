#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "made_tree.h"

namespace
{

using zelmodel_test::madeTree;

std::vector<std::string> lastNames(const std::vector<usage::Option>& options)
{
    std::vector<std::string> names;
    for (const auto& option : options)
        names.push_back(option.names.back());
    return names;
}

using Names = std::vector<std::string>;

TEST(Places, EachCommandWithTheOptionsThatItTakes)
{
    const auto tree = madeTree();
    const auto places = usage::placesOf(tree);
    const std::vector<std::pair<std::string, Names>> expected{{"", {"--help", "--version"}},
                                                              {"put", {"--help", "--out", "--dry"}},
                                                              {"go", {"--help", "--at"}},
                                                              {"go far", {"--level", "--help", "--at"}}};
    ASSERT_EQ(places.size(), expected.size());
    for (std::size_t i = 0; i < places.size(); ++i)
    {
        EXPECT_EQ(places[i].path, expected[i].first);
        EXPECT_EQ(lastNames(places[i].options), expected[i].second) << places[i].path;
    }
}

TEST(Places, AnOptionOfTheCommandHidesTheOneAbove)
{
    auto tree = madeTree();
    tree.commands[1].commands[0].options.push_back({{"-h", "--help"}, "", "Other help"});
    const auto places = usage::placesOf(tree);
    EXPECT_EQ(lastNames(places.back().options), (Names{"--level", "--help", "--at"}));
    EXPECT_EQ(places.back().options[1].description, "Other help");
}

TEST(CommonOptions, AreThoseOfEveryCommandBelowTheProgram)
{
    auto tree = madeTree();
    EXPECT_EQ(lastNames(usage::commonOptions(tree)), Names{"--help"});
    tree.commands[1].options.erase(tree.commands[1].options.begin());
    EXPECT_EQ(lastNames(usage::commonOptions(tree)), Names{});
    EXPECT_EQ(lastNames(usage::commonOptions({"lone", "Alone", {{{"--help"}, "", "Help"}}})), Names{});
}

} // namespace
