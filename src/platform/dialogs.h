#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <vector>

namespace tarvo {

/// A warning-style alert. The first button is the default one, which Return presses; Escape presses the last.
struct Alert {
    std::string message;
    std::string informativeText;
    std::vector<std::string> buttons; ///< empty: the platform's own single button
    bool operator==(const Alert&) const = default;
};

/// Application-modal alerts. Main thread only.
class Dialogs {
public:
    virtual ~Dialogs() = default;
    /// Shows the alert and later runs `chosen` once with the index of the pressed button.
    virtual void show(const Alert& alert, std::function<void(std::size_t button)> chosen) = 0;
};

} // namespace tarvo
