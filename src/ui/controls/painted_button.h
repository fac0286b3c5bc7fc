#pragma once

#include "ui/style/theme.h"
#include "ui/style/typography.h"

#include <QAbstractButton>

#include <string>

namespace tarvo::ui {

/// A button that draws itself: reached with Tab, pressed with the mouse, Space or Return, with a ring around
/// it while the keyboard is on it. Its accessible name is also the text that it shows, where it shows one.
class PaintedButton : public QAbstractButton {
public:
    explicit PaintedButton(QWidget* parent = nullptr);

    /// Checks the button without the signals that tell of the user's doing, which are toggled and clicked.
    void setCheckedByProgram(bool checked);
    /// Nothing happens for an unchanged name. As a tool tip too where the button shows no text.
    void setName(const std::string& name, bool asToolTip = false);

protected:
    Theme theme() const { return Theme(palette()); }
    QFont roleFont(TextRole role) const { return textFont(role, font()); }
    /// 0 at rest, more under the pointer, most while pressed: how strongly the ground is tinted.
    double emphasis() const;
    /// The ring of the keyboard's focus around the shape, while it is to be seen.
    void paintFocus(QPainter& painter, const QRectF& shape, double radius) const;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;

private:
    bool focusIsVisible_ = false;
};

} // namespace tarvo::ui
