#include <algorithm>
#include <functional>
#include <regex>
#include <set>
#include <stdexcept>
#include <string>

#include <gtest/gtest.h>

#include <zelmodel/zelmodel.h>

#include "document_kinds.h"
#include "markdown.h"
#include "xml_edit.h"

using namespace zelmodel_test;

namespace
{

constexpr const char* Page = "docs/formats.md";

/// A table together with what stands before it: the example that it speaks of and the sentences of its refusals.
struct TableInPlace
{
    const Part* table;
    const DocumentKind* kind = nullptr;
    std::string example;
    std::string refusalStart;
};

std::string refusalStartIn(const std::string& paragraph)
{
    std::smatch found;
    const std::regex pattern("[Rr]efusals begin with `([^`]+)`");
    return std::regex_search(paragraph, found, pattern) ? found[1].str() + ' ' : std::string();
}

/// Goes through the tables of the page whose head begins with the word, and tells how many there were.
int forEachTable(const std::string& firstWord, const std::function<void(const TableInPlace&)>& check)
{
    const auto parts = partsOf(Page);
    TableInPlace place{};
    int count = 0;
    for (const auto& part : parts)
    {
        if (const auto* kind = part.kind == EPart::Block ? findKind(part.info) : nullptr)
            place = {nullptr, kind, part.text, {}};
        if (const auto start = refusalStartIn(part.kind == EPart::Paragraph ? part.text : ""); !start.empty())
            place.refusalStart = start;
        if (part.kind != EPart::Table || part.rows.front().front().rfind(firstWord, 0) != 0)
            continue;
        place.table = &part;
        SCOPED_TRACE(part.where);
        check(place);
        ++count;
    }
    return count;
}

std::size_t columnOf(const Part& table, const std::string& title)
{
    const auto& head = table.rows.front();
    return static_cast<std::size_t>(std::find(head.begin(), head.end(), title) - head.begin());
}

/// Removes the attributes or children of the table's first column one by one.
void checkWhatIsMissing(const TableInPlace& place, bool isAttribute)
{
    ASSERT_NE(place.kind, nullptr) << "no example before the table";
    const auto& rows = place.table->rows;
    const auto path = codesOf(rows.front().front()).at(0);
    const auto element = path.substr(path.rfind('/') + 1);
    const auto column = columnOf(*place.table, "When absent");
    for (auto row = rows.begin() + 1; row != rows.end(); ++row)
    {
        const bool isRefused = row->at(column).rfind("refused", 0) == 0;
        for (const auto& name : codesOf(row->front()))
        {
            SCOPED_TRACE(name);
            XmlEdit edit(place.example);
            EXPECT_TRUE(!isRefused || (isAttribute ? edit.hasAttribute(path, name) : edit.hasChild(path, name)));
            isAttribute ? edit.removeAttribute(path, name) : edit.removeChild(path, name);
            const auto sentence =
                (isAttribute ? "Attribute [" : "Node [") + name + "] is not found in [" + element + "].";
            const auto refusal = refusalOf(*place.kind, edit.text());
            const auto ending = refusal.substr(refusal.size() - std::min(refusal.size(), sentence.size()));
            EXPECT_EQ(ending, isRefused ? sentence : "");
        }
    }
}

/// Makes the change that a row tells of: `a="1"` and `b="2"` on `Path`, or `text` in `Path`.
std::string changed(const std::string& example, const std::string& cell)
{
    auto codes = codesOf(cell);
    const auto path = codes.back();
    codes.pop_back();
    XmlEdit edit(example);
    if (cell.find("` in `") != std::string::npos)
    {
        edit.setInnerText(path, codes.at(0));
        return edit.text();
    }
    for (const auto& code : codes)
    {
        std::smatch parts;
        if (!std::regex_match(code, parts, std::regex("([\\w.]+)=\"(.*)\"")))
            throw std::runtime_error("No change: " + cell);
        edit.setAttribute(path, parts[1], parts[2]);
    }
    return edit.text();
}

} // namespace

TEST(Formats, EachKindHasAnExample)
{
    std::set<std::string> shown;
    for (const auto& part : partsOf(Page))
        shown.insert(part.info);
    for (const auto& kind : allKinds())
        EXPECT_EQ(shown.count(kind.info), 1U) << kind.info;
}

