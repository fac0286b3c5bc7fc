#pragma once

#include <cassert>
#include <thread>

namespace tarvo {

/// Remembers the thread that made it: the one that may touch the state of the object that holds it.
class MainThread {
public:
    /// Debug builds stop here when called on another thread.
    void check() const { assert(std::this_thread::get_id() == id_); }

private:
    [[maybe_unused]] std::thread::id id_ = std::this_thread::get_id();
};

} // namespace tarvo
