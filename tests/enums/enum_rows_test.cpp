#include "detail/enum_rows.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include <gtest/gtest.h>

using namespace zelplatform::model::detail;

namespace
{

enum class EColour : int
{
    Red,
    Green,
    Blue,
};

// "Crimson" is an alias that is only read, "Leaf" a name that is only written.
constexpr auto Colours = enumRows<EColour>({
    {EColour::Red, "Crimson", ERowUse::ReadOnly},
    {EColour::Red, "Red"},
    {EColour::Green, "Leaf", ERowUse::WriteOnly},
    {EColour::Blue, "Blue"},
});

std::optional<std::string> written(EColour value)
{
    const auto* text = findText(Colours, value);
    return text != nullptr ? std::optional<std::string>(*text) : std::nullopt;
}

std::optional<EColour> read(std::string_view text)
{
    const auto* value = findValue(Colours, text);
    return value != nullptr ? std::optional(*value) : std::nullopt;
}

std::optional<EColour> readIgnoringCase(std::string_view text)
{
    const auto* value = findValueIgnoringCase(Colours, text);
    return value != nullptr ? std::optional(*value) : std::nullopt;
}

} // namespace

TEST(EnumRowsTest, AnAliasIsNeverWritten)
{
    EXPECT_EQ("Red", written(EColour::Red));
    EXPECT_EQ("Leaf", written(EColour::Green));
    EXPECT_EQ("Blue", written(EColour::Blue));
    EXPECT_EQ(std::nullopt, written(static_cast<EColour>(3)));
    EXPECT_EQ((std::vector<std::string>{"Red", "Leaf", "Blue"}), listTexts(Colours));
}

TEST(EnumRowsTest, ANameThatIsOnlyWrittenIsNeverRead)
{
    const struct
    {
        const char* text;
        std::optional<EColour> exactly;
        std::optional<EColour> inAnyCase;
    } rows[] = {
        {"Red", EColour::Red, EColour::Red},     {"Crimson", EColour::Red, EColour::Red},
        {"cRIMSON", std::nullopt, EColour::Red}, {"blue", std::nullopt, EColour::Blue},
        {"Leaf", std::nullopt, std::nullopt},    {"leaf", std::nullopt, std::nullopt},
        {"Blu", std::nullopt, std::nullopt},     {"", std::nullopt, std::nullopt},
    };
    for (const auto& row : rows)
    {
        EXPECT_EQ(row.exactly, read(row.text)) << row.text;
        EXPECT_EQ(row.inAnyCase, readIgnoringCase(row.text)) << row.text;
    }
}
