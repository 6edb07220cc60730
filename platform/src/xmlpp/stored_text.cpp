#include "stored_text.h"

#include <tinyxml2.h>

namespace xmlpp::detail
{

// The texts of a document are private to the parser's classes, and none of their calls keeps a text until it has the
// next one. An explicit instantiation may name private members: these functions give them.
template <class TKey, typename TKey::Member Text>
struct Opened
{
    friend typename TKey::Member memberOf(TKey) noexcept { return Text; }
};

struct AttributeName
{
    using Member = tinyxml2::StrPair tinyxml2::XMLAttribute::*;
    friend Member memberOf(AttributeName) noexcept;
};

struct AttributeValue
{
    using Member = tinyxml2::StrPair tinyxml2::XMLAttribute::*;
    friend Member memberOf(AttributeValue) noexcept;
};

struct NodeValue
{
    using Member = tinyxml2::StrPair tinyxml2::XMLNode::*;
    friend Member memberOf(NodeValue) noexcept;
};

struct FindOrCreate
{
    using Member = tinyxml2::XMLAttribute* (tinyxml2::XMLElement::*)(const char*);
    friend Member memberOf(FindOrCreate) noexcept;
};

template struct Opened<AttributeName, &tinyxml2::XMLAttribute::_name>;
template struct Opened<AttributeValue, &tinyxml2::XMLAttribute::_value>;
template struct Opened<NodeValue, &tinyxml2::XMLNode::_value>;
template struct Opened<FindOrCreate, &tinyxml2::XMLElement::FindOrCreateAttribute>;

namespace
{

// The parser gives attributes to be read only.
template <class TKey>
tinyxml2::StrPair& stored(const tinyxml2::XMLAttribute& attribute, TKey key) noexcept
{
    return const_cast<tinyxml2::XMLAttribute&>(attribute).*memberOf(key);
}

void replace(tinyxml2::StrPair& stored, const char* text)
{
    tinyxml2::StrPair next;
    next.SetStr(text);
    stored.Reset();
    next.TransferTo(&stored);
}

/// Takes an attribute back that could not be finished: it has no value yet, and no name either when its name was what
/// there was no memory for.
class AddedAttribute
{
public:
    AddedAttribute(tinyxml2::XMLElement& element, const char* name) noexcept : m_element(element), m_name(name) {}
    AddedAttribute(const AddedAttribute&) = delete;
    AddedAttribute& operator=(const AddedAttribute&) = delete;

    ~AddedAttribute()
    {
        if (!m_isFinished)
            takeBack();
    }

    void finish() noexcept { m_isFinished = true; }

private:
    void takeBack() noexcept
    {
        const auto* at = m_element.FirstAttribute();
        while (at != nullptr && at->Value() != nullptr)
            at = at->Next();
        if (at == nullptr)
            return;
        if (at->Name() == nullptr)
            stored(*at, AttributeName()).SetInternedStr(m_name);
        m_element.DeleteAttribute(m_name);
    }

    tinyxml2::XMLElement& m_element;
    const char* m_name;
    bool m_isFinished = false;
};

} // namespace

tinyxml2::StrPair& valueOf(const tinyxml2::XMLAttribute& attribute) noexcept
{
    return stored(attribute, AttributeValue());
}

void setName(tinyxml2::XMLElement& element, const char* name)
{
    replace(element.*memberOf(NodeValue()), name);
}

void setText(tinyxml2::XMLText& node, const char* text)
{
    replace(node.*memberOf(NodeValue()), text);
}

void setAttribute(tinyxml2::XMLElement& element, const char* name, const char* value)
{
    AddedAttribute added(element, name);
    auto& former = valueOf(*(element.*memberOf(FindOrCreate()))(name));
    if (former.GetStr() != nullptr)
        replace(former, value);
    else
        former.SetStr(value);
    added.finish();
}

} // namespace xmlpp::detail
