#pragma once

#include <cstdio>
#include <memory>
#include <stdexcept>
#include <string>

#include <openssl/bio.h>
#include <openssl/evp.h>
#include <openssl/pem.h>
#include <openssl/rsa.h>
#include <openssl/x509.h>

namespace zelmodel_test
{

using BioPtr = std::unique_ptr<BIO, decltype(&BIO_free_all)>;
using KeyPtr = std::unique_ptr<EVP_PKEY, decltype(&EVP_PKEY_free)>;
using X509Ptr = std::unique_ptr<X509, decltype(&X509_free)>;

inline void require(bool isDone)
{
    if (!isDone)
        throw std::runtime_error("OpenSSL failed.");
}

/// What the action writes into OpenSSL's memory.
template <class F>
std::string writtenText(F&& action)
{
    const BioPtr bio(BIO_new(BIO_s_mem()), BIO_free_all);
    require(bio != nullptr && action(bio.get()) == 1);
    char* data = nullptr;
    const long size = BIO_get_mem_data(bio.get(), &data);
    return {data, static_cast<std::size_t>(size)};
}

inline KeyPtr made(EVP_PKEY* key)
{
    require(key != nullptr);
    return {key, EVP_PKEY_free};
}

inline KeyPtr makeEcKey()
{
    return made(EVP_EC_gen("P-256"));
}

inline KeyPtr makeRsaKey()
{
    return made(EVP_RSA_gen(2048));
}

inline KeyPtr makeEd25519Key()
{
    return made(EVP_PKEY_Q_keygen(nullptr, nullptr, "ED25519"));
}

/// A certificate of that name for the key, signed by it.
inline X509Ptr makeCertificate(EVP_PKEY* key, const std::string& name)
{
    X509Ptr certificate(X509_new(), X509_free);
    require(certificate != nullptr);
    X509* const x509 = certificate.get();
    X509_NAME* const subject = X509_get_subject_name(x509);
    const auto* const bytes = reinterpret_cast<const unsigned char*>(name.data());
    require(X509_NAME_add_entry_by_txt(subject, "CN", MBSTRING_UTF8, bytes, static_cast<int>(name.size()), -1, 0) == 1);
    require(X509_set_issuer_name(x509, subject) == 1 && X509_set_pubkey(x509, key) == 1);
    require(ASN1_INTEGER_set(X509_get_serialNumber(x509), 1) == 1);
    require(X509_gmtime_adj(X509_getm_notBefore(x509), 0) != nullptr);
    require(X509_gmtime_adj(X509_getm_notAfter(x509), 3600) != nullptr);
    // The one kind of key that chooses the digest itself.
    const auto* const digest = EVP_PKEY_is_a(key, "ED25519") == 1 ? nullptr : EVP_sha256();
    require(X509_sign(x509, key, digest) != 0);
    return certificate;
}

inline std::string pemOf(X509* certificate)
{
    return writtenText([&](BIO* bio) { return PEM_write_bio_X509(bio, certificate); });
}

inline std::string derOf(X509* certificate)
{
    return writtenText([&](BIO* bio) { return i2d_X509_bio(bio, certificate); });
}

/// The SHA-256 of the bytes in upper-case hexadecimal digits: of a DER form the certificate's fingerprint.
inline std::string sha256(const std::string& bytes)
{
    unsigned char digest[EVP_MAX_MD_SIZE];
    unsigned size = 0;
    require(EVP_Digest(bytes.data(), bytes.size(), digest, &size, EVP_sha256(), nullptr) == 1);
    std::string text;
    for (unsigned i = 0; i < size; ++i)
    {
        char digits[3];
        std::snprintf(digits, sizeof(digits), "%02X", digest[i]);
        text += digits;
    }
    return text;
}

/// The key in the form for all kinds of keys.
inline std::string pemOf(EVP_PKEY* key)
{
    return writtenText(
        [&](BIO* bio) { return PEM_write_bio_PKCS8PrivateKey(bio, key, nullptr, nullptr, 0, nullptr, nullptr); });
}

/// The data between the lines of a block, in one line.
inline std::string bodyOf(const std::string& pem)
{
    const auto begin = pem.find('\n') + 1;
    std::string body;
    for (const char c : pem.substr(begin, pem.find("-----END", begin) - begin))
    {
        if (c != '\n')
            body += c;
    }
    return body;
}

inline std::string block(const std::string& label, const std::string& body)
{
    return "-----BEGIN " + label + "-----\n" + body + "\n-----END " + label + "-----\n";
}

inline std::string replaced(std::string text, const std::string& from, const std::string& to)
{
    for (auto at = text.find(from); at != std::string::npos; at = text.find(from, at + to.size()))
        text.replace(at, from.size(), to);
    return text;
}

/// Whether the message holds ten characters of the data in a row.
inline bool quotes(const std::string& message, const std::string& body)
{
    constexpr std::size_t Size = 10;
    for (std::size_t i = 0; i + Size <= body.size(); ++i)
    {
        if (message.find(body.substr(i, Size)) != std::string::npos)
            return true;
    }
    return false;
}

} // namespace zelmodel_test
