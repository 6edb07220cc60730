#pragma once

#include <cstddef>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include <tinyxml2.h>

namespace describe
{

/// The direct text of an element, CDATA included, without the blanks around it.
std::string textOf(const tinyxml2::XMLElement& element);

/// The elements below a node by their names, in document order.
class ElementsByName
{
public:
    /// The parent may be none.
    explicit ElementsByName(const tinyxml2::XMLNode* parent);

    /// The next element of the name that was not taken yet; none when there is none.
    const tinyxml2::XMLElement* take(std::string_view name);

private:
    struct Row
    {
        std::vector<const tinyxml2::XMLElement*> elements;
        std::size_t taken = 0;
    };

    std::map<std::string_view, Row> m_rows;
};

} // namespace describe
