#pragma once

#include "platform/status_bar.h"

#include <functional>
#include <memory>

namespace tarvo {

/// A view made for a popover. What it is made of is between the user interface and the popovers of one
/// platform.
class PopoverContent {
public:
    virtual ~PopoverContent() = default;
};

/// transient: closes when the user clicks elsewhere; applicationDefined: closed only by the program.
enum class PopoverBehavior { transient, applicationDefined };

struct PopoverOptions {
    PopoverBehavior behavior = PopoverBehavior::transient;
    bool animated = false;
    bool operator==(const PopoverOptions&) const = default;
};

/// A panel anchored at a status item. Main thread only.
class Popover {
public:
    virtual ~Popover() = default;
    /// Laid out at once; null releases the content.
    virtual void setContent(std::unique_ptr<PopoverContent> content) = 0;
    virtual bool hasContent() const = 0;
    /// Opens at the button, on the side away from the bar, or moves there when it is open. A host that does
    /// not tell where the button is opens it at the pointer or where the desktop puts it. The anchor may be
    /// gone afterwards.
    virtual void show(StatusButton& anchor) = 0;
    /// Gives the open popover the keyboard.
    virtual void makeKey() = 0;
    /// Nothing when it is closed.
    virtual void close() = 0;
    virtual bool isShown() const = 0;
};

/// Makes a closed popover without content. `didClose` runs after each closing, by the user and by the
/// program, but not when the popover is destroyed.
using PopoverFactory =
    std::function<std::unique_ptr<Popover>(const PopoverOptions&, std::function<void()> didClose)>;

} // namespace tarvo
