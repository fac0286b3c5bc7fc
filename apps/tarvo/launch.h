#pragma once

#include "platform/desktop/qt_application.h"

#include <functional>
#include <memory>
#include <variant>

namespace tarvo {

/// What others may ask of the running program.
struct OutsideRequests {
    std::function<void()> togglePopover;
    std::function<void()> openPopover; ///< the program was started once more
    std::function<void()> openDetailWindow;
};

/// The application object, made before everything else, and the way in which others reach the one instance of
/// the program. Main thread only.
class Launch {
public:
    virtual ~Launch() = default;
    virtual desktop::QtApplication& application() = 0;
    /// What each request runs, once the event loop does.
    virtual void answer(OutsideRequests requests) = 0;
};

/// The status with which the program ends at once. What there is to say about it has been printed.
using ExitStatus = int;

/// Each system has its own, in the folder of its name. The arguments outlive what is launched.
std::variant<std::unique_ptr<Launch>, ExitStatus> launch(int& argumentCount, char** arguments);

} // namespace tarvo
