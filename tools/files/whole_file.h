#pragma once

#include <cstddef>
#include <string>

#include <zelplatform/crypto/sec_buffer.h>

namespace files
{

/// The whole input; throws InputError when it cannot be read, and refuses (exc::CRuntimeExc) one that is longer than
/// any document may be, before it is read whole.
std::string readInput(const std::string& name);

/// The same of an input that may hold keys, into secure memory; at most so many bytes.
crypto::sec_buffer_t readSecret(const std::string& name, std::size_t mostBytes);

} // namespace files
