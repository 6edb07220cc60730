#include "element_fields.h"

#include <cstddef>

#include <zelplatform/util/util.h>

#include "words.h"

namespace describe
{
namespace
{

bool carriesPassword(const std::string& address)
{
    const auto scheme = address.find("://");
    const auto colon = address.find(':', scheme == std::string::npos ? 0 : scheme + 3);
    return colon != std::string::npos && address.find('@', colon) != std::string::npos;
}

} // namespace

void ElementFields::add(const char* name, const char* label, const Value& value, const std::string& words,
                        xmlpp::CXmlName attribute)
{
    m_node.children.push_back(makeField(name, label, value, words, m_place.originOf(attribute)));
}

void ElementFields::addDetail(const char* name, const char* label, const Value& value, const std::string& words,
                              xmlpp::CXmlName attribute)
{
    m_node.children.push_back(makeDetail(name, label, value, words, m_place.originOf(attribute)));
}

void ElementFields::addText(const char* name, const char* label, const std::string& text, xmlpp::CXmlName attribute)
{
    add(name, label, text, textOr(text, "none"), attribute);
}

void ElementFields::addFlag(const char* name, const char* label, bool flag, const char* wordsOn, const char* wordsOff,
                            xmlpp::CXmlName attribute)
{
    add(name, label, flag, flag ? wordsOn : wordsOff, attribute);
}

void ElementFields::addNumber(const char* name, const char* label, const Value& number, xmlpp::CXmlName attribute)
{
    add(name, label, number, number.text, attribute);
}

void ElementFields::addIdentifier(const char* name, const char* label, const guid::guid_t& id,
                                  xmlpp::CXmlName attribute)
{
    add(name, label, util::toStr(id), identifierOf(id), attribute);
}

void ElementFields::addMoment(const char* name, const char* label, const datetime::CDateTime& moment,
                              xmlpp::CXmlName attribute)
{
    add(name, label, moment.toStdString(datetime::CDateTime::DefaultFormat), momentUtc(moment), attribute);
}

void ElementFields::addSecret(const char* name, const char* label, const std::string& secret, xmlpp::CXmlName attribute)
{
    m_node.children.push_back(makeSecret(name, label, secret, m_place.originOf(attribute)));
}

void ElementFields::addAddress(const char* name, const char* label, const std::string& address,
                               xmlpp::CXmlName attribute)
{
    if (carriesPassword(address))
        addSecret(name, label, address, attribute);
    else
        addText(name, label, address, attribute);
}

} // namespace describe
