#include "fields.h"

#include <algorithm>
#include <type_traits>

#include <zelplatform/exc/exc.h>

#include "describe/nearest_name.h"
#include "field_tables.h"

namespace edit
{
namespace
{

const Fields<JobDraft>& tableOf(const JobDraft&)
{
    return jobFields();
}

const Fields<ScheduleDraft>& tableOf(const ScheduleDraft&)
{
    return scheduleFields();
}

const Fields<WindowDraft>& tableOf(const WindowDraft&)
{
    return windowFields();
}

const Fields<GfsDraft>& tableOf(const GfsDraft&)
{
    static const auto fields = [] {
        Fields<GfsDraft> table;
        for (const auto& field : gfsFields())
            table.push_back({field.path, field.help,
                             [set = field.set](GfsDraft& draft, const std::string& text) { set(draft.policy, text); }});
        return table;
    }();
    return fields;
}

template <class TRecord>
const Field<TRecord>& fieldAt(const Fields<TRecord>& fields, const std::string& path)
{
    const auto found =
        std::find_if(fields.begin(), fields.end(), [&](const auto& field) { return field.path == path; });
    if (found != fields.end())
        return *found;
    std::vector<std::string> paths;
    for (const auto& field : fields)
        paths.push_back(field.path);
    const auto nearest = describe::nearestName(path, paths);
    throw UnknownField("There is no field [" + path + "] that can be set." +
                       (nearest.empty() ? "" : " The nearest one is [" + nearest + "]."));
}

template <class TRecord>
void setIn(TRecord& record, const Assignment& assignment)
{
    const auto& field = fieldAt(tableOf(record), assignment.path);
    try
    {
        field.set(record, assignment.text);
    }
    catch (const std::exception& cause)
    {
        exc::RegenTraceExc("The field [%1] cannot be set to [%2].", assignment.path, assignment.text, cause);
    }
}

} // namespace

std::vector<SettableField> fieldsOf(const Record& record)
{
    std::vector<SettableField> settable;
    std::visit(
        [&](const auto& draft) {
            for (const auto& field : tableOf(draft))
                settable.push_back({field.path, field.help});
        },
        record);
    return settable;
}

void setField(Record& record, const Assignment& assignment)
{
    std::visit([&](auto& draft) { setIn(draft, assignment); }, record);
}

} // namespace edit
