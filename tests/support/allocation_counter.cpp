#include "support/allocation_counter.h"

#include <cstdlib>
#include <new>

namespace {

thread_local std::size_t count = 0;

} // namespace

namespace tarvo {

std::size_t allocationCount() {
    return count;
}

} // namespace tarvo

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
