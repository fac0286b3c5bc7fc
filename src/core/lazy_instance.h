#pragma once

#include <functional>
#include <memory>
#include <mutex>
#include <utility>

namespace tarvo {

/// An object that is made at its first use, once, whichever thread asks first.
template <typename Instance>
class LazyInstance {
public:
    explicit LazyInstance(std::function<std::unique_ptr<Instance>()> make) : make_(std::move(make)) {}

    Instance& get() {
        std::call_once(once_, [this] { instance_ = make_(); });
        return *instance_;
    }

private:
    std::function<std::unique_ptr<Instance>()> make_;
    std::once_flag once_;
    std::unique_ptr<Instance> instance_;
};

} // namespace tarvo
