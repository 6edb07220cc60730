#pragma once

#include <cstddef>

#include <zelplatform/export.h>

namespace util
{

/// Overwrites the bytes in a way that no optimisation removes.
ZELPLATFORM_API void SecureErase(void* data, std::size_t size) noexcept;

/// True when both pieces hold the same bytes. Takes the same time wherever they differ.
ZELPLATFORM_API bool SecureEqual(const void* a, const void* b, std::size_t size) noexcept;

} // namespace util
