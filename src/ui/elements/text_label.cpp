#include "ui/elements/text_label.h"

#include "ui/style/tabular_text.h"

#include <QPainter>

#include <cmath>

namespace tarvo::ui {

TextLabel::TextLabel(TextLabelFields fields, QWidget* parent) : Element(std::move(fields), parent) {
    fieldsChanged();
}

void TextLabel::setText(std::string text) {
    TextLabelFields changed = fields();
    changed.text = std::move(text);
    set(std::move(changed));
}

QString TextLabel::accessibleText() const {
    return QString::fromStdString(fields().text);
}

QSize TextLabel::sizeHint() const {
    const TabularText text(roleFont(fields().role));
    return {static_cast<int>(std::ceil(text.width(accessibleText()))),
            static_cast<int>(std::ceil(text.metrics().height()))};
}

QSize TextLabel::minimumSizeHint() const {
    return {0, sizeHint().height()};
}

int TextLabel::heightForWidth(int width) const {
    const QFontMetricsF metrics(roleFont(fields().role));
    const QRectF bounds = metrics.boundingRect(QRectF(0, 0, width, 4096), Qt::TextWordWrap, accessibleText());
    return static_cast<int>(std::ceil(bounds.height()));
}

void TextLabel::fieldsChanged() {
    // A fixed height would keep a wrapping text at one line.
    QSizePolicy policy = fields().wraps ? QSizePolicy(QSizePolicy::Ignored, QSizePolicy::Minimum)
                                        : QSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    policy.setHeightForWidth(fields().wraps);
    if (sizePolicy() != policy) setSizePolicy(policy);
}

void TextLabel::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setPen(theme().color(fields().color));
    const TabularText text(roleFont(fields().role));
    if (fields().wraps) {
        painter.setFont(text.font());
        painter.drawText(QRectF(rect()), static_cast<int>(fields().alignment) | Qt::TextWordWrap,
                         accessibleText());
        return;
    }
    text.draw(painter, rect(), fields().alignment, text.elided(accessibleText(), width()));
}

} // namespace tarvo::ui
