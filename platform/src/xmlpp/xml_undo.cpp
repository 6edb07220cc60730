#include <zelplatform/xmlpp/xml_undo.h>

#include <exception>

#include <tinyxml2.h>

#include "stored_text.h"

namespace xmlpp
{

CXmlUndo::CXmlUndo(const CXmlNode& node) : CXmlUndo(node, nullptr, 0) {}

CXmlUndo::CXmlUndo(const CXmlNode& node, const char* const* attributes, std::size_t count)
    : m_node(node),
      m_attributes(attributes),
      m_count(count),
      m_lastChild(node.m_node->LastChild()),
      m_exceptions(std::uncaught_exceptions())
{
    const auto* element = node.findElement();
    for (std::size_t i = 0; element != nullptr && i < count; ++i)
    {
        const auto* attribute = element->FindAttribute(attributes[i]);
        if (attribute == nullptr)
            continue;
        if (m_formerValues == nullptr)
            m_formerValues = std::make_unique<tinyxml2::StrPair[]>(count);
        m_formerValues[i].SetStr(attribute->Value());
    }
}

CXmlUndo::~CXmlUndo()
{
    if (std::uncaught_exceptions() > m_exceptions)
        undo();
}

void CXmlUndo::undo() noexcept
{
    auto& node = *m_node.m_node;
    while (node.LastChild() != m_lastChild)
        node.DeleteChild(node.LastChild());
    auto* element = m_node.findElement();
    if (element == nullptr)
        return;
    for (std::size_t i = 0; i < m_count; ++i)
    {
        const auto* attribute = element->FindAttribute(m_attributes[i]);
        if (attribute == nullptr)
            continue;
        if (m_formerValues != nullptr && m_formerValues[i].GetStr() != nullptr)
        {
            auto& value = detail::valueOf(*attribute);
            value.Reset();
            m_formerValues[i].TransferTo(&value);
        }
        else
            element->DeleteAttribute(m_attributes[i]);
    }
    // The next look-up may have been to start at an attribute that is gone.
    element->SetUserData(nullptr);
}

} // namespace xmlpp
