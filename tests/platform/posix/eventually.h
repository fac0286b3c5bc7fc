#pragma once

#include <chrono>
#include <thread>

namespace tarvo {

/// True as soon as the condition holds, false when it still does not after a time that only a fault needs.
template <typename Condition>
bool eventually(Condition condition) {
    const auto end = std::chrono::steady_clock::now() + std::chrono::seconds{30};
    while (!condition()) {
        if (std::chrono::steady_clock::now() > end) return false;
        std::this_thread::yield();
    }
    return true;
}

} // namespace tarvo
