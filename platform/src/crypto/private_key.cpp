#include <zelplatform/crypto/private_key.h>

#include <cstddef>
#include <exception>
#include <string_view>
#include <utility>

#include <openssl/evp.h>

#include <crypto/openssl_errors.h>
#include <crypto/pem_block.h>
#include <zelplatform/exc/exc.h>
#include <zelplatform/util/base64.h>
#include <zelplatform/util/numbers.h>

namespace crypto::openssl
{
namespace
{

// Ten times the longest keys in use. What is no key is tried in every known form, each of which looks at all of it.
constexpr std::size_t MaxBodySize = 64UL * 1024;

constexpr std::string_view LabelEnd = "PRIVATE KEY";

bool isPrivateKey(std::string_view label)
{
    return label.size() >= LabelEnd.size() && label.substr(label.size() - LabelEnd.size()) == LabelEnd;
}

// The older forms tell of the encryption in headers before the data.
bool isEncrypted(const PemBlock& block)
{
    return block.label == "ENCRYPTED PRIVATE KEY" || block.body.find(':') != std::string_view::npos;
}

} // namespace

void CEvpPrivateKey::Release::operator()(evp_pkey_st* key) const noexcept
{
    EVP_PKEY_free(key);
}

std::shared_ptr<CEvpPrivateKey> CEvpPrivateKey::FromPem(const std::string& pem)
try
{
    const auto block = findPemBlock(pem, isPrivateKey);
    if (isEncrypted(block))
        throw exc::CRuntimeExc("It is encrypted.");
    if (block.body.size() > MaxBodySize)
        throw exc::CRuntimeExc("Key of [%1] characters is longer than [%2].", util::toStr(block.body.size()),
                               util::toStr(MaxBodySize));
    const auto der = util::fromBase64(block.body);
    const ErrorScope errors;
    const auto* end = reinterpret_cast<const unsigned char*>(der.data());
    const auto* const derEnd = end + der.size();
    Handle key(d2i_AutoPrivateKey(nullptr, &end, static_cast<long>(der.size())));
    if (!key)
        ErrorScope::raise();
    if (end != derEnd)
        throw exc::CRuntimeExc("Bytes follow the key.");
    return std::shared_ptr<CEvpPrivateKey>(new CEvpPrivateKey(std::move(key)));
}
catch (std::exception& cause)
{
    exc::RegenTraceExc("Unable to read private key.", cause);
}

} // namespace crypto::openssl
