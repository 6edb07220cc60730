#include "secret_watch.h"

#include <algorithm>
#include <array>
#include <atomic>
#include <cstdlib>
#include <cstring>
#include <stdexcept>
#include <string_view>

#include <malloc.h>

namespace
{

using zelmodel_test::SecretByte;
using zelmodel_test::SecretRun;

std::atomic<std::size_t> secrets{0};

// No memory of their own: they are looked at while memory is given back.
constexpr std::size_t MostAdded = 8;
constexpr std::size_t LongestAdded = 64;

struct AddedSecret
{
    std::array<char, LongestAdded> bytes{};
    std::size_t size = 0;
};

std::array<AddedSecret, MostAdded> added;
std::atomic<std::size_t> addedCount{0};

/// The unit in a row, as often as a secret of the test needs at least.
template <std::size_t Size>
constexpr std::array<char, Size> rowOf(std::string_view unit)
{
    std::array<char, Size> row{};
    for (std::size_t i = 0; i < Size; ++i)
        row[i] = unit[i % unit.size()];
    return row;
}

static_assert(SecretByte == 'Q', "its forms are spelled out here");
constexpr auto AsItIs = rowOf<SecretRun>("Q");
constexpr auto Wide = rowOf<4 * SecretRun>({"Q\0\0\0", 4});
// Of equal bytes it is the same wherever its groups begin.
constexpr auto Base64 = rowOf<SecretRun / 3 * 4>("UVFR");
constexpr auto Hexadecimal = rowOf<2 * SecretRun>("51");

template <class Row>
bool holds(std::string_view bytes, const Row& row) noexcept
{
    return bytes.find({row.data(), row.size()}) != std::string_view::npos;
}

void look(const void* block) noexcept
{
    if (block != nullptr && zelmodel_test::holdsSecret(block, ::malloc_usable_size(const_cast<void*>(block))))
        ++secrets;
}

} // namespace

#ifdef ZELMODEL_TEST_SANITIZED

// A sanitizer replaces the functions of memory itself and tells of each block.
extern "C" int __sanitizer_install_malloc_and_free_hooks(void (*taken)(const volatile void*, std::size_t),
                                                         void (*freed)(const volatile void*));

namespace
{

void isTaken(const volatile void*, std::size_t) {}

void isFreed(const volatile void* block)
{
    look(const_cast<const void*>(block));
}

[[maybe_unused]] const int installed = __sanitizer_install_malloc_and_free_hooks(isTaken, isFreed);

} // namespace

#else

extern "C" void __libc_free(void* block) noexcept;

// The program's own free is everybody's: that of this library, of the standard library, of OpenSSL and of tinyxml2.
// What it takes it erases, so that nothing is found a second time in a block that was given out again.
extern "C" [[gnu::visibility("default")]] void free(void* block) noexcept
{
    if (block == nullptr)
        return;
    look(block);
    std::memset(block, 0, ::malloc_usable_size(block));
    __libc_free(block);
}

// A block that grows always moves: as the system's realloc may do it, without asking free.
extern "C" [[gnu::visibility("default")]] void* realloc(void* block, std::size_t size) noexcept
{
    if (block == nullptr)
        return std::malloc(size);
    if (size == 0)
    {
        std::free(block);
        return nullptr;
    }
    const std::size_t room = ::malloc_usable_size(block);
    if (size <= room)
        return block;
    void* const moved = std::malloc(size);
    if (moved != nullptr)
    {
        std::memcpy(moved, block, room);
        std::free(block);
    }
    return moved;
}

#endif

namespace zelmodel_test
{

void watchSecrets() noexcept
{
    secrets = 0;
    addedCount = 0;
}

void watchFor(std::string_view secret)
{
    if (secret.size() < SecretRun || secret.size() > LongestAdded || addedCount == MostAdded)
        throw std::length_error("The secret cannot be watched for.");
    auto& place = added[addedCount];
    std::copy(secret.begin(), secret.end(), place.bytes.begin());
    place.size = secret.size();
    ++addedCount;
}

bool holdsSecret(const void* bytes, std::size_t size) noexcept
{
    const std::string_view all(static_cast<const char*>(bytes), size);
    if (holds(all, AsItIs) || holds(all, Wide) || holds(all, Base64) || holds(all, Hexadecimal))
        return true;
    return std::any_of(added.begin(), added.begin() + addedCount, [&](const AddedSecret& secret) {
        return all.find({secret.bytes.data(), secret.size}) != std::string_view::npos;
    });
}

std::size_t secretsGivenBack() noexcept
{
    return secrets;
}

} // namespace zelmodel_test