TEST(Formats, ExamplesAreReadAndWrittenBack)
{
    for (const auto& part : partsOf(Page))
    {
        const auto* kind = part.kind == EPart::Block ? findKind(part.info) : nullptr;
        EXPECT_TRUE(kind != nullptr || part.info.rfind("xml", 0) != 0) << part.where;
        if (kind == nullptr)
            continue;
        SCOPED_TRACE(part.where);
        EXPECT_EQ(refusalOf(*kind, part.text), "");
        if (kind->isWrittenBack)
        {
            EXPECT_EQ(kind->rewrite(part.text), compact(part.text));
        }
    }
}

TEST(Formats, FormsThatAreOnlyReadMeanWhatTheLinesBelowSay)
{
    const auto parts = partsOf(Page);
    int count = 0;
    for (std::size_t i = 0; i + 1 < parts.size(); ++i)
    {
        const auto* kind = parts[i].kind == EPart::Block ? findKind(parts[i].info) : nullptr;
        if (kind == nullptr)
            continue;
        SCOPED_TRACE(parts[i].where);
        // A sentence may stand between.
        const auto& below = parts[i + 1].kind == EPart::Paragraph ? parts.at(i + 2) : parts[i + 1];
        const bool isTold = below.info == "log";
        EXPECT_TRUE(isTold || parts[i].info != "xml Schedule");
        if (!isTold)
            continue;
        EXPECT_FALSE(kind->isWrittenBack);
        EXPECT_EQ(kind->rewrite(parts[i].text), below.text);
        ++count;
    }
    EXPECT_EQ(count, 5);
}

TEST(Formats, MissingAttributes)
{
    EXPECT_GE(forEachTable("Attribute of ", [](const TableInPlace& place) { checkWhatIsMissing(place, true); }), 33);
}

TEST(Formats, MissingChildren)
{
    EXPECT_GE(forEachTable("Child of ", [](const TableInPlace& place) { checkWhatIsMissing(place, false); }), 16);
}

TEST(Formats, ChangesThatAreRefused)
{
    const int count = forEachTable("Change", [](const TableInPlace& place) {
        ASSERT_NE(place.kind, nullptr) << "no example before the table";
        const auto& rows = place.table->rows;
        for (auto row = rows.begin() + 1; row != rows.end(); ++row)
        {
            SCOPED_TRACE(row->front());
            EXPECT_EQ(refusalOf(*place.kind, changed(place.example, row->front())),
                      place.refusalStart + onlyCodeOf(row->back()));
        }
    });
    EXPECT_GE(count, 25);
}

TEST(Formats, DefaultsOfTheAgentsForm)
{
    const XmlEdit written(findKind("xml JobOptions")->rewrite("<JobOptions/>"));
    const int count = forEachTable("Attribute of `JobOptions`", [&](const TableInPlace& place) {
        const auto& rows = place.table->rows;
        for (auto row = rows.begin() + 1; row != rows.end(); ++row)
        {
            for (const auto& name : codesOf(row->front()))
            {
                SCOPED_TRACE(name);
                const auto& absent = row->at(columnOf(*place.table, "When absent"));
                EXPECT_EQ(written.hasAttribute("JobOptions", name), absent != "not set");
                EXPECT_TRUE(absent == "not set" || absent == "empty" || !onlyCodeOf(absent).empty());
                EXPECT_EQ(written.attribute("JobOptions", name), onlyCodeOf(absent));
            }
        }
    });
    EXPECT_EQ(count, 1);
    EXPECT_EQ(written.attribute("Schedule", "IsEnabled") + ' ' + written.attribute("Schedule/Time", "Hours") + ':' +
                  written.attribute("Schedule/Time", "Minutes"),
              "false 0:30");
    for (const auto* full : {"ActiveFullOptions", "SyntheticFullOptions"})
    {
        EXPECT_EQ(written.attribute(full, "IsEnabled"), "false");
        EXPECT_EQ(written.attribute(full, "DayOfMonth"), "1");
    }
    EXPECT_EQ(written.attribute("GfsPolicy", "IsEnabled"), "false");
    EXPECT_FALSE(written.hasChild("JobOptions", "Indexing"));
    EXPECT_FALSE(written.hasChild("JobOptions", "RetainDays"));
}

TEST(Formats, DefaultsOfTheServersForm)
{
    const XmlEdit written(findKind("xml JobOptionsRoot")->rewrite("<JobOptionsRoot/>"));
    const int count = forEachTable("Child of `JobOptionsRoot`", [&](const TableInPlace& place) {
        const auto& rows = place.table->rows;
        for (auto row = rows.begin() + 1; row != rows.end(); ++row)
        {
            const auto twins = codesOf(row->back());
            const auto absent = onlyCodeOf(row->at(columnOf(*place.table, "When absent")));
            if (!twins.empty() && !absent.empty())
            {
                EXPECT_EQ(written.attribute("JobOptions", twins.front()), absent) << row->front();
            }
        }
    });
    EXPECT_EQ(count, 1);
    EXPECT_FALSE(written.hasChild("JobOptions", "RetainDays"));
}

