#include <zelmodel/transforms.h>

#include "reader.h"
#include "samples.h"
#include "xml_forms.h"

namespace readers
{
namespace
{

using namespace zelplatform::model::transform;

template <class TSpec>
std::string rewriteText(const std::string& text)
{
    return TSpec::FromString(text)->ToString();
}

template <class TSpec>
std::string rewriteNode(const std::string& text)
{
    return TSpec::FromXmlNode(rootOf(text))->ToString();
}

template <ETransformOperationType::type Type>
std::string rewriteAny(const std::string& text)
{
    return ITransformSpec::UnserializeSpec(rootOf(text), Type)->ToString();
}

} // namespace

Readers transformReaders()
{
    const auto deletions = goldenFolder("DeletePointTransformSpec") + goldenFiles({"legacy/delete_point_text_points"});
    const auto fulls = goldenFolder("FullTransformSpec") + goldenFiles({"legacy/full_transform_single_point"});
    const auto gfsFulls = goldenFolder("GfsFullTransformSpec");
    return {
        {"CTransformSpec.FromString", rewriteText<CTransformSpec>, deletions},
        {"CTransformSpec.FromXmlNode", rewriteNode<CTransformSpec>, deletions},
        {"CCreateSyntheticFullSpec.FromString", rewriteText<CCreateSyntheticFullSpec>, fulls},
        {"CCreateSyntheticFullSpec.FromXmlNode", rewriteNode<CCreateSyntheticFullSpec>, fulls},
        {"CCreateGfsSyntheticFullSpec.FromString", rewriteText<CCreateGfsSyntheticFullSpec>, gfsFulls},
        {"CCreateGfsSyntheticFullSpec.FromXmlNode", rewriteNode<CCreateGfsSyntheticFullSpec>, gfsFulls},
        {"ITransformSpec.UnserializeSpec.deletePoint", rewriteAny<ETransformOperationType::DeletePoint>, deletions},
        {"ITransformSpec.UnserializeSpec.createSyntheticFull", rewriteAny<ETransformOperationType::CreateSyntheticFull>,
         fulls},
    };
}

} // namespace readers
