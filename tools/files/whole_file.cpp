#include "whole_file.h"

#include <zelplatform/exc/exc.h>
#include <zelplatform/util/util.h>
#include <zelplatform/xmlpp/xml_document.h>

#include "input_file.h"

namespace files
{
namespace
{

constexpr std::size_t PieceSize = 64UL * 1024;
constexpr std::size_t MostBytes = xmlpp::CXmlDocument::MaxTextSize;

void checkSize(std::size_t size, std::size_t mostBytes)
{
    if (size > mostBytes)
        throw exc::CRuntimeExc("The document is larger than %1 bytes.", util::toStr(mostBytes));
}

// The piece is erased when it is released, as everything may be that is read.
template <class TBytes>
TBytes readAll(const std::string& name, std::size_t mostBytes)
{
    InputFile file(name);
    checkSize(file.size(), mostBytes);
    TBytes bytes;
    crypto::sec_buffer_t piece(PieceSize);
    while (const auto count = file.read(piece.data(), piece.size()))
    {
        bytes.insert(bytes.end(), piece.data(), piece.data() + count);
        checkSize(bytes.size(), mostBytes);
    }
    return bytes;
}

} // namespace

std::string readInput(const std::string& name)
{
    return readAll<std::string>(name, MostBytes);
}

crypto::sec_buffer_t readSecret(const std::string& name, std::size_t mostBytes)
{
    return readAll<crypto::sec_buffer_t>(name, mostBytes);
}

} // namespace files
