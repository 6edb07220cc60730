#include <zelmodel/enums/sennight_of_month.h>

#include <zelplatform/exc/exc.h>
#include <zelplatform/util/util.h>

#include "detail/enum_rows.h"

namespace zelplatform::model::structs::gfs
{
namespace
{

using Rows = ESennightOfMonth;

constexpr auto StoredNames = detail::enumRows<Rows::type>({
    {Rows::First, "First"},
    {Rows::Second, "Second"},
    {Rows::Third, "Third"},
    {Rows::Fourth, "Fourth"},
    {Rows::Last, "Last"},
});

} // namespace

ESennightOfMonth::type ESennightOfMonth::fromStr(const std::string& text)
{
    if (const auto value = detail::findValue(StoredNames, text))
        return *value;
    throw exc::CRuntimeExc("Cannot convert value [%1] to ESennightOfMonth.", text);
}

std::string ESennightOfMonth::toLongStr(type value)
{
    if (const auto text = detail::findText(StoredNames, value))
        return std::string(*text);
    throw exc::CRuntimeExc("Cannot convert ESennightOfMonth value [%1] to string.", util::toStr(value));
}

const std::vector<std::string>& ESennightOfMonth::getLongStrSet()
{
    // Never freed, so that it outlives every static object that asks for it.
    static const auto& names = *new std::vector<std::string>(detail::listTexts(StoredNames));
    return names;
}

} // namespace zelplatform::model::structs::gfs
