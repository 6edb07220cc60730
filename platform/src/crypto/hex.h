#pragma once

#include <cstddef>
#include <string>

namespace crypto
{

/// The bytes as upper-case hexadecimal digits without separators.
std::string hexText(const void* data, std::size_t size);

} // namespace crypto
