#include <memory>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include <zelmodel/zelmodel.h>
#include <zelplatform/exc/exc.h>
#include <zelplatform/logging/logging.h>
#include <zelplatform/xmlpp/xmlpp.h>

#include "document_kinds.h"
#include "markdown.h"
#include "xml_edit.h"

using namespace zelmodel_test;
using namespace zelplatform::model;

namespace
{

constexpr const char* Page = "docs/formats.md";

XmlEdit exampleOf(const std::string& kind)
{
    return XmlEdit(partOf(partsOf(Page), EPart::Block, kind).text);
}

std::string rewritten(const std::string& kind, const XmlEdit& example)
{
    return findKind(kind)->rewrite(example.text());
}

/// One line of a session log as it is read.
struct LogLine
{
    CDateTimeEx time;
    guid::guid_t id;
    ISessionLogWriter::ESeverity severity{};
    std::string message;
};

bool parse(const std::string& text, LogLine& line)
{
    return CSessionLogLineParser::Parse(text, line.time, line.id, line.severity, line.message);
}

/// What the library notes while it lives.
class LogTap
{
public:
    LogTap() { logging::set_sink(m_sink); }
    ~LogTap() { logging::set_sink(nullptr); }
    LogTap(const LogTap&) = delete;
    LogTap& operator=(const LogTap&) = delete;

    std::vector<std::string> take()
    {
        std::vector<std::string> texts;
        for (const auto& entry : m_sink->entries())
            texts.push_back((entry.level == logging::ELevel::Error ? "error: " : "info: ") + entry.text);
        m_sink->clear();
        return texts;
    }

private:
    std::shared_ptr<logging::memory_sink> m_sink = std::make_shared<logging::memory_sink>();
};

std::string refusalOfArguments(const std::shared_ptr<mivo::CMivoCommandArgs>& arguments)
{
    try
    {
        STaskLogRecord::FromMivo(arguments);
    }
    catch (const exc::CRuntimeExc& refusal)
    {
        return refusal.what();
    }
    return {};
}

/// The arguments of a command but the one of the key, each with a value of its type.
std::shared_ptr<mivo::CMivoCommandArgs> argumentsWithout(const std::string& left)
{
    auto arguments = std::make_shared<mivo::CMivoCommandArgs>();
    const auto parts = partsOf(Page);
    for (const auto& row : partOf(parts, EPart::Table, "Type").rows)
    {
        const auto key = onlyCodeOf(row.front());
        if (key.empty() || key == left)
            continue;
        if (row.at(1) == "text")
            arguments->SetString(key, "any");
        else if (row.at(1) == "unsigned number")
            arguments->SetUInt64(key, 7);
        else
            arguments->SetDateTime(key, datetime::CDateTime(true));
    }
    return arguments;
}

} // namespace

TEST(FormatsRecords, Processing)
{
    XmlEdit oracle("<Any username='u'/>");
    EXPECT_EQ(rewritten("xml OracleConfig", oracle),
              "<OracleConfig username=\"u\"><LogsTruncateConfig mode=\"Disabled\" sizeGB=\"0\" lifetimeHours=\"0\"/>"
              "</OracleConfig>");
    EXPECT_EQ(refusalOf(*findKind("xml PostgresConfig"), "<Any osUser='\xFF' authType='file'/>"),
              "Text is not valid UTF-8.");
}

TEST(FormatsRecords, LimitationsAreNotReadAtTheTop)
{
    auto edit = exampleOf("xml JobSettings");
    edit.setAttribute("JobSettings", "BackupMode", "4294967299");
    edit.setAttribute("JobSettings", "ChainLength", "-5");
    const XmlEdit written(rewritten("xml JobSettings", edit));
    EXPECT_EQ(written.attribute("JobSettings", "BackupMode"), "3");
    EXPECT_EQ(written.attribute("JobSettings", "ChainLength"), "-5");

    edit.setAttribute("JobSettings", "ChainLength", "last");
    edit.setAttribute("JobSettings", "RepositoryId", "first");
    const std::string start = "Unable to parse string repository limitations specification. Unable to parse xml "
                              "repository limitations specification. ";
    EXPECT_EQ(refusalOf(*findKind("xml JobSettings"), edit.text()),
              start + "Unable to convert string [last] to [int].");
    EXPECT_EQ(refusalOf(*findKind("xml JobSettings"), "<JobSettings/>"),
              start + "Node [JobSettings] is not found in [JobSettings].");
}

