#include <zelmodel/structs/schedule/backup_window.h>

#include "detail/enum_names.h"

#include <zelplatform/exc/exc.h>
#include <zelplatform/util/util.h>
#include <zelplatform/xmlpp/xml_undo.h>

namespace zelplatform::model::structs
{
namespace
{

using datetime::EDayOfWeek;

EDayOfWeek::type dayFromName(const std::string& name)
{
    if (const auto day = magic_enum::enum_cast<EDayOfWeek::type>(name))
        return *day;
    throw exc::CRuntimeExc("Unknown day of the week value: [%1].", name);
}

} // namespace

void BackupWindow::injectMatrix(xmlpp::CXmlNode& node) const
{
    static constexpr const char* attributes[] = {KindTag};
    const xmlpp::CXmlUndo undo(node, attributes);
    node.SetInt64Attribute(KindTag, m_matrix.getScheduleWindowKind());
    auto days = node.AddNode(DaysTag);
    for (const auto day : magic_enum::enum_values<EDayOfWeek::type>())
    {
        const auto intervals = getIntervals(day);
        if (!intervals.empty())
            days.AddNode(std::string(magic_enum::enum_name(day))).SetAttribute(IntervalsTag, intervals);
    }
}

DayHourMatrix BackupWindow::getMatrix(const xmlpp::CXmlNode& node)
{
    ScheduleParser parser(util::safe_cast<EScheduleWindowKind>(node.GetInt64Attribute(KindTag)));
    const auto days = node.FindChildNode(DaysTag);
    if (!days)
        return parser.getMatrix();
    for (const auto& child : days->GetChildNodes())
    {
        const auto day = dayFromName(child.GetName());
        if (const auto intervals = child.FindAttribute(IntervalsTag))
            parser.parseDay(day, std::string(*intervals));
    }
    return parser.getMatrix();
}

// A negative offset is written as a very large number, and read back as the same one: kept on purpose.
void BackupWindow::toXml(xmlpp::CXmlNode& parent) const
try
{
    const xmlpp::CXmlUndo undo(parent);
    auto node = parent.AddNode(BackupWindowTag);
    node.SetUint64Attribute(MinutesTag, static_cast<unsigned long>(static_cast<long>(m_hourlyOffsetMinutes)));
    injectMatrix(node);
}
catch (std::exception& cause)
{
    exc::RegenTraceExc("Backup Window: Failed to serialize to Xml.", cause);
}

// The offset is cut to 32 bits, kept on purpose.
std::shared_ptr<BackupWindow> BackupWindow::fromXml(const xmlpp::CXmlNode& parent)
{
    const auto node = parent.GetFirstChildNode(BackupWindowTag);
    const auto minutes = static_cast<int>(node.GetInt64Attribute(MinutesTag, xmlpp::EInt64Form::UnsignedWrapped));
    return std::make_shared<BackupWindow>(getMatrix(node), minutes);
}

} // namespace zelplatform::model::structs
