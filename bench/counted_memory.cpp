// The program's allocations, counted where every one passes.

#include "bench/counted_memory.h"

#include <cstdlib>
#include <new>

namespace {
std::uint64_t g_nAllocations = 0;
}

std::uint64_t AllocationCount() {
    return g_nAllocations;
}

void* operator new(std::size_t nBytes) {
    ++g_nAllocations;
    if (void* const pMemory = std::malloc(nBytes == 0 ? 1 : nBytes)) return pMemory;
    throw std::bad_alloc();
}

void operator delete(void* pMemory) noexcept {
    std::free(pMemory);
}

void operator delete(void* pMemory, std::size_t) noexcept {
    std::free(pMemory);
}
