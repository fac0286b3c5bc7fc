#pragma once

#include "platform/automations.h"

#include <future>
#include <mutex>
#include <string>
#include <vector>

namespace tarvo {

/// Automations that end as the test says and remember which ran. One named "hang" runs until it is released.
/// A run of it that was given up may still be under way: it keeps this alive.
class ScriptedAutomations : public Automations {
public:
    SystemFamily family() const override { return systemFamily; }
    std::vector<std::string> list() override { return names; }
    AutomationOutcome run(const std::string& name) override {
        {
            const std::lock_guard lock(mutex_);
            started_.push_back(name);
        }
        if (name == "hang") released_.wait();
        return outcome;
    }
    void releaseHanging() { release_.set_value(); }
    /// The names of the runs so far, those that were given up included.
    std::vector<std::string> started() const {
        const std::lock_guard lock(mutex_);
        return started_;
    }

    SystemFamily systemFamily = SystemFamily::macOS;
    std::vector<std::string> names;
    AutomationOutcome outcome;

private:
    mutable std::mutex mutex_;
    std::vector<std::string> started_;
    std::promise<void> release_;
    std::shared_future<void> released_ = release_.get_future().share();
};

} // namespace tarvo