TEST(FormatsRecords, ImmutabilityMode)
{
    auto edit = exampleOf("xml ImmutabilitySettings");
    edit.setAttribute("ImmutabilitySettings", "ImmutabilityMode", "7");
    EXPECT_EQ(rewritten("xml ImmutabilitySettings", edit),
              "<ImmutabilitySettings IsEnabled=\"true\" IntervalDays=\"30\"/>");
    EXPECT_EQ(refusalOf(*findKind("xml ImmutabilitySettings"),
                        "<ImmutabilitySettings IsEnabled='1' IntervalDays='1'><ImmutabilityMode/>"
                        "</ImmutabilitySettings>"),
              "Unable to parse repository immutability settings. Attribute [ImmutabilityMode] is not found in "
              "[ImmutabilitySettings].");

    const auto* direct = "xml DirectBackupImmutabilitySettings";
    auto enclosed = exampleOf(direct);
    enclosed.removeAttribute("DirectBackupImmutabilitySettings", "NumberDaysForCapacityTierMoveOrArchiveTier");
    enclosed.removeAttribute("ImmutabilitySettings", "ImmutabilityMode");
    EXPECT_EQ(rewritten(direct, enclosed),
              "enabled, 14 days, mode 0; to the tier after 0 days; immutable extent: true\n");
    EXPECT_EQ(structs::SObjectStorageImmutabilitySettings::CreateDisabled().intervalDays, 10);
}

TEST(FormatsRecords, StorageWithoutItsOptionalParts)
{
    const auto* kind = "xml AmazonS3SpecificParams";
    auto edit = exampleOf(kind);
    edit.removeAttribute("Endpoint", "Fingerprint");
    edit.removeAttribute("Credentials", "LastUpdateTimeUtc");
    edit.removeChild("Endpoint", "Proxy");
    const XmlEdit written(rewritten(kind, edit));
    EXPECT_FALSE(written.hasAttribute("Endpoint", "Fingerprint"));
    EXPECT_FALSE(written.hasChild("Endpoint", "Proxy"));
    EXPECT_TRUE(written.hasAttribute("Credentials", "LastUpdateTimeUtc"));

    auto broken = exampleOf(kind);
    broken.setAttribute("Credentials", "LastUpdateTimeUtc", "x");
    EXPECT_EQ(refusalOf(*findKind(kind), broken.text()).find("not-a-real"), std::string::npos);
}

TEST(FormatsRecords, ContainerLosesWhatIsNotRead)
{
    auto expected = exampleOf("xml root");
    expected.setAttribute("root", "containerName", "");
    expected.setAttribute("root", "clientInfo.id", "3c9a6e57-08b1-4d2f-bb60-917e4ad5c208");
    const XmlEdit written(rewritten("xml root", exampleOf("xml root")));
    EXPECT_EQ(written.text().rfind("<?xml version=\"1.0\" encoding=\"UTF-8\"?>", 0), 0U);
    for (const auto* name :
         {"regionId", "containerName", "repoName", "clientInfo.id", "clientInfo.description", "isObjectLockEnabled",
          "SAmazonS3SpecificParams.creds.accessKeyId", "SAmazonS3SpecificParams.creds.secretAccessKey",
          "SAmazonS3SpecificParams.endpoint.apiEndpoint"})
        EXPECT_EQ(written.attribute("root", name), expected.attribute("root", name)) << name;
}

TEST(FormatsRecords, RefusedDetailsAreLogged)
{
    LogTap log;
    EXPECT_NE(refusalOf(*findKind("xml Details"), "<Details/>"), "");
    EXPECT_EQ(log.take(), std::vector<std::string>{"error: Failed to deserialize session details string: [<Details/>]. "
                                                   "Attribute [repo_name] is not found in [Details]."});
}

TEST(FormatsRecords, ArgumentsOfTheTaskLogRecord)
{
    const auto parts = partsOf(Page);
    const auto& rows = partOf(parts, EPart::Table, "Type").rows;
    ASSERT_EQ(rows.size(), 10U);
    const std::string start = "STaskLogRecord: Failed to unserial from mivo ";
    EXPECT_EQ(refusalOfArguments(argumentsWithout("")), "");
    const auto record = exampleOf("xml Record");
    for (auto row = rows.begin() + 1; row != rows.end(); ++row)
    {
        const auto key = onlyCodeOf(row->front());
        EXPECT_TRUE(record.hasAttribute("Record", onlyCodeOf(row->back()))) << key;
        EXPECT_EQ(refusalOfArguments(argumentsWithout(key)), start + "Argument [" + key + "] is not found.");
        const auto arguments = argumentsWithout(key);
        row->at(1) == "text" ? arguments->SetUInt64(key, 1) : arguments->SetString(key, "1");
        EXPECT_EQ(refusalOfArguments(arguments), start + "Argument [" + key + "] has another type.");
    }
    EXPECT_EQ(refusalOfArguments(nullptr), start + "There are no arguments.");
}

TEST(FormatsRecords, SeveritiesOfTheTaskLogRecord)
{
    const auto parts = partsOf(Page);
    const auto& rows = partOf(parts, EPart::Table, "`ENone`").rows;
    ASSERT_EQ(rows.at(0).size(), 5U);
    for (std::size_t i = 1; i < rows.at(0).size(); ++i)
    {
        auto edit = exampleOf("xml Record");
        edit.setAttribute("Record", "status", onlyCodeOf(rows.at(0).at(i)));
        const auto told = rewritten("xml Record", edit);
        EXPECT_EQ(told.substr(0, told.find('\n')), "status: " + onlyCodeOf(rows.at(1).at(i)));
    }
}

