#pragma once

#include <string>
#include <vector>

#include <zelplatform/export.h>
#include <zelplatform/xmlpp/xml_node.h>

namespace xmlpp
{

/// What a reader asked an element for.
enum class ELookup
{
    Attribute,     ///< an attribute of the name
    FirstChild,    ///< the first child of the name, or whether there is one
    NamedChildren, ///< all children of the name
    AllChildren,   ///< all children, whatever their names
    Text,          ///< the text of the element
    Visit,         ///< the element itself, as the next one of a range; the name is its own
};

/// One question of a reader.
struct SLookup
{
    /// What was asked for.
    ELookup kind;
    CXmlNode node;    ///< the element, or the document, that was asked
    std::string name; ///< the name that was looked for; empty where none is
    bool isFound;     ///< true for a range and a text, which are there even when they are empty
};

/// While it lives, it keeps every question that this thread asks through CXmlNode, in the order of asking: so a program
/// learns what a reader of the library looks at and, after a refusal, where it stopped. Questions cost what they cost
/// before while no record lives. Of several records the innermost one keeps the questions; they must end in the
/// opposite order of their beginning, on the thread that began them.
class ZELPLATFORM_API CLookupRecord
{
public:
    /// Begins the record; it ends with the object.
    CLookupRecord();
    ~CLookupRecord();
    CLookupRecord(const CLookupRecord&) = delete;
    CLookupRecord& operator=(const CLookupRecord&) = delete;

    /// The questions so far.
    const std::vector<SLookup>& GetLookups() const noexcept { return m_lookups; }

private:
    friend class CLookupPause;
    friend struct LookupRecorder;

    CLookupRecord* m_outer;
    std::vector<SLookup> m_lookups;
};

/// While it lives, nothing that this thread asks is recorded: for a program that looks at a document on behalf of
/// itself in the middle of reading.
class ZELPLATFORM_API CLookupPause
{
public:
    /// Begins the pause; it ends with the object.
    CLookupPause() noexcept;
    ~CLookupPause();
    CLookupPause(const CLookupPause&) = delete;
    CLookupPause& operator=(const CLookupPause&) = delete;

private:
    CLookupRecord* m_paused;
};

} // namespace xmlpp
