#pragma once

#include <string>
#include <vector>

#include <zelplatform/xmlpp/lookup_record.h>
#include <zelplatform/xmlpp/xml_node.h>

#include "node.h"

namespace describe
{

/// What a part of a document is.
enum class EPart
{
    Attribute,
    Element,
    Text,
};

/// A part of a document that its reader did not ask for.
struct IgnoredPart
{
    EPart part;
    std::string name;  ///< empty for a text
    std::string owner; ///< the element that holds it; empty for the document
    int line;
    std::string
        nearest; ///< the name that was most likely meant, of those that the reader missed; empty when none is close
    bool isRepeated = false; ///< an element of a name of which only the first one counts
};

/// The most parts that are listed.
constexpr std::size_t MostIgnoredParts = 1000;

/// The parts at and below the node that are in none of the questions, in document order; what stands below such an
/// element is not listed. Left out is what belongs to the form although its readers never look at it: what is written
/// for readers of older forms, and declarations of namespaces.
std::vector<IgnoredPart> findIgnored(const xmlpp::CXmlNode& scope, const std::vector<xmlpp::SLookup>& lookups);

/// "attribute MaxPoint of JobOptions".
std::string tellPart(const IgnoredPart& part);

/// "did you mean MaxPoints?", "only the first Schedule counts", or nothing.
std::string tellRemedy(const IgnoredPart& part);

/// The parts as a list of fields, one for each.
Node describeIgnored(const std::vector<IgnoredPart>& parts);

} // namespace describe
