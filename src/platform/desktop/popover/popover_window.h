#pragma once

#include <QWidget>

#include <functional>

namespace tarvo::desktop {

/// The frameless window of a popover: rounded ground, outline, and a shadow where windows are composited.
/// Without content it is an empty panel.
class PopoverWindow : public QWidget {
    Q_OBJECT

public:
    /// panel: takes the keyboard; preview: neither keyboard nor pointer.
    enum class Kind { panel, preview };

    /// `composited`: the desktop blends windows, so that shapes may be translucent.
    PopoverWindow(Kind kind, bool composited);

    bool isComposited() const { return composited_; }
    /// Shows the widget, which stays its owner's; null for none.
    void setContent(QWidget* content);
    QWidget* content() const { return content_; }
    /// What the content would like to have.
    QSize wantedSize() const;
    /// Puts the panel there; the shadow lies around it.
    void setPanelGeometry(const QRect& panel);
    void resizePanel(QSize size);
    QRect panelGeometry() const;

    /// The user pressed Escape or the window manager asks the window to close.
    std::function<void()> closeWanted;
    /// The content would like to have another size.
    std::function<void()> contentSizeChanged;

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

private:
    int shadow() const;
    QRect panelRect() const;

    bool composited_;
    QWidget* content_ = nullptr;
};

} // namespace tarvo::desktop
