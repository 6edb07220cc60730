#pragma once

#include <map>
#include <memory>
#include <vector>

#include <zelplatform/crypto/crypto.h>
#include <zelplatform/guid/guid.h>

namespace zelplatform::model::detail
{

// Equality of what pointers to keys point to; two empty pointers are equal. Secret bytes of one length are compared in
// the same time wherever they differ.

bool isSameKey(const std::shared_ptr<crypto::CKey>& a, const std::shared_ptr<crypto::CKey>& b);

bool areSameKeys(const std::vector<std::shared_ptr<crypto::CKey>>& a,
                 const std::vector<std::shared_ptr<crypto::CKey>>& b);

bool isSameBuffer(const std::shared_ptr<crypto::sec_buffer_t>& a, const std::shared_ptr<crypto::sec_buffer_t>& b);

bool isSameKeySet(const std::shared_ptr<crypto::CKeySet>& a, const std::shared_ptr<crypto::CKeySet>& b);

using KeySets = std::map<guid::guid_t, std::shared_ptr<crypto::CKeySet>>;

bool areSameKeySets(const KeySets& a, const KeySets& b);

} // namespace zelplatform::model::detail
