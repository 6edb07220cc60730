#pragma once

#include <array>
#include <cstddef>
#include <memory>
#include <vector>

#include <zelplatform/util/memory.h>

namespace crypto
{

/// An allocator that erases every block before it gives it back. All objects of it are equal.
template <class T>
class sec_allocator_t
{
public:
    /// What the blocks hold.
    using value_type = T;

    sec_allocator_t() noexcept = default;

    /// Of any other type: there is nothing to take over.
    template <class U>
    sec_allocator_t(const sec_allocator_t<U>&) noexcept
    {
    }

    /// A block of so many objects, not erased; throws std::bad_alloc.
    T* allocate(std::size_t count) { return std::allocator<T>().allocate(count); }

    /// Erases the block and gives it back.
    void deallocate(T* block, std::size_t count) noexcept
    {
        util::SecureErase(block, count * sizeof(T));
        std::allocator<T>().deallocate(block, count);
    }
};

template <class T, class U>
bool operator==(const sec_allocator_t<T>&, const sec_allocator_t<U>&) noexcept
{
    return true;
}

template <class T, class U>
bool operator!=(const sec_allocator_t<T>&, const sec_allocator_t<U>&) noexcept
{
    return false;
}

/// Bytes that are erased when they are released.
using sec_buffer_t = std::vector<char, sec_allocator_t<char>>;

/// So many bytes without memory of their own, zero at first, that are erased when they are released.
template <std::size_t Size>
class sec_array_t
{
public:
    sec_array_t() = default;
    sec_array_t(const sec_array_t&) = default;
    sec_array_t& operator=(const sec_array_t&) = default;
    ~sec_array_t() { util::SecureErase(m_bytes.data(), Size); }

    /// The bytes and their number.
    char* data() noexcept { return m_bytes.data(); }
    const char* data() const noexcept { return m_bytes.data(); }
    static constexpr std::size_t size() noexcept { return Size; }

private:
    std::array<char, Size> m_bytes{};
};

} // namespace crypto
