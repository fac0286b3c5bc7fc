#pragma once

#include <cassert>

namespace tarvo {

/// The door to the one instance of a type that the whole process uses. The composition root installs an
/// ordinary object and keeps this beside it; destroying it brings back what was installed before. Main thread
/// only.
template <typename Instance>
class SharedInstance {
public:
    explicit SharedInstance(Instance& instance) : previous_(installed()) { installed() = &instance; }
    ~SharedInstance() { installed() = previous_; }
    SharedInstance(const SharedInstance&) = delete;
    SharedInstance& operator=(const SharedInstance&) = delete;

    /// The installed instance; one must be installed.
    static Instance& get() {
        assert(installed() != nullptr);
        return *installed();
    }

private:
    static Instance*& installed() {
        static Instance* instance = nullptr;
        return instance;
    }

    Instance* previous_;
};

} // namespace tarvo
