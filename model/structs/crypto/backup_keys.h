#pragma once

#include <map>
#include <memory>
#include <string>

#include <zelmodel/export.h>
#include <zelplatform/crypto/crypto.h>
#include <zelplatform/guid/guid.h>
#include <zelplatform/io/io.h>

namespace zelplatform::model::structs
{

/// The key sets of a backup, each under an identifier. Travels as bytes or base64 between the managing server and the
/// agent; treat both as secret.
struct ZELMODEL_API SExplicitBackupKeys
{
    /// The bundle's own identifier, and the key sets under theirs.
    guid::guid_t id;
    std::map<guid::guid_t, std::shared_ptr<crypto::CKeySet>> keySets;

    /// The identifier, the number of entries in eight bytes, then each identifier and key set in order. An empty
    /// pointer throws before anything is written.
    void Serialize(io::binary_stream_tt& stream) const;

    /// Reads what Serialize writes; of a repeated identifier the last entry counts. Nothing changes when the read
    /// fails.
    void Unserialize(io::binary_stream_tt& stream);

    /// The binary form as base64 text, in ordinary memory: the caller erases it. Throws as Serialize does.
    std::string ToBase64() const;

    /// Reads what ToBase64 writes; bytes after the record are passed over. Throws, without quoting the text, for what
    /// is no base64 and as Unserialize does.
    static SExplicitBackupKeys FromBase64(const std::string& text);
};

/// Compares the key sets by what they hold; two empty pointers are equal.
ZELMODEL_API bool operator==(const SExplicitBackupKeys& a, const SExplicitBackupKeys& b);
inline bool operator!=(const SExplicitBackupKeys& a, const SExplicitBackupKeys& b)
{
    return !(a == b);
}

/// A key set that is derived from a password, with the bytes of its derivation. Treat its forms as secret.
struct ZELMODEL_API SPasswordDerivedKey
{
    /// The derived keys.
    std::shared_ptr<crypto::CKeySet> keySet;

    /// At most 255 bytes.
    std::shared_ptr<crypto::sec_buffer_t> buffer;

    /// The key set, the buffer's length in one byte, the buffer. An empty pointer or a longer buffer throws before
    /// anything is written.
    void Serialize(io::binary_stream_tt& stream) const;

    /// Reads what Serialize writes. Nothing changes when the read fails.
    void Unserialize(io::binary_stream_tt& stream);

    /// The binary form as base64 text, in ordinary memory: the caller erases it. Throws as Serialize does.
    std::string ToBase64() const;

    /// Reads what ToBase64 writes; bytes after the record are passed over. Throws, without quoting the text, for what
    /// is no base64 and as Unserialize does.
    static SPasswordDerivedKey FromBase64(const std::string& text);
};

/// Compares the key set and the buffer by what they hold; two empty pointers are equal.
ZELMODEL_API bool operator==(const SPasswordDerivedKey& a, const SPasswordDerivedKey& b);
inline bool operator!=(const SPasswordDerivedKey& a, const SPasswordDerivedKey& b)
{
    return !(a == b);
}

} // namespace zelplatform::model::structs
