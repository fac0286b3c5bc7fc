#include "support/allocation_counter.h"

#include <cstdlib>
#include <new>

#if defined(__has_feature)
#if __has_feature(address_sanitizer) || __has_feature(thread_sanitizer)
#define TARVO_SANITIZER_ALLOCATES
#endif
#endif

namespace {

thread_local std::size_t count = 0;

} // namespace

namespace tarvo {

std::size_t allocationCount() {
    return count;
}

} // namespace tarvo

#ifdef TARVO_SANITIZER_ALLOCATES

// Clang's sanitizers have a new of their own, which checks what is deleted, and tell of each allocation.
extern "C" void __sanitizer_malloc_hook(const volatile void*, std::size_t);
void __sanitizer_malloc_hook(const volatile void*, std::size_t) {
    ++count;
}

#else

void* operator new(std::size_t size) {
    ++count;
    if (void* memory = std::malloc(size == 0 ? 1 : size)) return memory;
    throw std::bad_alloc();
}

// The library's own form that does not throw is replaced too, as what it gives is freed by ours.
void* operator new(std::size_t size, const std::nothrow_t&) noexcept {
    ++count;
    return std::malloc(size == 0 ? 1 : size);
}

void operator delete(void* memory) noexcept {
    std::free(memory);
}
void operator delete(void* memory, std::size_t) noexcept {
    std::free(memory);
}

#endif
