#pragma once

#include <QAbstractButton>
#include <QApplication>
#include <QKeyEvent>

#include <string>

namespace tarvo::ui {

/// A key pressed and released on a widget.
inline void pressKey(QWidget& widget, Qt::Key key) {
    QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier);
    QKeyEvent release(QEvent::KeyRelease, key, Qt::NoModifier);
    QApplication::sendEvent(&widget, &press);
    QApplication::sendEvent(&widget, &release);
}

/// The button with that accessible name below a widget, hidden ones left out; null without one.
inline QAbstractButton* buttonNamed(const QWidget& below, const std::string& name) {
    for (QAbstractButton* button : below.findChildren<QAbstractButton*>()) {
        if (!button->isHidden() && button->accessibleName().toStdString() == name) return button;
    }
    return nullptr;
}

} // namespace tarvo::ui
