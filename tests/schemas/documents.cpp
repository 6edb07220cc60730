#include "documents.h"

#include <algorithm>
#include <exception>
#include <filesystem>
#include <iterator>
#include <map>
#include <optional>

#include <tinyxml2.h>

#include <readers/outcome.h>
#include <support/golden.h>
#include <zelplatform/xmlpp/xmlpp.h>

#include "describe/document.h"
#include "describe/rewrite.h"

namespace zelmodel_test
{
namespace
{

using describe::EDocumentKind;
using readers::Reader;

// What these write is a part of a document: a mask, a rule, an endpoint below an element of the test's own.
constexpr const char* WritersOfParts[] = {
    "CScheduleTime.FromXml",
    "CWeekMask.FromXml",
    "CMonthMask.FromXml",
    "CDayOfMonth.FromXml",
    "CScheduleCalendar.FromXml",
    "SGfsPolicyInfoBase.fromXml.weekly",
    "SGfsPolicyInfoBase.fromXml.monthly",
    "SGfsPolicyInfoBase.fromXml.yearly",
    "SAmazonS3Endpoint.FromXmlNode",
    "SAmazonS3Credentials.FromXmlNode",
    "SAmazonS3Proxy.FromXmlNode",
};

std::vector<NamedText> filesBelow(const std::string& folder, const std::string& title)
{
    std::vector<NamedText> files;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(folder))
    {
        const auto path = entry.path().string();
        if (entry.path().extension() == ".xml")
            files.push_back({title + path.substr(folder.size()), fileText(path)});
    }
    std::sort(files.begin(), files.end(), [](const auto& a, const auto& b) { return a.name < b.name; });
    return files;
}

bool isWriterOfParts(const Reader& reader)
{
    return std::find(std::begin(WritersOfParts), std::end(WritersOfParts), reader.name) != std::end(WritersOfParts);
}

const char* enclosedElement(EDocumentKind kind)
{
    switch (kind)
    {
    case EDocumentKind::RepositoryLimitations: return "JobSettings";
    case EDocumentKind::Immutability: return "ImmutabilitySettings";
    case EDocumentKind::DirectImmutability: return "DirectBackupImmutabilitySettings";
    default: return nullptr;
    }
}

// Other programs take no text with several elements at the top: each is a document for them.
std::vector<std::string> documentsIn(const std::string& text)
{
    tinyxml2::XMLDocument document;
    document.Parse(text.c_str());
    if (document.RootElement() == nullptr || document.RootElement()->NextSiblingElement() == nullptr)
        return {text};
    std::vector<std::string> texts;
    for (const auto* root = document.RootElement(); root != nullptr; root = root->NextSiblingElement())
    {
        tinyxml2::XMLPrinter printer(nullptr, true);
        root->Accept(&printer);
        texts.emplace_back(printer.CStr());
    }
    return texts;
}

void addWritten(const Reader& reader, std::vector<NamedText>& written)
{
    if (isWriterOfParts(reader))
        return;
    for (const auto& sample : reader.samples)
    {
        for (auto& text : documentsIn(readers::attempt(reader, sample).written.value_or("")))
            written.push_back({reader.name, std::move(text)});
    }
}

std::optional<EDocumentKind> kindOf(const std::string& text)
{
    try
    {
        return describe::kindOf(xmlpp::CXmlDocument::Unserialize(text));
    }
    catch (const std::exception&)
    {
        return std::nullopt;
    }
}

using Sorted = std::map<EDocumentKind, std::vector<NamedText>>;

Sorted sorted(const std::vector<NamedText>& documents)
{
    Sorted kinds;
    for (const auto& document : documents)
    {
        if (const auto kind = kindOf(document.text))
            kinds[*kind].push_back(document);
    }
    return kinds;
}

std::vector<NamedText> find(const Sorted& documents, const SchemaKind& kind)
{
    const auto found = documents.find(kind.kind);
    return found != documents.end() ? found->second : std::vector<NamedText>{};
}

} // namespace

std::vector<NamedText> documentsOf(const SchemaKind& kind)
{
    static const auto all = [] {
        auto files = filesBelow(ZELMODEL_GOLDEN_DIR, "golden");
        auto examples = filesBelow(ZELMODEL_EXAMPLES_DIR, "examples");
        std::move(examples.begin(), examples.end(), std::back_inserter(files));
        return sorted(files);
    }();
    return find(all, kind);
}

std::vector<NamedText> writtenDocumentsOf(const SchemaKind& kind)
{
    static const auto all = [] {
        std::vector<NamedText> written;
        for (const auto& reader : readers::all())
            addWritten(reader, written);
        return sorted(written);
    }();
    return find(all, kind);
}

bool isOfKind(const SchemaKind& kind, const std::string& text)
{
    return kindOf(text) == kind.kind;
}

bool isRead(const std::string& text)
{
    const Reader shown{
        "show", [](const std::string& document) { return describe::Document(document).describe().name; }, {}};
    return readers::attempt(shown, text).written.has_value();
}

std::vector<std::string> rewritten(const SchemaKind& kind, const std::string& text)
{
    const Reader writer{"rewrite",
                        [&](const std::string& document) {
                            return describe::rewrite(document, kind.kind, describe::Document(document).describe());
                        },
                        {}};
    auto documents = documentsIn(readers::attempt(writer, text).written.value_or(""));
    const auto isOther = [&](const std::string& document) { return !isOfKind(kind, document); };
    documents.erase(std::remove_if(documents.begin(), documents.end(), isOther), documents.end());
    return documents;
}

std::string withoutOwner(const SchemaKind& kind, const std::string& text)
{
    const auto* name = enclosedElement(kind.kind);
    tinyxml2::XMLDocument document;
    document.Parse(text.c_str());
    const auto* root = document.RootElement();
    const auto* element = name == nullptr || root == nullptr ? nullptr : root->FirstChildElement(name);
    if (element == nullptr)
        return text;
    tinyxml2::XMLPrinter printer(nullptr, true);
    element->Accept(&printer);
    return printer.CStr();
}

} // namespace zelmodel_test
