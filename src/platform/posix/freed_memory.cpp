#include "platform/posix/freed_memory.h"

#include <cstdlib>

#if defined(__GLIBC__)
#include <malloc.h>
#endif

namespace tarvo {

void returnFreedMemory() {
#if defined(__GLIBC__)
    ::malloc_trim(0);
#endif
}

void shareOneHeap() {
#if defined(__GLIBC__)
    ::mallopt(M_ARENA_MAX, 1);
#endif
}

} // namespace tarvo
