#include "detail/key_content.h"

#include <algorithm>

#include <zelplatform/util/memory.h>

namespace zelplatform::model::detail
{
namespace
{

template <class T, class F>
bool isSameContent(const std::shared_ptr<T>& a, const std::shared_ptr<T>& b, F&& isSame)
{
    return a == b || (a != nullptr && b != nullptr && isSame(*a, *b));
}

bool isSameTime(const lin::lin_filetime_t& a, const lin::lin_filetime_t& b)
{
    return a.seconds == b.seconds && a.nanoseconds == b.nanoseconds;
}

} // namespace

bool isSameKey(const std::shared_ptr<crypto::CKey>& a, const std::shared_ptr<crypto::CKey>& b)
{
    return isSameContent(a, b, [](const auto& x, const auto& y) { return x == y; });
}

bool areSameKeys(const std::vector<std::shared_ptr<crypto::CKey>>& a,
                 const std::vector<std::shared_ptr<crypto::CKey>>& b)
{
    return std::equal(a.begin(), a.end(), b.begin(), b.end(), isSameKey);
}

bool isSameBuffer(const std::shared_ptr<crypto::sec_buffer_t>& a, const std::shared_ptr<crypto::sec_buffer_t>& b)
{
    return isSameContent(a, b, [](const auto& x, const auto& y) {
        return x.size() == y.size() && util::SecureEqual(x.data(), y.data(), x.size());
    });
}

bool isSameKeySet(const std::shared_ptr<crypto::CKeySet>& a, const std::shared_ptr<crypto::CKeySet>& b)
{
    return isSameContent(a, b, [](const auto& x, const auto& y) {
        return x.GetId() == y.GetId() && x.GetAlg() == y.GetAlg() && x.GetUsageRole() == y.GetUsageRole() &&
               x.GetHint() == y.GetHint() && isSameTime(x.GetCreationTime(), y.GetCreationTime()) &&
               areSameKeys(x.GetKeys(), y.GetKeys());
    });
}

bool areSameKeySets(const KeySets& a, const KeySets& b)
{
    return std::equal(a.begin(), a.end(), b.begin(), b.end(), [](const auto& x, const auto& y) {
        return x.first == y.first && isSameKeySet(x.second, y.second);
    });
}

} // namespace zelplatform::model::detail
