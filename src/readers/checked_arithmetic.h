#pragma once

#include <cstdint>
#include <cstdio>
#include <cstdlib>

namespace tarvo {

/// Ends the program: a counter that does not fit its type is an error that must not be masked.
[[noreturn]] inline void fatalOverflow(const char* what) {
    std::fprintf(stderr, "tarvo: arithmetic overflow in %s\n", what);
    std::abort();
}

/// These three end the program where the exact result does not fit the type.
inline std::int32_t checkedDifference(std::int32_t from, std::int32_t subtract, const char* what) {
    std::int32_t result = 0;
    if (__builtin_sub_overflow(from, subtract, &result)) fatalOverflow(what);
    return result;
}

inline std::uint64_t checkedSum(std::uint64_t left, std::uint64_t right, const char* what) {
    std::uint64_t result = 0;
    if (__builtin_add_overflow(left, right, &result)) fatalOverflow(what);
    return result;
}

inline std::uint64_t checkedProduct(std::uint64_t left, std::uint64_t right, const char* what) {
    std::uint64_t result = 0;
    if (__builtin_mul_overflow(left, right, &result)) fatalOverflow(what);
    return result;
}

} // namespace tarvo
