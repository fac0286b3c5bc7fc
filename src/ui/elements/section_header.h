#pragma once

#include "ui/elements/element.h"

#include <string>

namespace tarvo::ui {

struct SectionHeaderFields {
    std::string icon; ///< system symbol name
    Color color = colors::blue;
    std::string title;
    bool operator==(const SectionHeaderFields&) const = default;
};

/// The large title of a section with its symbol.
class SectionHeader : public Element<SectionHeaderFields> {
public:
    explicit SectionHeader(QWidget* parent = nullptr) : SectionHeader(SectionHeaderFields{}, parent) {}
    explicit SectionHeader(SectionHeaderFields fields, QWidget* parent = nullptr);
    QString accessibleText() const override { return QString::fromStdString(fields().title); }
    QAccessible::Role accessibleRole() const override { return QAccessible::Heading; }
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return {96, sizeHint().height()}; }

protected:
    void paintEvent(QPaintEvent* event) override;
};

} // namespace tarvo::ui
