#include <crypto/openssl_errors.h>

#include <array>

#include <openssl/err.h>

#include <zelplatform/exc/exc.h>

namespace crypto::openssl
{

ErrorScope::ErrorScope() noexcept
{
    ERR_clear_error();
}

ErrorScope::~ErrorScope()
{
    ERR_clear_error();
}

// The data that OpenSSL may keep beside an error is left out: it can quote the input.
void ErrorScope::raise()
{
    std::array<char, 256> text{};
    ERR_error_string_n(ERR_get_error(), text.data(), text.size());
    throw exc::CRuntimeExc("OpenSSL reports [%1].", text.data());
}

} // namespace crypto::openssl
