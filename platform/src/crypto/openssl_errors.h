#pragma once

namespace crypto::openssl
{

/// Keeps OpenSSL's error queue of this thread empty before and after a piece of work.
class ErrorScope
{
public:
    ErrorScope() noexcept;
    ~ErrorScope();

    ErrorScope(const ErrorScope&) = delete;
    ErrorScope& operator=(const ErrorScope&) = delete;

    /// Throws with the first error that OpenSSL put into the queue.
    [[noreturn]] static void raise();
};

} // namespace crypto::openssl
