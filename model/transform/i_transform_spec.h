#pragma once

#include <memory>
#include <string>

#include <zelmodel/export.h>
#include <zelmodel/transform/transform_operation_type.h>
#include <zelplatform/guid/guid.h>
#include <zelplatform/xmlpp/xml_node.h>

/// Work on an existing backup chain.
namespace zelplatform::model::transform
{

/// A piece of work on an existing backup chain, told by the component that decides to the one that performs.
class ZELMODEL_API ITransformSpec
{
public:
    ITransformSpec() = default;
    ITransformSpec(const ITransformSpec&) = default;
    ITransformSpec(ITransformSpec&&) = default;
    ITransformSpec& operator=(const ITransformSpec&) = default;
    ITransformSpec& operator=(ITransformSpec&&) = default;
    virtual ~ITransformSpec();

    /// The session that performs the work.
    virtual guid::guid_t GetSessionId() const = 0;

    /// Spelled so in every component.
    virtual ETransformOperationType::type GetTrasformOperationType() const = 0;

    /// The document as text.
    virtual std::string ToString() const = 0;

    /// Reads the element as the work that the type names: 0 deletes points, 1 creates a synthetic full. Any other
    /// type, the GFS synthetic full's too, throws "Not implemented.".
    static std::shared_ptr<ITransformSpec> UnserializeSpec(const xmlpp::CXmlNode& node,
                                                           ETransformOperationType::type type);
};

} // namespace zelplatform::model::transform
