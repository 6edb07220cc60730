#include "hostile_input.h"

#include <algorithm>

#include <zelmodel/job_options.h>
#include <zelmodel/transforms.h>
#include <zelplatform/xmlpp/xml_document.h>

namespace zelmodel_test
{
namespace
{

using zelplatform::model::SBackupJobOptions;
using zelplatform::model::transform::CCreateSyntheticFullSpec;
using zelplatform::model::transform::CTransformSpec;

void readJob(const std::string& text)
{
    SBackupJobOptions::fromStr(text);
}

/// A document that is a piece again and again, between a start and an end.
HostileInput made(const std::string& name, const std::string& start, const std::string& piece,
                  const std::string& end = {})
{
    return {name, [=](std::size_t size) { return start + repeated(piece, size) + end; }, takingOrRefusing(readJob)};
}

/// As many pieces as a document may have, and no more.
HostileInput most(const std::string& name, const std::string& piece)
{
    constexpr std::size_t count = xmlpp::CXmlDocument::MaxElements - 1;
    return {name,
            [=](std::size_t size) {
                return "<JobOptions>" + repeated(piece, std::min(size, count * piece.size())) + "</JobOptions>";
            },
            takingOrRefusing(readJob)};
}

/// The shortest names that differ: a, b, ... z, aa, ab, ...
std::string nameOf(std::size_t number)
{
    std::string name;
    for (++number; number > 0; number = (number - 1) / 26)
        name.insert(name.begin(), static_cast<char>('a' + (number - 1) % 26));
    return name;
}

std::string attributes(std::size_t count)
{
    std::string text;
    for (std::size_t number = 0; number < count; ++number)
        text += nameOf(number) + "=\"\"";
    return text;
}

std::string elementsWith(std::size_t attributeCount, std::size_t size)
{
    return "<JobOptions>" + repeated("<a " + attributes(attributeCount) + "/>", size) + "</JobOptions>";
}

std::string specOf(const std::string& list, std::size_t count)
{
    std::string text = "<a Id=\"\" BackupId=\"\" OperationType=\"0\" TransformType=\"0\" EnableIntegrityChecks=\"0\" "
                       "JobTargetFile=\"\"><" +
                       list + ">";
    for (std::size_t number = 0; number < count; ++number)
        text += "<Guid value=\"0f8fad5b-d9cb-469f-a165-70867728950e\"/>";
    return text + "</" + list + "></a>";
}

constexpr std::size_t BytesOfPoint = 52;

} // namespace

std::vector<HostileInput> hostileMarkup()
{
    const auto readDelete = takingOrRefusing([](const std::string& text) { CTransformSpec::FromString(text); });
    const auto readFull = takingOrRefusing([](const std::string& text) { CCreateSyntheticFullSpec::FromString(text); });
    const auto job = takingOrRefusing(readJob);
    const auto deep = [](const std::string& tag) {
        return [tag](std::size_t size) { return "<JobOptions>" + repeated(tag, size); };
    };
    return {
        {"attributes of one element", [](std::size_t size) { return "<JobOptions " + attributes(size / 7) + "/>"; },
         job},
        {"elements with the most attributes",
         [](std::size_t size) { return elementsWith(xmlpp::CXmlDocument::MaxAttributes, size); }, job},
        {"elements with the most attributes of any size", [](std::size_t size) { return elementsWith(80, size); }, job},
        {"elements with 1000 attributes", [](std::size_t size) { return elementsWith(1000, size); }, job},
        made("10,000 levels", "<JobOptions>" + repeated("<a>", 30000), repeated("</a>", 40000)),
        {"start tags", deep("<a>"), job},
        {"start tags without an end", deep("<a "), job},
        {"elements of 98 levels",
         [](std::size_t size) {
             return "<JobOptions>" + repeated(repeated("<a>", 97 * 3) + repeated("</a>", 97 * 4), size) +
                    "</JobOptions>";
         },
         job},
        made("empty elements", "<JobOptions>", "<a/>", "</JobOptions>"),
        made("pairs of tags", "<JobOptions>", "<a></a>", "</JobOptions>"),
        made("elements at the top", "<JobOptions/>", "<a/>"),
        most("the most empty elements", "<a/>"),
        most("the most pairs of tags", "<a></a>"),
        most("the most texts between elements", "x<a/>"),
        most("the most comments", "<!---->"),
        made("schedules", "<JobOptions>", "<Schedule/>", "</JobOptions>"),
        made("end tags", "<JobOptions/>", "</a>"),
        made("an end tag too many", "<JobOptions>", "<a></a>", "</JobOptions></JobOptions>"),
        made("the value of an attribute", "<JobOptions PrejobCommand=\"", "x", "\"/>"),
        made("the value of a wrong word", "<JobOptions SnapshotMode=\"", "x", "\"/>"),
        made("the value of a wrong number", "<JobOptions MaxPoints=\"", "9", "\"/>"),
        made("the name of an attribute", "<JobOptions ", "x", "=\"\"/>"),
        made("the name of an element", "<JobOptions><", "x", "/></JobOptions>"),
        made("the name of a wrong root", "<", "x", "/>"),
        made("one text", "<JobOptions><RetainDays>", "x", "</RetainDays></JobOptions>"),
        made("one text of blanks", "<JobOptions><RetainDays>", " ", "</RetainDays></JobOptions>"),
        made("texts between elements", "<JobOptions>", "x<a/>", "</JobOptions>"),
        made("references in a text", "<JobOptions><RetainDays>", "&lt;", "</RetainDays></JobOptions>"),
        made("references in a value", "<JobOptions PrejobCommand=\"", "&#65;", "\"/>"),
        made("references to nothing", "<JobOptions PrejobCommand=\"", "&x;", "\"/>"),
        made("digits of one reference", "<JobOptions PrejobCommand=\"&#", "0", "65;\"/>"),
        made("references without an end", "<JobOptions PrejobCommand=\"", "&#1", "\"/>"),
        made("references in a comment", "<!--", "&#1", "--><JobOptions/>"),
        made("a bad reference behind elements", "<JobOptions>", "<a/>", "<!-- &#0; --></JobOptions>"),
        made("a bad reference between elements", "<JobOptions><!-- &#0; -->", "<a/>", "</JobOptions>"),
        made("bad references in comments", "<JobOptions>", "<!--&#0;-->", "</JobOptions>"),
        made("a bad reference in the last element", "<JobOptions>", "<a/>", "<a b=\"&#0;\"/></JobOptions>"),
        made("comments", "<JobOptions>", "<!---->", "</JobOptions>"),
        made("comments without an end", "<JobOptions>", "<!--"),
        made("one comment", "<!--", "x", "--><JobOptions/>"),
        made("CDATA", "<JobOptions>", "<![CDATA[]]>", "</JobOptions>"),
        made("CDATA without an end", "<JobOptions>", "<![CDATA["),
        made("ends of CDATA", "<JobOptions>", "]]>", "</JobOptions>"),
        made("declarations", "<?xml version=\"1.0\"?>", "<?a?>", "<JobOptions/>"),
        made("one declaration", "<?xml version=\"1.0\" ", "'", "?><JobOptions/>"),
        made("document types", "", "<!a>", "<JobOptions/>"),
        made("white space", "", " ", "<JobOptions/>"),
        made("line ends", "", "\n", "<JobOptions"),
        made("line ends in a tag", "<JobOptions", "\r\n", "/>"),
        made("signs of opening", "", "<"),
        made("signs of closing", "<JobOptions>", ">", "</JobOptions>"),
        made("ampersands", "<JobOptions>", "&", "</JobOptions>"),
        made("quotes", "<JobOptions a=", "'", "/>"),
        made("double quotes in a tag", "<JobOptions ", "\"", "/>"),
        made("equal signs", "<JobOptions a", "=", "/>"),
        made("NUL bytes", "<JobOptions/>", std::string(1, '\0')),
        made("bytes that are no UTF-8", "<JobOptions PrejobCommand=\"", "\xFF", "\"/>"),
        {"points to delete", [](std::size_t size) { return specOf("IncrementPointIds", size / BytesOfPoint); },
         readDelete},
        {"1,000,000 points to delete", [](std::size_t) { return specOf("IncrementPointIds", 1000000); }, readDelete},
        {"1,000,000 points of a full", [](std::size_t) { return specOf("LastIncrementPointIds", 1000000); }, readFull},
    };
}

} // namespace zelmodel_test
