#include "visitors.h"

#include <cstddef>
#include <utility>
#include <vector>

#include <zelplatform/guid/guid.h>
#include <zelplatform/util/util.h>

#include "document_names.h"
#include "element_fields.h"
#include "words.h"

namespace describe
{
namespace
{

using zelplatform::model::transform::CCreateGfsSyntheticFullSpec;
using zelplatform::model::transform::CCreateSyntheticFullSpec;
using zelplatform::model::transform::CTransformSpec;
using zelplatform::model::transform::ETransformOperationType;

std::string tellOperation(ETransformOperationType::type type)
{
    switch (type)
    {
    case ETransformOperationType::DeletePoint: return "delete restore points";
    case ETransformOperationType::CreateSyntheticFull: return "create a synthetic full";
    }
    return "of an unknown kind (" + util::toStr(type) + ")";
}

template <class TSpec>
void addIdentifiers(const TSpec& spec, ElementFields& fields)
{
    fields.addIdentifier("sessionId", "Session", spec.GetSessionId(), transform_names::Id);
    fields.addIdentifier("backupId", "Backup", spec.GetBackupId(), transform_names::BackupId);
    const auto operation = spec.GetTrasformOperationType();
    fields.add("operationType", "Operation", static_cast<long>(operation), tellOperation(operation),
               transform_names::OperationType);
}

/// The points one by one; the places are their elements, in the same order.
Node visitPoints(const char* name, const char* label, const std::vector<guid::guid_t>& points, const Place& list)
{
    const auto count = countOf(points.size(), "restore point") + (points.size() > 1 ? ", in this order" : "");
    auto node = makeField(name, label, "", points.empty() ? "none" : count, list.origin());
    node.isList = true;
    const auto places = list.children(transform_names::Guid);
    for (std::size_t i = 0; i < points.size(); ++i)
    {
        const auto origin = i < places.size() ? places[i].origin() : list.origin();
        node.children.push_back(
            makeField("point", util::toStr(i + 1), util::toStr(points[i]), identifierOf(points[i]), origin));
    }
    return node;
}

// A document of the older generation names its one point in an attribute.
Node visitLastPoints(const std::vector<guid::guid_t>& points, const Place& place)
{
    const auto list = place.child(transform_names::LastIncrementPointIds);
    auto node = visitPoints("lastIncrementPoints", "Last increments", points, list);
    if (list.isThere())
        return node;
    node.origin = asOlder(place.originOf(transform_names::LastIncrementPointId));
    for (auto& point : node.children)
        point.origin = place.originOf(transform_names::LastIncrementPointId);
    return node;
}

} // namespace

Node visitDeletePointTransform(const CTransformSpec& spec, const Place& place)
{
    auto node = makeField("transformSpec", "Delete-point transform", "", "", place.origin());
    ElementFields fields(node, place);
    addIdentifiers(spec, fields);
    const Value type(static_cast<long>(spec.GetTransformType()));
    fields.add("transformType", "Kind of transform", type, "number " + type.text, transform_names::TransformType);
    fields.addFlag("integrityCheckEnabled", "Integrity check", spec.IsIntegrityCheckEnabled(), "on", "off",
                   transform_names::EnableIntegrityChecks);
    node.children.push_back(
        visitPoints("pointIds", "To transform", spec.GetPointIds(), place.child(transform_names::IncrementPointIds)));
    return node;
}

Node visitSyntheticFullTransform(const CCreateSyntheticFullSpec& spec, const Place& place)
{
    auto node = makeField("createSyntheticFullSpec", "Synthetic full transform", "", "", place.origin());
    ElementFields fields(node, place);
    addIdentifiers(spec, fields);
    node.children.push_back(visitLastPoints(spec.GetLastIncrementPoints(), place));
    fields.addText("jobTargetFile", "Target file", spec.GetJobTargetFile(), transform_names::JobTargetFile);
    return node;
}

Node visitGfsSyntheticFullTransform(const CCreateGfsSyntheticFullSpec& spec, const Place& place)
{
    auto node = makeField("createGfsSyntheticFullSpec", "GFS synthetic full transform", "", "", place.origin());
    ElementFields fields(node, place);
    addIdentifiers(spec, fields);
    fields.addText("jobTargetFile", "Target file", spec.GetJobTargetFile(), transform_names::JobTargetFile);
    return node;
}

} // namespace describe
