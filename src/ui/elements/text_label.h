#pragma once

#include "ui/elements/element.h"

#include <string>

namespace tarvo::ui {

struct TextLabelFields {
    std::string text;
    TextRole role = TextRole::rowLabel;
    Color color = colors::primary;
    Qt::Alignment alignment = Qt::AlignLeft | Qt::AlignVCenter;
    bool wraps = false; ///< several lines where one is too narrow; otherwise shortened with an ellipsis
    bool operator==(const TextLabelFields&) const = default;
};

/// Text in one of the roles of the type scale, with digits that do not jump.
class TextLabel : public Element<TextLabelFields> {
public:
    explicit TextLabel(QWidget* parent = nullptr) : TextLabel(TextLabelFields{}, parent) {}
    explicit TextLabel(TextLabelFields fields, QWidget* parent = nullptr);
    void setText(std::string text);
    QString accessibleText() const override;
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;
    bool hasHeightForWidth() const override { return fields().wraps; }
    int heightForWidth(int width) const override;

protected:
    void fieldsChanged() override;
    void paintEvent(QPaintEvent* event) override;
};

} // namespace tarvo::ui
