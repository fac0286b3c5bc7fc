#pragma once

#include "platform/desktop/bar/bar_item_view.h"

#include <QWidget>

#include <functional>
#include <vector>

namespace tarvo::desktop {

/// A strip of status items, the first one leftmost. As a dock it spans the top edge of the primary screen
/// with the items at its right end; elsewhere it is an ordinary small window that is as wide as its items.
class BarWindow : public QWidget {
    Q_OBJECT

public:
    enum class Kind { dock, window };

    explicit BarWindow(Kind kind);

    /// Ordinary windows are put where the desktop likes, which not every desktop tells.
    bool knowsItsPlace() const { return kind_ == Kind::dock; }
    void add(BarItemView& view);
    void remove(BarItemView& view);
    /// Gives every item its place.
    void arrange();
    /// To be called before the fonts that the items were laid out with end.
    void forgetFonts();

    /// Runs when the user closes the ordinary window.
    std::function<void()> closedByUser;

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

private:
    Kind kind_;
    std::vector<BarItemView*> views_;
};

} // namespace tarvo::desktop
