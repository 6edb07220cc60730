#include <zelmodel/structs/certificate.h>

namespace zelplatform::model::structs
{

std::shared_ptr<crypto::SOstraCertificateContainer> SCertificate::ToOstraCertificateContainer() const
{
    return std::make_shared<crypto::SOstraCertificateContainer>(certificate, privateKey);
}

} // namespace zelplatform::model::structs
