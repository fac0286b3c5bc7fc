#pragma once

#include "menubar/status_items.h"
#include "platform/dispatcher.h"
#include "platform/popover.h"

#include <chrono>
#include <functional>
#include <memory>
#include <optional>

namespace tarvo {

/// The small popover with one module's details that opens while the pointer rests on the module's item. It
/// polls the pointer, since a status bar may lie outside the program's own windows. Main thread only.
class HoverPreview {
public:
    static constexpr std::chrono::milliseconds pollPeriod{120};

    struct Parts {
        PopoverFactory makePopover;
        std::function<std::unique_ptr<PopoverContent>(MenuBarModule)> makeContent;
        /// Screen coordinates; absent where the desktop does not tell.
        std::function<std::optional<Point>()> pointerPosition;
        /// While true no preview is shown.
        std::function<bool()> isSuppressed;
    };

    /// The references outlive the preview. With a part missing there is never a preview and never a poll.
    HoverPreview(Dispatcher& dispatcher, const StatusItems& items, Parts parts);

    void startPolling();
    /// Stops the poll and closes the preview.
    void stop();
    void close();

private:
    void poll();
    std::optional<MenuBarModule> moduleUnderPointer() const;
    bool isShown() const { return popover_ && popover_->isShown(); }

    Dispatcher& dispatcher_;
    const StatusItems& items_;
    Parts parts_;
    std::unique_ptr<Popover> popover_;
    std::optional<MenuBarModule> hoverModule_;
    std::unique_ptr<Timer> pollTimer_;
};

} // namespace tarvo
