#include <zelmodel/size/data_size_unit.h>

#include <zelplatform/exc/exc.h>
#include <zelplatform/util/util.h>

#include "detail/enum_rows.h"

namespace zelplatform
{
namespace
{

using Rows = EDataSizeUnit;

constexpr const char* TypeName = "EDataSizeUnit";

constexpr auto LongNames = model::detail::enumRows<Rows::type>({
    {Rows::B, "B"},
    {Rows::KB, "KB"},
    {Rows::MB, "MB"},
    {Rows::GB, "GB"},
    {Rows::TB, "TB"},
    {Rows::PB, "PB"},
    {Rows::EB, "EB"},
});

constexpr auto ShortNames = model::detail::enumRows<Rows::type>({
    {Rows::B, "B"},
    {Rows::KB, "K"},
    {Rows::MB, "M"},
    {Rows::GB, "G"},
    {Rows::TB, "T"},
    {Rows::PB, "P"},
    {Rows::EB, "E"},
});

template <std::size_t N>
std::string textOf(const model::detail::EnumRows<Rows::type, N>& rows, Rows::type value)
{
    if (const auto text = model::detail::findText(rows, value))
        return std::string(*text);
    throw exc::CRuntimeExc("Cannot convert Unit type to string: unknown value [%1].", util::toStr(value));
}

} // namespace

const std::vector<std::string>& EDataSizeUnit::GetLongStrSet()
{
    static const auto names = model::detail::listTexts(LongNames);
    return names;
}

const std::vector<std::string>& EDataSizeUnit::GetShortStrSet()
{
    static const auto names = model::detail::listTexts(ShortNames);
    return names;
}

std::string EDataSizeUnit::toStr(type value)
try
{
    return textOf(LongNames, value);
}
catch (std::exception& cause)
{
    exc::RegenTraceExc("%1: Failed to convert to long string.", TypeName, cause);
}

std::string EDataSizeUnit::toShortStr(type value)
try
{
    return textOf(ShortNames, value);
}
catch (std::exception& cause)
{
    exc::RegenTraceExc("%1: Failed to convert to short string.", TypeName, cause);
}

EDataSizeUnit::type EDataSizeUnit::FromStr(const std::string& text)
try
{
    if (const auto value = model::detail::findValueIgnoringCase(LongNames, text))
        return *value;
    if (const auto value = model::detail::findValueIgnoringCase(ShortNames, text))
        return *value;
    throw exc::CRuntimeExc("Unknown data unit: [%1].", text);
}
catch (std::exception& cause)
{
    exc::RegenTraceExc("%1: Failed to convert from string [%2].", TypeName, text, cause);
}

} // namespace zelplatform
