#include <zelmodel/transform/i_transform_spec.h>

#include <zelmodel/transform/create_synthetic_full_spec.h>
#include <zelmodel/transform/transform_spec.h>
#include <zelplatform/exc/exc.h>

namespace zelplatform::model::transform
{

ITransformSpec::~ITransformSpec() = default;

std::shared_ptr<ITransformSpec> ITransformSpec::UnserializeSpec(const xmlpp::CXmlNode& node,
                                                                ETransformOperationType::type type)
{
    switch (type)
    {
    case ETransformOperationType::DeletePoint: return CTransformSpec::FromXmlNode(node);
    case ETransformOperationType::CreateSyntheticFull: return CCreateSyntheticFullSpec::FromXmlNode(node);
    default: throw exc::CRuntimeExc("Not implemented.");
    }
}

} // namespace zelplatform::model::transform
