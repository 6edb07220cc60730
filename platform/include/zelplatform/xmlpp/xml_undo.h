#pragma once

#include <cstddef>
#include <memory>

#include <zelplatform/export.h>
#include <zelplatform/xmlpp/xml_node.h>

namespace tinyxml2
{
class StrPair;
} // namespace tinyxml2

namespace xmlpp
{

/// Lets a writer add all or nothing to a node of its caller: begun first, it takes back what was added to the node when
/// an exception ends its life. Children go that were appended meanwhile, and the named attributes get their former
/// values or go. It takes memory only for attributes that are there already, and none to undo.
class ZELPLATFORM_API CXmlUndo
{
public:
    /// For a writer that appends children and sets no attribute of the node itself.
    explicit CXmlUndo(const CXmlNode& node);

    /// For a writer that sets attributes of the node, too: every one must be named. The names outlive the object.
    template <std::size_t N>
    CXmlUndo(const CXmlNode& node, const char* const (&attributes)[N]) : CXmlUndo(node, attributes, N)
    {
    }

    CXmlUndo(const CXmlUndo&) = delete;
    CXmlUndo& operator=(const CXmlUndo&) = delete;
    ~CXmlUndo();

private:
    CXmlUndo(const CXmlNode& node, const char* const* attributes, std::size_t count);
    void undo() noexcept;

    const CXmlNode& m_node;
    const char* const* m_attributes;
    std::size_t m_count;
    std::unique_ptr<tinyxml2::StrPair[]> m_formerValues; ///< one for each name, or nothing where none was there
    tinyxml2::XMLNode* m_lastChild;
    int m_exceptions;
};

} // namespace xmlpp
