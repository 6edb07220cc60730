#include <cctype>
#include <filesystem>
#include <regex>
#include <set>
#include <string>

#include <gtest/gtest.h>

#include "markdown.h"

using namespace zelmodel_test;

namespace
{

constexpr const char* Pages[] = {"README.md",      "docs/design.md",   "docs/formats.md",
                                 "docs/python.md", "docs/security.md", "docs/testing.md"};

/// The name by which a heading is linked: small letters, blanks as hyphens, no other marks.
std::string anchorOf(const std::string& heading)
{
    std::string anchor;
    for (const char c : heading)
    {
        if (std::isalnum(static_cast<unsigned char>(c)) != 0)
            anchor.push_back(static_cast<char>(std::tolower(static_cast<unsigned char>(c))));
        else if (c == ' ' || c == '-')
            anchor.push_back('-');
    }
    return anchor;
}

std::set<std::string> anchorsIn(const std::string& page)
{
    std::set<std::string> anchors;
    std::smatch found;
    for (const auto& part : partsOf(page))
    {
        if (part.kind == EPart::Paragraph && std::regex_match(part.text, found, std::regex("#+ (.*)")))
            anchors.insert(anchorOf(found[1]));
    }
    return anchors;
}

bool isThere(const std::filesystem::path& path)
{
    return std::filesystem::exists(std::filesystem::path(ZELMODEL_EXAMPLES_DIR) / ".." / path);
}

std::string allTextOf(const std::string& page)
{
    std::string text;
    for (const auto& part : partsOf(page))
    {
        if (part.kind == EPart::Paragraph)
            text += part.text + '\n';
        for (const auto& row : part.rows)
        {
            for (const auto& cell : row)
                text += cell + '\n';
        }
    }
    return text;
}

} // namespace

TEST(Links, LeadSomewhere)
{
    int count = 0;
    for (const std::string page : Pages)
    {
        const auto text = allTextOf(page);
        const std::regex link(R"(\]\(([^)#]*)#?([^)]*)\))");
        for (std::sregex_iterator at(text.begin(), text.end(), link), end; at != end; ++at, ++count)
        {
            const auto folder = std::filesystem::path(page).parent_path();
            const auto target = (*at)[1].length() == 0 ? std::filesystem::path(page) : folder / (*at)[1].str();
            EXPECT_TRUE(isThere(target)) << page << ": " << at->str();
            if ((*at)[2].length() != 0)
            {
                EXPECT_EQ(anchorsIn(target.lexically_normal().string()).count((*at)[2]), 1U)
                    << page << ": " << at->str();
            }
        }
    }
    EXPECT_GE(count, 20);
}

TEST(Links, PathsInTheTextAreThere)
{
    const std::regex path(R"((model|platform|include|tools|tests|scripts|cmake|docs|examples|bench)/[\w./-]*)");
    int count = 0;
    for (const std::string page : Pages)
    {
        for (const auto& code : codesOf(allTextOf(page)))
        {
            if (!std::regex_match(code, path))
                continue;
            EXPECT_TRUE(isThere(code)) << page << ": " << code;
            ++count;
        }
    }
    EXPECT_GE(count, 20);
}
