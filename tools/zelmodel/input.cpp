#include "input.h"

#include <vector>

#include <zelplatform/exc/exc.h>
#include <zelplatform/util/util.h>
#include <zelplatform/xmlpp/xml_document.h>

namespace
{

constexpr std::size_t PieceSize = 64UL * 1024;
constexpr std::size_t MostBytes = xmlpp::CXmlDocument::MaxTextSize;

void checkSize(std::size_t size)
{
    if (size > MostBytes)
        throw exc::CRuntimeExc("The document is larger than %1 bytes.", util::toStr(MostBytes));
}

} // namespace

std::string readInput(const std::string& name)
{
    files::InputFile file(name);
    checkSize(file.size());
    std::string text;
    std::vector<char> piece(PieceSize);
    while (const auto count = file.read(piece.data(), piece.size()))
    {
        text.append(piece.data(), count);
        checkSize(text.size());
    }
    return text;
}

const describe::Document& openDocument(const std::string& name, Reading& reading)
{
    reading.name = name;
    reading.document.reset();
    return reading.document.emplace(readInput(name));
}
