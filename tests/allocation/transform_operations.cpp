#include <zelmodel/transforms.h>

#include "assigning.h"
#include "samples.h"

namespace zelmodel_test
{
namespace
{

using namespace zelplatform::model::transform;

const guid::guid_t First({1});
const guid::guid_t Second({2});

CTransformSpec deletion()
{
    CTransformSpec spec;
    spec.SetSessionId(First);
    spec.SetPointIds({First});
    return spec;
}

CTransformSpec otherDeletion()
{
    CTransformSpec spec;
    spec.SetBackupId(Second);
    spec.SetPointIds({First, Second, First, Second, First});
    return spec;
}

CCreateSyntheticFullSpec full()
{
    return {First, Second, {First}, longText("file")};
}

CCreateSyntheticFullSpec otherFull()
{
    return {Second, First, {First, Second, First}, longText("other") + longText()};
}

CCreateGfsSyntheticFullSpec gfsFull()
{
    return {First, Second, ETransformOperationType::CreateSyntheticFull, longText("file")};
}

CCreateGfsSyntheticFullSpec otherGfsFull()
{
    return {Second, First, ETransformOperationType::DeletePoint, longText("other") + longText()};
}

template <class TSpec>
std::string tell(const TSpec& spec)
{
    return spec.ToString();
}

template <class TSpec>
Operations common(const std::string& name, const Make<TSpec>& make, const Make<TSpec>& other)
{
    return asking<TSpec>(name, make, {{"ToString", tell<TSpec>}}) + assigning<TSpec>(name, make, other, tell<TSpec>);
}

} // namespace

Operations transformOperations()
{
    using Delete = CTransformSpec;
    using Full = CCreateSyntheticFullSpec;
    using GfsFull = CCreateGfsSyntheticFullSpec;
    return changing<Delete>("CTransformSpec", deletion, tell<Delete>,
                            {{"SetPointIds",
                              [](Delete& spec) {
                                  spec.SetPointIds({Second, First, Second});
                              }},
                             {"AddPointId", [](Delete& spec) { spec.AddPointId(Second); }},
                             {"SetSessionId", [](Delete& spec) { spec.SetSessionId(Second); }}}) +
           changing<Full>(
               "CCreateSyntheticFullSpec", full, tell<Full>,
               {{"SetLastIncrementPoints",
                 [](Full& spec) {
                     spec.SetLastIncrementPoints({Second, First, Second});
                 }},
                {"SetJobTargetFile", [](Full& spec) { spec.SetJobTargetFile(longText("other") + longText()); }}}) +
           changing<GfsFull>(
               "CCreateGfsSyntheticFullSpec", gfsFull, tell<GfsFull>,
               {{"SetJobTargetFile", [](GfsFull& spec) { spec.SetJobTargetFile(longText("other") + longText()); }}}) +
           common<Delete>("CTransformSpec", deletion, otherDeletion) +
           common<Full>("CCreateSyntheticFullSpec", full, otherFull) +
           common<GfsFull>("CCreateGfsSyntheticFullSpec", gfsFull, otherGfsFull);
}

} // namespace zelmodel_test
