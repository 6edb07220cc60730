#include "variations.h"

#include <functional>

#include <tinyxml2.h>

namespace zelmodel_test
{
namespace
{

using tinyxml2::XMLDocument;
using tinyxml2::XMLElement;

using Texts = std::vector<std::string>;

// What flags look like, and what nearly does; so below.
const Texts Flags{
    "", "1", "0", "2", "tRuE", "FALSE", "true ", "yes",
};

// Numbers: bounds of each width, and what no number is.
const Texts Numbers{
    "",
    "x",
    "0",
    "1",
    "2",
    "3",
    "4",
    "-0",
    "-1",
    "007",
    "032",
    "300",
    " 1",
    "1 ",
    "+1",
    "1.0",
    "2147483647",
    "2147483648",
    "-2147483649",
    "9223372036854775807",
    "9223372036854775808",
    "-9223372036854775809",
    "18446744073709551615",
    "18446744073709551616",
    "0000000000000000000000000000001",
};

// Words and hours.
const Texts Words{
    "",         " ",           "x",          "1",     "Default",  "ZlibLow",   "Cycles", "Days",
    "_number",  "cycles",      "NoSnapshot", "IsOff", "IndexAll", "last",      "EVERY",  "Every ",
    "Fifth",    "peer",        "BySize",     "ENone", "Full",     "Synthetic", "00-24",  "0-5, 007-08",
    "5-5, 9-3", "00-05,08-09", "00-05, ",    "24-25", "25-30",    "30-25",     "-1-5",   "8",
};

// Identifiers and dates.
const Texts Identifiers{
    "",
    "x",
    "6B1F2C3D-0A1B-4C2D-8E3F-0123456789AB",
    "{6b1f2c3d-0a1b-4c2d-8e3f-0123456789ab}",
    "{6b1f2c3d-0a1b-4c2d-8e3f-0123456789ab",
    "6b1f2c3d-0a1b-4c2d-8e3f-0123456789ab ",
    "6b1f2c3d-0a1b-4c2d-8e3f-0123456789ag",
    "6b1f2c3d-0a1b-4c2d-8e3f-0123456789ab|x|y",
    "|x",
    "03/07/2024 13:05:09",
    "3/7/2024 1:5:9",
    "02/29/2024 00:00:00",
    "02/29/2023 00:00:00",
    "04/31/2024 00:00:00",
    "12/31/1399 23:59:59",
    "01/01/0001 00:00:00",
    "12/31/9999 23:59:60",
    "003/07/2024 13:05:09",
    "03/07/2024  13:05:09",
    "2024-03-07 13:05:09",
};

bool isAmong(const std::string& text, const char* characters)
{
    return text.find_first_not_of(characters) == std::string::npos;
}

// What is tried in the place of a value depends on what it looks like.
const Texts& valuesFor(const std::string& value)
{
    if (value == "true" || value == "false")
        return Flags;
    if (isAmong(value, "0123456789"))
        return Numbers;
    return value.size() > 18 && isAmong(value, "-0123456789abcdefABCDEF/: ") ? Identifiers : Words;
}

// The other way round, with elements between that nobody knows.
void reverseChildren(XMLElement& element)
{
    auto* child = element.LastChildElement();
    while (child != nullptr)
    {
        auto* next = child->PreviousSiblingElement();
        element.InsertEndChild(child);
        element.InsertNewChildElement("Later");
        child = next;
    }
}

using Change = std::function<void(XMLElement&)>;

std::string nameOf(const XMLElement& element)
{
    return element.Name();
}

/// The variations of one document.
class Variations
{
public:
    Variations(std::string text, std::set<std::string> leftAlone)
        : m_text(std::move(text)), m_seen(std::move(leftAlone))
    {
        m_document.Parse(m_text.c_str());
        visit(*m_document.RootElement());
    }

    std::vector<Variation> take() { return std::move(m_variations); }

private:
    void visit(const XMLElement& element)
    {
        const auto number = m_number++;
        if (m_seen.insert(nameOf(element)).second)
            varyElement(element, number);
        for (const auto* child = element.FirstChildElement(); child != nullptr; child = child->NextSiblingElement())
            visit(*child);
    }

    void varyElement(const XMLElement& element, int number)
    {
        if (number > 0)
            varyPresence(nameOf(element), number);
        add(nameOf(element), number, [](XMLElement& varied) { varied.SetAttribute("Later", "x"); });
        add(nameOf(element), number, [](XMLElement& varied) { varied.InsertNewText("text"); });
        add(nameOf(element), number, [](XMLElement& varied) { varied.InsertNewChildElement("Later"); });
        add(nameOf(element), number, reverseChildren);
        for (const auto* at = element.FirstAttribute(); at != nullptr; at = at->Next())
            varyAttribute(nameOf(element) + '@' + at->Name(), *at, number);
        if (element.FirstChildElement() == nullptr && element.GetText() != nullptr)
        {
            for (const auto& value : valuesFor(element.GetText()))
                add(
                    nameOf(element), number, [&](XMLElement& varied) { varied.SetText(value.c_str()); }, value);
        }
    }

    void varyPresence(const std::string& name, int number)
    {
        add(name, number, [](XMLElement& varied) { varied.Parent()->DeleteChild(&varied); });
        add(name, number, [](XMLElement& varied) {
            varied.Parent()->InsertAfterChild(&varied, varied.GetDocument()->NewElement(varied.Name()));
        });
        add(name, number, [](XMLElement& varied) {
            varied.Parent()->InsertFirstChild(varied.GetDocument()->NewElement(varied.Name()));
        });
    }

    void varyAttribute(const std::string& place, const tinyxml2::XMLAttribute& attribute, int number)
    {
        const auto* name = attribute.Name();
        add(place, number, [&](XMLElement& varied) { varied.DeleteAttribute(name); });
        for (const auto& value : valuesFor(attribute.Value()))
            add(
                place, number, [&](XMLElement& varied) { varied.SetAttribute(name, value.c_str()); }, value);
    }

    void add(const std::string& place, int number, const Change& change, const std::string& value = {})
    {
        XMLDocument document;
        document.Parse(m_text.c_str());
        change(*elementAt(*document.RootElement(), number));
        tinyxml2::XMLPrinter printer(nullptr, true);
        document.Print(&printer);
        m_variations.push_back({place, printer.CStr(), value});
    }

    // The element of the number in the order of the document; the number is counted down.
    static XMLElement* elementAt(XMLElement& from, int& number)
    {
        if (number-- == 0)
            return &from;
        for (auto* child = from.FirstChildElement(); child != nullptr; child = child->NextSiblingElement())
        {
            if (auto* found = elementAt(*child, number))
                return found;
        }
        return nullptr;
    }

    const std::string m_text;
    std::set<std::string> m_seen;
    XMLDocument m_document;
    int m_number = 0;
    std::vector<Variation> m_variations;
};

} // namespace

std::vector<Variation> variationsOf(const std::string& text, std::set<std::string> leftAlone)
{
    return Variations(text, std::move(leftAlone)).take();
}

} // namespace zelmodel_test
