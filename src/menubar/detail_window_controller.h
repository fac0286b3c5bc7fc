#pragma once

#include "platform/application.h"

#include <functional>
#include <memory>

namespace tarvo {

/// Shows the one large detail window; while it is open the program has an entry in the taskbar. Main thread
/// only.
class DetailWindowController {
public:
    /// Without a factory nothing is ever shown. `application` outlives the controller.
    DetailWindowController(Application& application, WindowFactory makeWindow);
    DetailWindowController(const DetailWindowController&) = delete;
    DetailWindowController& operator=(const DetailWindowController&) = delete;

    /// The instance that the whole process uses; see SharedInstance. It is the application delegate's.
    static DetailWindowController& shared();

    /// Opens the window, or brings the open one to the front.
    void show();
    bool isOpen() const { return window_ != nullptr; }

    /// Called after the window opened and after it closed.
    std::function<void()> onOpenChanged;

private:
    void windowWillClose();

    Application& application_;
    WindowFactory makeWindow_;
    std::unique_ptr<Window> window_;
};

} // namespace tarvo
