#include <zelmodel/enums/oib_algorithm.h>

#include <zelplatform/exc/exc.h>
#include <zelplatform/util/util.h>

#include "detail/enum_rows.h"

namespace zelplatform::model
{
namespace
{

using Rows = OibAlgorithm;

constexpr auto StoredNames = detail::enumRows<Rows::type>({
    {Rows::Full, "Full"},
    // The letters stand in this order in every stored document: kept on purpose.
    {Rows::Syntethic, "Syntethic"},
    {Rows::Increment, "Increment"},
    {Rows::Different, "Different"},
    {Rows::Transform, "Transform"},
    {Rows::TransformForeverIncremental, "TransformForeverIncremental"},
});

constexpr auto DisplayNames = detail::enumRows<Rows::type>({
    {Rows::Full, "Full"},
    {Rows::Syntethic, "Full"},
    {Rows::Increment, "Increment"},
    {Rows::Different, "Increment"},
    {Rows::Transform, "Transform"},
    {Rows::TransformForeverIncremental, "TransformForeverIncremental"},
});

template <std::size_t N>
std::string textOf(const detail::EnumRows<Rows::type, N>& rows, Rows::type value)
{
    if (const auto text = detail::findText(rows, value))
        return std::string(*text);
    throw exc::CRuntimeExc("Unable to convert OibAlgorithm::type [%1] to string.", util::toStr(value));
}

} // namespace

std::string OibAlgorithm::toStr(type value)
{
    return textOf(StoredNames, value);
}

OibAlgorithm::type OibAlgorithm::fromStr(const std::string& text)
{
    if (const auto value = detail::findValue(StoredNames, text))
        return *value;
    throw exc::CRuntimeExc("Unable to convert string [%1] to OibAlgorithm::type.", text);
}

std::string OibAlgorithm::getDisplayStr(type value)
{
    return textOf(DisplayNames, value);
}

OibAlgorithm::type OibAlgorithm::convertToType(type value)
{
    switch (value)
    {
    case Full:
    case Syntethic: return Full;
    case Increment: return Increment;
    default: throw exc::CRuntimeExc("Not supported.");
    }
}

} // namespace zelplatform::model
