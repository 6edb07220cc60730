#include "picture/markup.h"

#include <string>

#include <gtest/gtest.h>

#include "elements.h"

namespace
{

using picture::Markup;

TEST(Markup, ElementsStandOnLinesOfTheirOwnOrOnOne)
{
    Markup markup;
    markup.addDeclaration();
    markup.add("table", {{"class", "week"}}, [&] {
        markup.addLine("tr", {}, [&] {
            markup.add("th", {{"scope", "row"}}, "Monday");
            markup.add("td", {}, "");
            markup.addText("tail");
        });
        markup.add("tr", {}, [&] { markup.add("td", {}, "one"); });
        markup.addEmpty("hr", {});
    });
    EXPECT_EQ(markup.text(), "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
                             "<table class=\"week\">\n"
                             "    <tr><th scope=\"row\">Monday</th><td></td>tail</tr>\n"
                             "    <tr>\n"
                             "        <td>one</td>\n"
                             "    </tr>\n"
                             "    <hr/>\n"
                             "</table>\n");
}

TEST(Markup, APageBeginsWithItsType)
{
    Markup markup;
    markup.addDocumentType();
    markup.add("html", {}, "");
    EXPECT_EQ(markup.text(), "<!DOCTYPE html>\n<html></html>\n");
}

struct HostileText
{
    std::string text;
    const char* inElement;
    const char* inAttribute;
};

TEST(Markup, HostileTextsAreEscaped)
{
    const HostileText rows[] = {
        {"</p><script>alert(1)</script>", "&lt;/p&gt;&lt;script&gt;alert(1)&lt;/script&gt;",
         "&lt;/p&gt;&lt;script&gt;alert(1)&lt;/script&gt;"},
        {"&amp; \" '", "&amp;amp; \" '", "&amp;amp; &quot; &apos;"},
        {"]]><!-- --><?x?>", "]]&gt;&lt;!-- --&gt;&lt;?x?&gt;", "]]&gt;&lt;!-- --&gt;&lt;?x?&gt;"},
        {std::string("a\0b", 3), "a\\x00b", "a\\x00b"},
        {"\x1b[31m\n\t\x7f", "\\x1b[31m\\n\\t\\x7f", "\\x1b[31m\\n\\t\\x7f"},
        {"\xff\xc3(", "\\xff\\xc3(", "\\xff\\xc3("},
        {"\xe2\x80\xae", "\\u202e", "\\u202e"},
        // What UTF-8 can hold and XML cannot.
        {"\xef\xbf\xbe\xef\xbf\xbf\xef\xbf\xbe", "\\ufffe\\uffff\\ufffe", "\\ufffe\\uffff\\ufffe"},
        {"\xc3\xa4\xf0\x9f\x98\x80", "\xc3\xa4\xf0\x9f\x98\x80", "\xc3\xa4\xf0\x9f\x98\x80"}};
    for (const auto& row : rows)
    {
        Markup markup;
        markup.add("p", {{"title", row.text}}, row.text);
        EXPECT_EQ(markup.text(), std::string("<p title=\"") + row.inAttribute + "\">" + row.inElement + "</p>\n");
        EXPECT_NO_THROW(zelmodel_test::Elements(markup.text()));
    }
}

} // namespace
