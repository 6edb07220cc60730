#pragma once

#include <cstddef>
#include <cstring>
#include <string>
#include <string_view>

#include <boost/endian/conversion.hpp>

#include "describe/node.h"

namespace dump
{

/// The number that the bytes hold, the lowest byte first.
template <class T>
T numberOf(std::string_view content)
{
    T value{};
    std::memcpy(&value, content.data(), sizeof(T));
    return boost::endian::little_to_native(value);
}

/// Each sets value and words of the node from the content of a field.

/// A number that needs no words.
template <class T>
void tellNumber(std::string_view content, describe::Node& node)
{
    const describe::Value value(numberOf<T>(content));
    node.value = value.text;
    node.valueType = value.type;
    node.words = value.text;
}

/// A byte that is 0 or not.
void tellFlag(std::string_view content, describe::Node& node);

/// A text as it stands.
void tellText(std::string_view content, describe::Node& node);

/// Bytes as hexadecimal digits in lower case.
void tellHexadecimal(std::string_view content, describe::Node& node);

/// An identifier of bytes: upper-case digits as in logs, and the text when it is one.
void tellKeySetId(std::string_view content, describe::Node& node);

void tellXml(std::string_view content, describe::Node& node);
void tellAlgorithm(std::string_view content, describe::Node& node);
void tellRole(std::string_view content, describe::Node& node);
void tellSeconds(std::string_view content, describe::Node& node);

/// Bytes of the longest text of a GUID, in braces.
constexpr std::size_t LongestGuid = 38;

/// Whether the bytes can be the text of a GUID, as far as their number and their characters go.
bool canBeGuid(std::string_view content);

} // namespace dump