TEST(Formats, WordsOfTheAgentsForm)
{
    const auto& kind = *findKind("xml JobOptions");
    const auto rewritten = [&kind](const std::string& name, const std::string& word) {
        XmlEdit edit("<JobOptions/>");
        edit.setAttribute("JobOptions", name, word);
        return XmlEdit(kind.rewrite(edit.text())).attribute("JobOptions", name);
    };
    const int count = forEachTable("Word of", [&](const TableInPlace& place) {
        const auto& rows = place.table->rows;
        for (auto row = rows.begin() + 1; row != rows.end(); ++row)
        {
            const auto name = onlyCodeOf(row->front());
            for (const auto& word : codesOf(row->at(1)))
                EXPECT_EQ(rewritten(name, word), word);
            const auto aliases = codesOf(row->at(2));
            for (std::size_t i = 0; i + 1 < aliases.size(); i += 2)
                EXPECT_EQ(rewritten(name, aliases[i]), aliases[i + 1]);
        }
    });
    EXPECT_EQ(count, 1);
}

TEST(Formats, LevelsOfTheServersForm)
{
    const int count = forEachTable("`CompressionLevel`", [](const TableInPlace& place) {
        const auto& head = place.table->rows.front();
        for (std::size_t i = 1; i < head.size(); ++i)
        {
            XmlEdit edit(place.example);
            edit.setInnerText("CompressionLevel", onlyCodeOf(head[i]));
            EXPECT_EQ(XmlEdit(place.kind->rewrite(edit.text())).attribute("JobOptions", "Compression"),
                      onlyCodeOf(place.table->rows.at(1).at(i)));
        }
    });
    EXPECT_EQ(count, 1);
}

// Job options have defaults that hang together; they have tests of their own.
TEST(Formats, DefaultsOfTheOtherDocuments)
{
    int checked = 0;
    forEachTable("Attribute of ", [&checked](const TableInPlace& place) {
        if (!place.kind->isWrittenBack || place.kind->info == std::string("xml JobOptions"))
            return;
        const auto& rows = place.table->rows;
        const auto path = codesOf(rows.front().front()).at(0);
        for (auto row = rows.begin() + 1; row != rows.end(); ++row)
        {
            const auto absent = onlyCodeOf(row->at(columnOf(*place.table, "When absent")));
            for (const auto& name : codesOf(row->front()))
            {
                if (absent.empty())
                    continue;
                XmlEdit edit(place.example);
                edit.removeAttribute(path, name);
                EXPECT_EQ(XmlEdit(place.kind->rewrite(edit.text())).attribute(path, name), absent) << name;
                ++checked;
            }
        }
    });
    EXPECT_GE(checked, 8);
}

TEST(Formats, WordsOfTheOtherDocuments)
{
    const int count = forEachTable("Stored words", [](const TableInPlace& place) {
        const auto codes = codesOf(place.table->rows.at(1).front());
        for (const auto& word : codesOf(place.table->rows.at(1).back()))
        {
            XmlEdit edit(place.example);
            edit.setAttribute(codes.at(1), codes.at(0), word);
            EXPECT_EQ(XmlEdit(place.kind->rewrite(edit.text())).attribute(codes.at(1), codes.at(0)), word);
        }
    });
    EXPECT_EQ(count, 3);
}

TEST(Formats, LimitsOfTruncationAreCheckedOnRequest)
{
    using zelplatform::model::structs::SApplicationProcessingOracleConfig;
    const int count = forEachTable("Validated", [](const TableInPlace& place) {
        const DocumentKind validated{"", false, [](const std::string& text) {
                                         SApplicationProcessingOracleConfig::FromXmlString(text).truncation.Validate();
                                         return text;
                                     }};
        const auto& rows = place.table->rows;
        for (auto row = rows.begin() + 1; row != rows.end(); ++row)
        {
            const auto document = changed(place.example, row->front());
            EXPECT_EQ(refusalOf(*place.kind, document), "");
            EXPECT_EQ(refusalOf(validated, document), onlyCodeOf(row->back()));
        }
        EXPECT_EQ(refusalOf(validated, place.example), "");
    });
    EXPECT_EQ(count, 1);
}
