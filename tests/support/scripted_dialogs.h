#pragma once

#include "platform/dialogs.h"

#include <utility>
#include <vector>

namespace tarvo {

/// Remembers every alert; the test presses the buttons.
class ScriptedDialogs : public Dialogs {
public:
    void show(const Alert& alert, std::function<void(std::size_t)> chosen) override {
        shown.push_back(alert);
        pending_ = std::move(chosen);
    }
    void press(std::size_t button) {
        const auto chosen = std::exchange(pending_, nullptr);
        chosen(button);
    }
    bool isOpen() const { return pending_ != nullptr; }

    std::vector<Alert> shown;

private:
    std::function<void(std::size_t)> pending_;
};

} // namespace tarvo
