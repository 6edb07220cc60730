#include <string>

#include <gtest/gtest.h>

#include "describe/terminal_text.h"

namespace
{

using describe::printable;
using describe::shortened;
using namespace std::string_literals;

struct PrintableCase
{
    std::string text;
    std::string shown;
};

TEST(Printable, EscapesWhatActsOnTerminals)
{
    const PrintableCase cases[] = {
        PrintableCase{"", ""}, PrintableCase{"plain [text] 100%", "plain [text] 100%"},
        PrintableCase{"a\nb\rc\td", "a\\nb\\rc\\td"}, PrintableCase{"\x1b[31mred", "\\x1b[31mred"},
        PrintableCase{"nul\0end"s, "nul\\x00end"}, PrintableCase{"del\x7f", "del\\x7f"},
        // The control sequence introducer of eight bits, as UTF-8 and as a lone byte.
        PrintableCase{"\xc2\x9b"
                      "1m",
                      "\\x9b1m"},
        PrintableCase{"\x9b"
                      "1m",
                      "\\x9b1m"},
        PrintableCase{"Caf\xc3\xa9 \xe2\x82\xac \xf0\x9f\x98\x80", "Caf\xc3\xa9 \xe2\x82\xac \xf0\x9f\x98\x80"},
        // Turned writing direction, line separator.
        PrintableCase{"\xe2\x80\xaetxt", "\\u202etxt"}, PrintableCase{"\xe2\x80\xa8", "\\u2028"},
        // The other marks that turn it, and the codes beside them; the paragraph separator.
        PrintableCase{"\xd8\x9c", "\\u061c"}, PrintableCase{"\xe2\x80\x8e\xe2\x80\x8f", "\\u200e\\u200f"},
        PrintableCase{"\xe2\x81\xa6\xe2\x81\xa9", "\\u2066\\u2069"},
        PrintableCase{"\xd8\x9b\xe2\x80\x90\xe2\x81\xaa", "\xd8\x9b\xe2\x80\x90\xe2\x81\xaa"},
        PrintableCase{"\xe2\x80\xa9", "\\u2029"},
        // Overlong, surrogate, beyond the last code, cut short.
        PrintableCase{"\xc0\xaf", "\\xc0\\xaf"}, PrintableCase{"\xe0\x80\xaf", "\\xe0\\x80\\xaf"},
        PrintableCase{"\xf0\x80\x80\xaf", "\\xf0\\x80\\x80\\xaf"}, PrintableCase{"\xed\xa0\x80", "\\xed\\xa0\\x80"},
        PrintableCase{"\xf4\x90\x80\x80", "\\xf4\\x90\\x80\\x80"}, PrintableCase{"\xe2\x82", "\\xe2\\x82"},
        PrintableCase{"\xff", "\\xff"}};
    for (const auto& expected : cases)
    {
        EXPECT_EQ(printable(expected.text), expected.shown);
    }
}

/// Plain text is passed on in groups of bytes: each byte counts at each place of a group.
TEST(Printable, FindsEachByteAtEachPlace)
{
    const std::string plain = "0123456789abcdefghi~ !";
    EXPECT_EQ(printable(plain), plain);
    for (int byte = 0; byte < 256; ++byte)
    {
        const bool isPlain = byte >= 0x20 && byte <= 0x7e;
        for (std::size_t place = 0; place < plain.size(); ++place)
        {
            auto text = plain;
            text[place] = static_cast<char>(byte);
            EXPECT_EQ(printable(text) == text, isPlain) << byte << " at " << place;
        }
    }
}

TEST(Printable, GoesBehindWhatIsThere)
{
    std::string shown = "first ";
    describe::appendPrintable(shown, "plain ");
    describe::appendPrintable(shown, "\t");
    EXPECT_EQ(shown, "first plain \\t");
}

TEST(Shortened, KeepsWhatFits)
{
    EXPECT_EQ(shortened("sixteen letters.", 16), "sixteen letters.");
    EXPECT_EQ(shortened("", 16), "");
}

TEST(Shortened, LeavesOutTheMiddle)
{
    EXPECT_EQ(shortened(std::string(12, 'a') + std::string(84, 'b') + "zzzz", 16),
              "aaaaaaaaaaaa ... (84 bytes left out) ... zzzz");
}

TEST(Shortened, CutsNoCharacter)
{
    std::string text = "12345678901";
    for (int i = 0; i < 20; ++i)
        text += "\xc3\xa9";
    EXPECT_EQ(shortened(text, 16), "12345678901 ... (36 bytes left out) ... \xc3\xa9\xc3\xa9");
    EXPECT_EQ(shortened(text + 'x', 16), "12345678901 ... (38 bytes left out) ... \xc3\xa9x");
}

TEST(Shortened, BytesThatBeginNoCharacterAreAllLeftOut)
{
    EXPECT_EQ(shortened(std::string(100, '\x80'), 16), " ... (100 bytes left out) ... ");
}

} // namespace
