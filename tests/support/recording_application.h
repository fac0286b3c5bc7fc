#pragma once

#include "platform/application.h"

#include <memory>
#include <string>
#include <vector>

namespace tarvo {

/// An application that keeps what it was told, as words in order: "accessory", "regular", "activate",
/// "terminate", and from its windows "front" and "closed".
class RecordingApplication : public Application {
public:
    void setActivationPolicy(ActivationPolicy policy) override {
        log.emplace_back(policy == ActivationPolicy::regular ? "regular" : "accessory");
        current = policy;
    }
    void activateIgnoringOtherApps() override { log.emplace_back("activate"); }
    void terminate() override { log.emplace_back("terminate"); }

    /// Windows that note what happens to them here.
    WindowFactory windowFactory() {
        return [this](const WindowOptions& options, std::function<void()> willClose) {
            windows.push_back(options);
            closeWindow = std::move(willClose);
            return std::make_unique<RecordingWindow>(log);
        };
    }

    std::vector<std::string> log;
    ActivationPolicy current = ActivationPolicy::regular;
    std::vector<WindowOptions> windows; ///< every window made so far
    std::function<void()> closeWindow;  ///< what the user does with the latest one

private:
    struct RecordingWindow : Window {
        explicit RecordingWindow(std::vector<std::string>& words) : log(words) {}
        ~RecordingWindow() override { log.emplace_back("closed"); }
        void bringToFrontAsKeyWindow() override { log.emplace_back("front"); }
        std::vector<std::string>& log;
    };
};

} // namespace tarvo
