#include "AllocationCount.h"

#include <atomic>
#include <cstddef>

namespace {

std::atomic<long long> count{0};

} // namespace

// glibc's own functions, which the ones below replace for the whole process, Qt included.
extern "C" {
void* __libc_malloc(std::size_t size);
void* __libc_calloc(std::size_t number, std::size_t size);
void* __libc_realloc(void* memory, std::size_t size);

void* malloc(std::size_t size)
{
    count.fetch_add(1, std::memory_order_relaxed);
    return __libc_malloc(size);
}

void* calloc(std::size_t number, std::size_t size)
{
    count.fetch_add(1, std::memory_order_relaxed);
    return __libc_calloc(number, size);
}

void* realloc(void* memory, std::size_t size)
{
    count.fetch_add(1, std::memory_order_relaxed);
    return __libc_realloc(memory, size);
}
}

long long allocationCount()
{
    return count.load(std::memory_order_relaxed);
}
