#include "tests/fuzz/allocation_count.h"

#include <cstdlib>
#include <new>

#include <malloc.h>

namespace {

std::size_t g_nHeld = 0;
std::size_t g_nMost = 0;
void (*g_pOnFault)() = nullptr; // null: no limit

} // namespace

void LimitAllocations(std::size_t nBytes, void (*pOnFault)()) {
    g_nMost = g_nHeld + nBytes;
    g_pOnFault = pOnFault;
}

void LiftAllocationLimit() {
    g_pOnFault = nullptr;
}

void* operator new(std::size_t nBytes) {
    // Asked before the memory is: a length out of an input may be more than the machine has.
    if (g_pOnFault && (nBytes > g_nMost || g_nHeld > g_nMost - nBytes)) g_pOnFault();
    void* const pMemory = std::malloc(nBytes ? nBytes : 1);
    if (!pMemory) throw std::bad_alloc();
    g_nHeld += malloc_usable_size(pMemory);
    return pMemory;
}

void operator delete(void* pMemory) noexcept {
    if (!pMemory) return;
    g_nHeld -= malloc_usable_size(pMemory);
    std::free(pMemory);
}

void operator delete(void* pMemory, std::size_t) noexcept {
    operator delete(pMemory);
}

// The other forms, which the sanitizers have for themselves.

void* operator new(std::size_t nBytes, const std::nothrow_t&) noexcept {
    try {
        return operator new(nBytes);
    } catch (const std::bad_alloc&) {
        return nullptr;
    }
}

void* operator new[](std::size_t nBytes) {
    return operator new(nBytes);
}

void operator delete[](void* pMemory) noexcept {
    operator delete(pMemory);
}

void operator delete[](void* pMemory, std::size_t) noexcept {
    operator delete(pMemory);
}
