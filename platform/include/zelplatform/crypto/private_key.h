#pragma once

#include <memory>
#include <string>
#include <utility>

#include <zelplatform/export.h>

struct evp_pkey_st;

namespace crypto::openssl
{

/// A private key of any kind that OpenSSL knows.
class ZELPLATFORM_API CEvpPrivateKey
{
public:
    /// Reads the first private key (PKCS#8 or the older form of its kind, not encrypted) of a text of at most 1 MiB;
    /// all around it is passed over. Line breaks may have become blanks or may be missing. Our own copies made on the
    /// way are erased; OpenSSL's decoders leave some of theirs in memory that they release. Throws, without quoting the
    /// text, when there is no complete pair of BEGIN and END, when there are more than 64 KiB between them, or not one
    /// key.
    static std::shared_ptr<CEvpPrivateKey> FromPem(const std::string& pem);

    /// OpenSSL's key, owned by this object.
    evp_pkey_st* GetNative() const noexcept { return m_key.get(); }

private:
    struct Release
    {
        void operator()(evp_pkey_st* key) const noexcept;
    };

    using Handle = std::unique_ptr<evp_pkey_st, Release>;

    explicit CEvpPrivateKey(Handle key) noexcept : m_key(std::move(key)) {}

    Handle m_key;
};

} // namespace crypto::openssl