TEST(FormatsRecords, LogLines)
{
    const auto parts = partsOf(Page);
    const auto& rows = partOf(parts, EPart::Table, "Severity").rows;
    ASSERT_EQ(rows.size(), 4U);
    EXPECT_EQ(partOf(parts, EPart::Block, "text SessionLog").text, onlyCodeOf(rows.at(1).front()) + '\n');
    LogTap log;
    for (auto row = rows.begin() + 1; row != rows.end(); ++row)
    {
        LogLine line;
        EXPECT_TRUE(parse(onlyCodeOf(row->front()), line)) << row->front();
        EXPECT_EQ(line.time.getUtcTime().toUnixTime(), 1709816709);
        EXPECT_EQ(line.id.ToAStr(), "b1d04c7e-6a25-4f93-8e1b-7c3f52a9e604");
        EXPECT_EQ(ISessionLogWriter::SeverityToString(line.severity), onlyCodeOf(row->at(1)));
        EXPECT_EQ(line.message, onlyCodeOf(row->at(2)));
    }
    EXPECT_EQ(log.take().size(), 0U);
}

TEST(FormatsRecords, SkippedLogLines)
{
    const auto parts = partsOf(Page);
    const auto& rows = partOf(parts, EPart::Table, "Logged before the note").rows;
    LogTap log;
    for (auto row = rows.begin() + 1; row != rows.end(); ++row)
    {
        const auto text = onlyCodeOf(row->front());
        LogLine line;
        EXPECT_FALSE(parse(text, line)) << text;
        std::vector<std::string> expected;
        if (const auto cause = onlyCodeOf(row->back()); !cause.empty())
            expected.push_back("error: " + cause);
        expected.push_back("info: Line [" + text + "] is skipped.");
        EXPECT_EQ(log.take(), expected);
    }
    EXPECT_EQ(rows.size(), 10U);
    LogLine line;
    EXPECT_FALSE(parse("", line));
    EXPECT_EQ(log.take().size(), 0U);
}

TEST(FormatsRecords, OlderStatesAndTransforms)
{
    EXPECT_EQ(rewritten("xml BackupJobState 1", exampleOf("xml BackupJobState 1")),
              compact(exampleOf("xml BackupJobState").text()));

    const std::string point = "<Guid value=\"c7d2e5b8-3a94-4160-8bf7-0e91a6d3c528\"/>";
    const auto single = rewritten("xml FullTransformSpec single", exampleOf("xml FullTransformSpec single"));
    EXPECT_NE(single.find("<LastIncrementPointIds>" + point + "</LastIncrementPointIds>"), std::string::npos);
}

TEST(FormatsRecords, Transforms)
{
    const auto* kind = "xml FullTransformSpec";
    const std::string outer = "Unable to parse string create synthetic specification. Unable to parse xml create "
                              "synthetic specification. ";
    auto edit = exampleOf(kind);
    edit.setAttribute("FullTransformSpec", "OperationType", "7");
    EXPECT_EQ(XmlEdit(rewritten(kind, edit)).attribute("FullTransformSpec", "OperationType"), "1");
    edit.removeAttribute("FullTransformSpec", "LastIncrementPointId");
    edit.removeChild("FullTransformSpec", "LastIncrementPointIds");
    EXPECT_EQ(refusalOf(*findKind(kind), edit.text()),
              outer + "Mandatory arguments not set (v11:LastIncrementPointId or v12:LastIncrementPointIds)");

    const std::string start = "<FullTransformSpec Id='' BackupId='' JobTargetFile='f' LastIncrementPointId='";
    const std::string id = "c7d2e5b8-3a94-4160-8bf7-0e91a6d3c528";
    const XmlEdit emptied(findKind(kind)->rewrite(start + id + "'><LastIncrementPointIds/></FullTransformSpec>"));
    EXPECT_FALSE(emptied.hasAttribute("FullTransformSpec", "LastIncrementPointId"));
    EXPECT_FALSE(emptied.hasChild("LastIncrementPointIds", "Guid"));
    EXPECT_EQ(emptied.attribute("FullTransformSpec", "Id"), "00000000-0000-0000-0000-000000000000");

    const XmlEdit deleted(findKind("xml DeletePointTransformSpec")
                              ->rewrite("<Any Id='' BackupId='' OperationType='9' TransformType='0' "
                                        "EnableIntegrityChecks='0'><IncrementPointIds><Guid> {" +
                                        id + "} </Guid></IncrementPointIds></Any>"));
    EXPECT_EQ(deleted.attribute("Guid", "value"), id);
    EXPECT_EQ(deleted.attribute("DeletePointTransformSpec", "OperationType"), "9");

    EXPECT_EQ(refusalOf(*findKind("xml GfsFullTransformSpec"), "<a"),
              "Unable to parse XML at line 1: [XML_ERROR_PARSING_ELEMENT].");
    const auto choose = [](const std::string& text) {
        transform::ITransformSpec::UnserializeSpec(xmlpp::CXmlDocument::Unserialize(text).GetRootNode(),
                                                   static_cast<transform::ETransformOperationType::type>(2));
        return text;
    };
    EXPECT_EQ(refusalOf({"", false, choose}, "<a/>"), "Not implemented.");
}
