#include <zelmodel/enums/crypto_alg.h>

#include <zelplatform/exc/exc.h>
#include <zelplatform/util/util.h>

namespace zelplatform::model
{
namespace
{

struct Row
{
    ECryptoAlg::type qor;
    crypto::ECryptAlgs local;
};

constexpr Row Rows[] = {
    {ECryptoAlg::Qor1, crypto::ECryptAlgs::Local0},
    {ECryptoAlg::Qor2, crypto::ECryptAlgs::Local1},
};

} // namespace

crypto::ECryptAlgs ECryptoAlg::ToLocalType(type value)
{
    for (const auto& row : Rows)
    {
        if (row.qor == value)
            return row.local;
    }
    throw exc::CRuntimeExc("Unknown qor crypto alg: %1", util::toStr(value));
}

ECryptoAlg::type ECryptoAlg::FromLocalType(crypto::ECryptAlgs value)
{
    for (const auto& row : Rows)
    {
        if (row.local == value)
            return row.qor;
    }
    throw exc::CRuntimeExc("Unknown local crypto alg: %1", util::toStr(value));
}

} // namespace zelplatform::model
