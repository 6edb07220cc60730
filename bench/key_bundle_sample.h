#pragma once

#include <cstddef>

#include <zelmodel/keys.h>

namespace zelmodel_bench
{

/// How many key sets a sample bundle has.
constexpr int BundleEntries = 10000;

/// The sizes of keys that agents hold, in bytes: symmetric keys, and keys wrapped by an RSA key of 2048 bits.
constexpr std::size_t SymmetricKey = 32;
constexpr std::size_t WrappedKey = 256;

/// A bundle of key sets with one key each.
zelplatform::model::structs::SExplicitBackupKeys makeBundle(std::size_t keySize);

} // namespace zelmodel_bench
