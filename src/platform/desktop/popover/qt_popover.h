#pragma once

#include "platform/desktop/popover/popover_window.h"
#include "platform/popover.h"

#include <QObject>
#include <QRect>
#include <QTimer>

#include <chrono>
#include <functional>
#include <memory>
#include <optional>

namespace tarvo::desktop {

/// What a popover asks the desktop; each may be left empty.
struct PopoverSurroundings {
    /// Whether windows are blended with what is behind them now.
    std::function<bool()> composites;
    /// The pointer on the screen, for an anchor that does not know its place; absent where nobody tells.
    std::function<std::optional<QPoint>()> pointerPosition;
};

/// Popovers as frameless windows. A transient one closes when the keyboard goes to another window that is not
/// a menu or a dialog of this program. Where the desktop places windows by itself, it places these too.
class QtPopover : public QObject, public Popover {
public:
    /// A popover that lost the keyboard vanishes at once but counts as shown for this long: the press that
    /// took the keyboard away may be on the way to the status item, which then closes and does not reopen it.
    static constexpr std::chrono::milliseconds reopenGuard{200};

    QtPopover(const PopoverOptions& options, std::function<void()> didClose,
              PopoverSurroundings surroundings);
    ~QtPopover() override;

    void setContent(std::unique_ptr<PopoverContent> content) override;
    bool hasContent() const override { return content_ != nullptr; }
    void show(StatusButton& anchor) override;
    void makeKey() override;
    void close() override;
    bool isShown() const override { return isShown_; }

    /// Null until it was first shown.
    PopoverWindow* window() const { return window_.get(); }

private:
    void makeWindow();
    QWidget* contentWidget() const;
    void place();
    void focusMoved();
    bool keepsOpen() const;

    PopoverOptions options_;
    std::function<void()> didClose_;
    PopoverSurroundings surroundings_;
    std::unique_ptr<PopoverContent> content_;
    std::unique_ptr<PopoverWindow> window_;
    std::optional<QRect> anchor_;
    bool isShown_ = false;
    bool hadFocus_ = false;
    QTimer closing_; ///< runs from the loss of the keyboard until it counts as closed
};

/// Makes popovers of that kind in those surroundings.
PopoverFactory makePopoverFactory(PopoverSurroundings surroundings);

} // namespace tarvo::desktop
