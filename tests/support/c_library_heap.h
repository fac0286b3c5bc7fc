#pragma once

#include <cstddef>
#include <cstdlib>
#include <optional>

#if defined(__GLIBC__)
#include <malloc.h>
#endif

namespace tarvo {

/// Bytes that the C library has handed out and not got back. Absent where it does not count them, as under a
/// sanitizer.
inline std::optional<std::size_t> heapInUse() {
#if defined(__GLIBC__)
    const struct mallinfo2 info = ::mallinfo2();
    if (info.arena > 0) return info.uordblks + info.hblkhd;
#endif
    return std::nullopt;
}

} // namespace tarvo
