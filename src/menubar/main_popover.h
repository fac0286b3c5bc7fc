#pragma once

#include "platform/application.h"
#include "platform/dispatcher.h"
#include "platform/popover.h"

#include <chrono>
#include <functional>
#include <memory>

namespace tarvo {

/// The popover with the cards. Its content is built when it first opens and released a while after it closed,
/// so that opening again soon is instant and a longer absence frees the views. Main thread only.
class MainPopover : public std::enable_shared_from_this<MainPopover> {
public:
    static constexpr std::chrono::milliseconds contentGracePeriod{20'000};

    struct Parts {
        PopoverFactory makePopover;
        std::function<std::unique_ptr<PopoverContent>()> makeContent;
        std::function<void()> willShow; ///< before the content is built
        std::function<void()> didClose;
        std::function<void()> didRelease = {}; ///< after the content was released
    };

    /// The references outlive the popover. Null without a popover factory. A shared pointer, since the
    /// pending release holds it weakly.
    static std::shared_ptr<MainPopover> make(Application& application, Dispatcher& dispatcher, Parts parts);

    bool isShown() const { return popover_->isShown(); }
    void show(StatusButton& anchor);
    void close() { popover_->close(); }

private:
    MainPopover(Application& application, Dispatcher& dispatcher, Parts parts);
    void popoverDidClose();
    void releaseContent(int generation);

    Application& application_;
    Dispatcher& dispatcher_;
    Parts parts_;
    std::unique_ptr<Popover> popover_;
    int teardownGeneration_ = 0; ///< a release that remembers another one is stale
};

} // namespace tarvo
