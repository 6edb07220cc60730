#pragma once

#include <cstddef>
#include <string_view>

namespace zelmodel_test
{

/// Begins to count freed blocks with secrets anew, and forgets secrets that were added.
void watchSecrets() noexcept;

/// The byte that secrets of a test are made of, and how many in a row make one. It is a letter, so that a secret can be
/// taken for a text; it is no digit of an identifier.
constexpr char SecretByte = 'Q';
constexpr std::size_t SecretRun = 16;

/// One more secret, until watchSecrets: its bytes as they are.
void watchFor(std::string_view secret);

/// Whether the bytes hold a secret: as it is, as wide characters, in base64 or in hexadecimal.
bool holdsSecret(const void* bytes, std::size_t size) noexcept;

/// How many blocks of any origin (operator delete, free, a realloc that moves) were given back with a secret in them
/// since watchSecrets.
std::size_t secretsGivenBack() noexcept;

} // namespace zelmodel_test
