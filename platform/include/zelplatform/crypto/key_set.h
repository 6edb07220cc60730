#pragma once

#include <cstddef>
#include <memory>
#include <string>
#include <vector>

#include <zelplatform/crypto/alg.h>
#include <zelplatform/crypto/key.h>
#include <zelplatform/crypto/key_set_id.h>
#include <zelplatform/crypto/sec_text.h>
#include <zelplatform/export.h>
#include <zelplatform/io/binary_stream.h>
#include <zelplatform/lin/lin.h>
#include <zelplatform/util/unicode.h>

/// Keys, and memory that is erased when it is released.
namespace crypto
{

/// Keys of one origin, with what is needed to choose and use them. Never changes once it is built, so that it can be
/// shared. Algorithm and role are not checked.
class ZELPLATFORM_API CKeySet
{
public:
    /// The most keys that a set may have.
    static constexpr std::size_t MaxKeys = 4096;

    /// Throws for more than 4096 keys, for an empty pointer among them and for nanoseconds above 999,999,999.
    CKeySet(const CKeySetId& id, ECryptAlgs alg, EKeySetUsageRole role, CUniString hint,
            lin::lin_filetime_t creationTime, std::vector<std::shared_ptr<CKey>> keys);

    /// What the constructor was given.
    const CKeySetId& GetId() const noexcept { return m_id; }
    ECryptAlgs GetAlg() const noexcept { return m_alg; }
    EKeySetUsageRole GetUsageRole() const noexcept { return m_role; }

    /// What helps a person to remember the password. Not for logs.
    const CUniString& GetHint() const noexcept { return m_hint.get(); }

    /// When the set was made, and its keys in their order.
    lin::lin_filetime_t GetCreationTime() const noexcept { return m_creationTime; }
    const std::vector<std::shared_ptr<CKey>>& GetKeys() const noexcept { return m_keys; }

    /// Identifier, algorithm, role and number of keys; neither the hint nor a byte of a key.
    std::string ToLogString() const;

    /// Writes the binary form, key bytes included. A hint that is not valid Unicode throws before anything is written.
    void Serial(io::binary_stream_tt& stream) const;

    /// Room that Serial needs: what it writes, and some bytes more when the hint is not of the longest characters.
    std::size_t MaxSerialSize() const noexcept;

    /// Reads what Serial writes. No announced count or length is trusted; throws for an unknown version of the form.
    /// When a wrong length makes the identifier or the hint of bytes of keys, they are erased like keys.
    static std::shared_ptr<CKeySet> Unserial(io::binary_stream_tt& stream);

private:
    CKeySetId m_id;
    ECryptAlgs m_alg;
    EKeySetUsageRole m_role;
    sec_text_t m_hint;
    lin::lin_filetime_t m_creationTime;
    std::vector<std::shared_ptr<CKey>> m_keys;
};

} // namespace crypto
