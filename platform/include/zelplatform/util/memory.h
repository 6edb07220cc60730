#pragma once

#include <cstddef>

#include <zelplatform/export.h>

namespace util
{

/// Overwrites the bytes in a way that no optimisation removes.
ZELPLATFORM_API void SecureErase(void* data, std::size_t size) noexcept;

} // namespace util
