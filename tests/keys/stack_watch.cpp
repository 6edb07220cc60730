#include "stack_watch.h"

#include <cstddef>
#include <memory>
#include <stdexcept>

#include <pthread.h>

#include <sys/mman.h>

#include "secret_watch.h"

namespace zelmodel_test
{
namespace
{

constexpr std::size_t StackSize = std::size_t{4} << 20;

void require(bool isDone)
{
    if (!isDone)
        throw std::runtime_error("The stack cannot be watched.");
}

/// Fresh memory, all zero.
class Stack
{
public:
    Stack() : m_start(mmap(nullptr, StackSize, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0))
    {
        require(m_start != MAP_FAILED);
    }
    ~Stack() { munmap(m_start, StackSize); }
    Stack(const Stack&) = delete;
    Stack& operator=(const Stack&) = delete;

    void run(const std::function<void()>& operation)
    {
        pthread_attr_t attributes;
        require(pthread_attr_init(&attributes) == 0);
        require(pthread_attr_setstack(&attributes, m_start, StackSize) == 0);
        pthread_t thread{};
        require(pthread_create(&thread, &attributes, call, const_cast<std::function<void()>*>(&operation)) == 0);
        require(pthread_join(thread, nullptr) == 0);
        pthread_attr_destroy(&attributes);
    }

    bool holdsSecret() const { return zelmodel_test::holdsSecret(m_start, StackSize); }

private:
    static void* call(void* operation)
    {
        (*static_cast<const std::function<void()>*>(operation))();
        return nullptr;
    }

    void* m_start;
};

} // namespace

bool leavesSecretOnStack(const std::function<void()>& operation)
{
    Stack().run(operation);
    Stack watched;
    watched.run(operation);
    return watched.holdsSecret();
}

} // namespace zelmodel_test
