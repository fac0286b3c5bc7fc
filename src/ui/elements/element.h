#pragma once

#include "ui/style/theme.h"
#include "ui/style/typography.h"

#include <QAccessible>
#include <QWidget>

#include <utility>

namespace tarvo::ui {

/// Something drawn: not focusable, without children, and readable by assistive technology through its text.
class DrawnElement : public QWidget {
public:
    using QWidget::QWidget;

    /// What a screen reader says; built only when asked for.
    virtual QString accessibleText() const = 0;
    virtual QAccessible::Role accessibleRole() const { return QAccessible::StaticText; }

protected:
    Theme theme() const { return Theme(palette()); }
    QFont roleFont(TextRole role) const { return textFont(role, font()); }
    /// Repaints, and tells assistive technology where one listens.
    void contentChanged();
};

/// A drawn element that is a pure function of its fields: it repaints when they change and only then.
template <typename FieldsType>
class Element : public DrawnElement {
public:
    using Fields = FieldsType;

    explicit Element(QWidget* parent = nullptr) : DrawnElement(parent) {}
    Element(Fields fields, QWidget* parent) : DrawnElement(parent), fields_(std::move(fields)) {}

    const Fields& fields() const { return fields_; }

    void set(Fields fields) {
        if (fields == fields_) return;
        const QSize before = sizeHint();
        fields_ = std::move(fields);
        fieldsChanged();
        if (sizeHint() != before) updateGeometry();
        contentChanged();
    }

protected:
    virtual void fieldsChanged() {}

private:
    Fields fields_{};
};

/// Makes every drawn element readable; called once by a program after its QApplication was made.
void installElementAccessibility();

} // namespace tarvo::ui
