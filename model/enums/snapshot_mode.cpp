#include <zelmodel/enums/snapshot_mode.h>

#include <zelplatform/exc/exc.h>
#include <zelplatform/util/util.h>

#include "detail/enum_rows.h"

namespace zelplatform::model
{
namespace
{

using Rows = ESnapshotMode;

constexpr const char* TypeName = "ESnapshotMode";

constexpr auto StoredNames = detail::enumRows<Rows::type>({
    {Rows::SnapshotRequired, "SnapshotRequired"},
    {Rows::NoSnapshot, "NoSnapshot"},
    {Rows::Hybrid, "Hybrid"},
});

} // namespace

std::string ESnapshotMode::ToString(type value)
try
{
    if (const auto text = detail::findText(StoredNames, value))
        return std::string(*text);
    throw exc::CRuntimeExc("Unexpected snapshot mode: [%1]", util::toStr(value));
}
catch (std::exception& cause)
{
    exc::RegenTraceExc("%1: Failed to convert [%2] to string.", TypeName, util::toStr(value), cause);
}

ESnapshotMode::type ESnapshotMode::FromString(const std::string& text)
try
{
    if (const auto value = detail::findValue(StoredNames, text))
        return *value;
    throw exc::CRuntimeExc("Unknown snapshot mode string: [%1].", text);
}
catch (std::exception& cause)
{
    exc::RegenTraceExc("%1: Failed to convert from string [%2].", TypeName, text, cause);
}

} // namespace zelplatform::model
