#pragma once

#include <functional>
#include <memory>
#include <string>

namespace tarvo {

/// accessory: nothing in the taskbar; regular: an entry while a window is open.
enum class ActivationPolicy { accessory, regular };

/// The running application. Main thread only.
class Application {
public:
    virtual ~Application() = default;
    virtual void setActivationPolicy(ActivationPolicy policy) = 0;
    virtual void activateIgnoringOtherApps() = 0;
    /// Ends the program with status 0 after the termination handler has run.
    virtual void terminate() = 0;
};

/// An ordinary top-level window that is already filled with its content. Destroying it closes it.
class Window {
public:
    virtual ~Window() = default;
    virtual void bringToFrontAsKeyWindow() = 0;
};

struct WindowOptions {
    std::string title;
    int width = 0, height = 0;               ///< content size
    int minimumWidth = 0, minimumHeight = 0; ///< content size
};

/// Makes a window, centred on the screen; `willClose` runs when the user closes it and may destroy the
/// window.
using WindowFactory =
    std::function<std::unique_ptr<Window>(const WindowOptions&, std::function<void()> willClose)>;

} // namespace tarvo
