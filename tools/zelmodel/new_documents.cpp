#include "new_documents.h"

#include <filesystem>
#include <iostream>
#include <utility>

#include <unistd.h>

#include "describe/terminal_text.h"
#include "document_output.h"
#include "exit_code.h"
#include "files/new_file.h"

namespace
{

using describe::EDocumentKind;

/// A document on its way out.
struct NewDocument
{
    std::string text;
    std::string file; ///< empty: standard output
};

std::string writeDocument(EDocumentKind kind, const std::vector<GivenOption>& given)
{
    auto record = edit::newRecord(kind);
    for (const auto& [option, text] : given)
    {
        for (const auto& assignment : option->assignments(text))
            edit::setField(record, assignment);
    }
    return edit::writeRecord(record).text;
}

std::string windowFileOf(const NewRequest& request)
{
    if (!request.windowOutput.empty() || request.output.empty())
        return request.windowOutput;
    std::filesystem::path file(request.output);
    if (file.extension() == ".xml")
        file.replace_extension();
    return file.string() + ".window.xml";
}

std::vector<NewDocument> writeDocuments(const NewRequest& request)
{
    std::vector<NewDocument> documents{{writeDocument(request.kind, request.given), request.output}};
    if (request.window)
        documents.push_back({writeDocument(EDocumentKind::ScheduleWindow, {{&windowOption(), *request.window}}),
                             windowFileOf(request)});
    return documents;
}

// Both or none: the first file is removed again when the second cannot be written.
void writeFiles(const std::vector<NewDocument>& documents, Session& session)
{
    std::vector<std::string> written;
    try
    {
        for (const auto& document : documents)
        {
            if (document.file.empty())
                continue;
            session.reading.name = document.file;
            files::writeNewFile(document.file, document.text + '\n');
            written.push_back(document.file);
        }
    }
    catch (const InputError&)
    {
        for (const auto& file : written)
            ::unlink(file.c_str());
        throw;
    }
}

void printJson(const NewRequest& request, const std::vector<NewDocument>& documents, const Session& session)
{
    auto list = nlohmann::ordered_json::array();
    for (const auto& document : documents)
    {
        nlohmann::ordered_json item;
        if (!document.file.empty())
            item["output"] = document.file;
        item["document"] = document.text + '\n';
        list.push_back(item);
    }
    session.output.printJson("new", request.name, {{"documents", list}});
}

void printText(const std::vector<NewDocument>& documents)
{
    std::size_t printed = 0;
    for (const auto& document : documents)
    {
        if (document.file.empty())
        {
            printDocument(document.text);
            ++printed;
        }
        else
            std::cerr << describe::printable(document.file) << ": written\n";
    }
    if (printed > 1)
        std::cerr << "The window is a document of its own, on the second line; -o FILE writes each into its file.\n";
}

} // namespace

const edit::NewOption& windowOption()
{
    return edit::newOptions(EDocumentKind::ScheduleWindow).front();
}

int writeNew(const NewRequest& request, Session& session)
try
{
    session.reading.name = request.name;
    const auto documents = writeDocuments(request);
    writeFiles(documents, session);
    if (session.output.isJson())
        printJson(request, documents, session);
    else
        printText(documents);
    return exit_code::Fine;
}
catch (const edit::UnknownField& error)
{
    session.output.printFailure(request.name, error.what());
    return exit_code::Usage;
}
