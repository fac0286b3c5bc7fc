#pragma once

#include "ui/elements/element.h"

#include <QAbstractButton>
#include <QString>
#include <QWidget>

namespace tarvo::ui {

/// Everything that the visible elements and buttons below a widget say, one a line, in order of creation.
inline std::string shownTexts(const QWidget& below) {
    QStringList texts;
    for (const QWidget* widget : below.findChildren<QWidget*>()) {
        if (!widget->isVisibleTo(&below)) continue;
        if (const auto* element = dynamic_cast<const DrawnElement*>(widget))
            texts << element->accessibleText();
        if (const auto* button = dynamic_cast<const QAbstractButton*>(widget))
            texts << button->accessibleName();
    }
    return texts.join(QLatin1Char('\n')).toStdString();
}

} // namespace tarvo::ui
