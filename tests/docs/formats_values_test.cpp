#include <exception>
#include <sstream>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include <zelmodel/binary_io.h>
#include <zelmodel/schedules.h>
#include <zelplatform/util/util.h>
#include <zelplatform/xmlpp/xmlpp.h>

#include "bytes_of.h"
#include "document_kinds.h"
#include "markdown.h"
#include "xml_edit.h"

using namespace zelmodel_test;
using namespace zelplatform::model;

namespace
{

constexpr const char* Page = "docs/formats.md";

template <class T>
bool isRead(const std::string& text)
{
    try
    {
        util::fromStr<T>(text);
        return true;
    }
    catch (const std::exception&)
    {
        return false;
    }
}

} // namespace

TEST(FormatsValues, FlagsAndNumbers)
{
    const auto parts = partsOf(Page);
    const auto& rows = partOf(parts, EPart::Table, "As a flag").rows;
    for (auto row = rows.begin() + 1; row != rows.end(); ++row)
    {
        for (const auto& text : codesOf(row->front()))
        {
            EXPECT_EQ(isRead<bool>(text) ? "yes" : "no", row->at(1)) << text;
            EXPECT_EQ(isRead<unsigned long>(text) ? "yes" : "no", row->at(2)) << text;
            EXPECT_EQ(isRead<long>(text) ? "yes" : "no", row->at(3)) << text;
        }
    }
    EXPECT_EQ(rows.size(), 8U);
}

TEST(FormatsValues, TextsThatAreNoXml)
{
    int count = 0;
    for (const auto& part : partsOf(Page))
    {
        if (part.kind != EPart::Table || part.rows.front() != std::vector<std::string>{"Text", "Refused with"})
            continue;
        for (auto row = part.rows.begin() + 1; row != part.rows.end(); ++row, ++count)
        {
            SCOPED_TRACE(row->front());
            EXPECT_EQ(refusalOf({"", false, compact}, onlyCodeOf(row->front())), onlyCodeOf(row->back()));
        }
    }
    EXPECT_EQ(count, 7);
}

TEST(FormatsValues, BytesOfAText)
{
    const auto bytes = bytesIn(partOf(partsOf(Page), EPart::Block, "hex Text"));
    EXPECT_EQ(bytesOf([](io::binary_stream_tt& stream) { stream << std::string("/srv/data"); }), bytes);
}

TEST(FormatsValues, BytesOfAGuid)
{
    const auto bytes = bytesIn(partOf(partsOf(Page), EPart::Block, "hex GUID"));
    const auto id = guid::guid_t::FromAStr("{6F9619FF-8B86-D011-B42D-00CF4FC964FF}");
    EXPECT_EQ(bytesOf([&id](io::binary_stream_tt& stream) { stream << id; }), bytes);
}

TEST(FormatsValues, BytesOfASchedule)
{
    const auto parts = partsOf(Page);
    const auto document = xmlpp::CXmlDocument::Unserialize(partOf(parts, EPart::Block, "xml ScheduleOptions").text);
    const auto options = structs::CScheduleOptions::FromXml(document.GetRootNode());
    const std::string rootBegin = "<ScheduleOptions>";
    const std::string rootEnd = "</ScheduleOptions>";
    auto text = document.Serialize();
    text = text.substr(rootBegin.size(), text.size() - rootBegin.size() - rootEnd.size());
    EXPECT_EQ(bytesOf([&options](io::binary_stream_tt& stream) { options.Serialize(stream); }),
              bytesIn(partOf(parts, EPart::Block, "hex ScheduleOptions")) + text);

    const auto& start = options.GetJobStartOptions();
    EXPECT_EQ(bytesOf([&start](io::binary_stream_tt& stream) { start.Serialize(stream); }),
              bytesIn(partOf(parts, EPart::Block, "hex Schedule")) + text.substr(0, text.find("<ActiveFullOptions")));
}

TEST(FormatsValues, RulesForAllDocuments)
{
    const auto& job = *findKind("xml JobOptions");
    const auto points = [&job](const std::string& text) {
        return XmlEdit(job.rewrite(text)).attribute("JobOptions", "MaxPoints");
    };
    EXPECT_EQ(points("\xEF\xBB\xBF<?xml version='1.0' encoding='us-ascii'?><JobOptions MaxPoints='9'/>"), "9");
    EXPECT_EQ(points("<!DOCTYPE x><Other/><JobOptions Colour='red' MaxPoints='9'><Shape/></JobOptions>"), "9");
    EXPECT_EQ(points("<JobOptions MaxPoints='9'/><JobOptions MaxPoints='8'/>"), "9");
    EXPECT_EQ(points("<JobOptions maxpoints='9'/>"), "7");
    EXPECT_EQ(XmlEdit(job.rewrite("<JobOptions PrejobCommand='a&#x9;b&#xD;&#xA;c\xFF'/>"))
                  .attribute("JobOptions", "PrejobCommand"),
              "a&#x9;b&#xD;&#xA;c\xFF");
}

TEST(FormatsValues, Limits)
{
    const auto nested = [](int levels) {
        std::string text;
        for (int i = 0; i < levels; ++i)
            text += "<a>";
        for (int i = 0; i < levels; ++i)
            text += "</a>";
        return text;
    };
    const auto crowded = [](int attributes) {
        std::string text = "<a";
        for (int i = 0; i < attributes; ++i)
            text += " attribute" + std::to_string(i) + "=\"" + std::string(200, 'v') + "\"";
        return text + "/>";
    };
    const DocumentKind kind{"", true, compact};
    EXPECT_EQ(refusalOf(kind, nested(98)), "");
    EXPECT_NE(refusalOf(kind, nested(99)), "");
    EXPECT_EQ(refusalOf(kind, crowded(1024)), "");
    EXPECT_EQ(refusalOf(kind, crowded(1025)), "Unable to parse XML at line 1: [too many attributes].");
    EXPECT_EQ(xmlpp::CXmlDocument::MaxTextSize, 256UL * 1024 * 1024);
    EXPECT_EQ(xmlpp::CXmlDocument::MaxElements, 1048576UL);
}

TEST(FormatsValues, RefusalsToldInWords)
{
    const auto& window = *findKind("xml ScheduleWindow");
    EXPECT_EQ(refusalOf(window, "<ScheduleWindow Minutes='0' Kind='0'><Days><monday/></Days></ScheduleWindow>"),
              "Unknown day of the week value: [monday].");

    const auto parts = partsOf(Page);
    const auto& schedule = *findKind("xml ScheduleOptions");
    XmlEdit edit(partOf(parts, EPart::Block, schedule.info).text);
    edit.setAttribute("Schedule", "Type", "-1");
    EXPECT_EQ(refusalOf(schedule, edit.text()), "");
    edit.removeChild("Schedule", "Time");
    EXPECT_NE(refusalOf(schedule, edit.text()), "");
}
