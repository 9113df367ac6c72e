#include "Memory.h"

#include <benchmark/benchmark.h>

#include <cstddef>
#include <limits>
#include <string>
#include <vector>

#ifdef __GLIBC__
#include <malloc.h>
#endif

namespace {

constexpr std::size_t MiB = std::size_t{1} << 20;

thread_local long long count = 0;

} // namespace

// glibc's own functions, which the ones below replace for the whole process, Qt included.
extern "C" {
// NOLINTBEGIN(readability-identifier-naming,bugprone-reserved-identifier): glibc calls them so
void* __libc_malloc(std::size_t size);
void* __libc_calloc(std::size_t number, std::size_t size);
void* __libc_realloc(void* memory, std::size_t size);
// NOLINTEND(readability-identifier-naming,bugprone-reserved-identifier)

void* malloc(std::size_t size)
{
    ++count;
    return __libc_malloc(size);
}

void* calloc(std::size_t number, std::size_t size)
{
    ++count;
    return __libc_calloc(number, size);
}

void* realloc(void* memory, std::size_t size)
{
    ++count;
    return __libc_realloc(memory, size);
}
}

long long allocationCount()
{
    return count;
}

void growHeap()
{
#ifdef __GLIBC__
    [[maybe_unused]] static const bool grown = [] {
        mallopt(M_TRIM_THRESHOLD, std::numeric_limits<int>::max());
        mallopt(M_MMAP_THRESHOLD, static_cast<int>(32 * MiB)); // the highest there is
        std::vector<std::string> blocks(512);
        for (std::string& block : blocks) {
            block.resize(MiB);
            benchmark::DoNotOptimize(block.data());
        }
        return true;
    }();
#endif
}

void emptyCaches()
{
    constexpr std::size_t LineSize = 64;
    static std::vector<char> other(128 * MiB);
    for (std::size_t i = 0; i < other.size(); i += LineSize) {
        ++other[i];
    }
    benchmark::DoNotOptimize(other.data());
}
