#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include <zelplatform/crypto/sec_buffer.h>
#include <zelplatform/export.h>

namespace util
{

/// The bytes in the standard base64 alphabet with '=' padding, in one line.
ZELPLATFORM_API std::string toBase64(const void* data, std::size_t size);

/// The bytes of a base64 text, in secure memory. Blank, tab, CR and LF are skipped; anything else that `toBase64` would
/// not write throws, without quoting the text. An empty text gives an empty buffer.
ZELPLATFORM_API crypto::sec_buffer_t fromBase64(std::string_view text);

} // namespace util
