#include "ui/controls/quick_action_button.h"

#include "ui/controls/plain_tool_tip.h"
#include "ui/style/metrics.h"
#include "ui/style/symbol.h"
#include "ui/style/text_lines.h"

#include <QPainter>

#include <cmath>

namespace tarvo::ui {
namespace {

constexpr double cornerRadius = 10;
constexpr double symbolSize = 16;
constexpr double groundOpacity = 0.13;
constexpr int preferredWidth = 96;
constexpr int narrowestWidth = 10;

} // namespace

QuickActionButton::QuickActionButton(QWidget* parent) : PaintedButton(parent) {
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
}

void QuickActionButton::set(QuickActionButtonFields fields) {
    if (fields == fields_) return;
    fields_ = std::move(fields);
    setName(fields_.label);
    showWholeLabel();
    update();
}

void QuickActionButton::setLabelLines(int lines) {
    labelLines_ = lines;
    updateGeometry();
}

void QuickActionButton::resizeEvent(QResizeEvent* event) {
    showWholeLabel();
    PaintedButton::resizeEvent(event);
}

QStringList QuickActionButton::labelLines() const {
    return textLines(accessibleName(), roleFont(TextRole::tileLabel), labelWidth(), labelLines_);
}

double QuickActionButton::labelWidth() const {
    return width() - 2 * metrics::tight;
}

void QuickActionButton::showWholeLabel() {
    const QStringList lines = labelLines();
    const bool isCut = !lines.isEmpty() && lines.last().endsWith(QChar(0x2026));
    setPlainToolTip(*this, isCut ? fields_.label : std::string());
}

QSize QuickActionButton::sizeHint() const {
    const double line = QFontMetricsF(roleFont(TextRole::tileLabel)).height();
    const double content = symbolSize + metrics::tight + labelLines_ * line;
    return {preferredWidth, static_cast<int>(std::ceil(content)) + 2 * metrics::regular};
}

QSize QuickActionButton::minimumSizeHint() const {
    return {narrowestWidth, sizeHint().height()};
}

void QuickActionButton::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    paintGround(painter);
    paintContent(painter);
    paintFocus(painter, rect(), cornerRadius);
}

void QuickActionButton::paintGround(QPainter& painter) const {
    const Theme shades = theme();
    painter.setPen(Qt::NoPen);
    for (const Color& layer :
         {fields_.color.withOpacity(groundOpacity), colors::primary.withOpacity(emphasis())}) {
        painter.setBrush(shades.color(layer));
        painter.drawRoundedRect(QRectF(rect()), cornerRadius, cornerRadius);
    }
}

// Symbol and label together stand in the middle, so that a short label does not hang at the top.
void QuickActionButton::paintContent(QPainter& painter) const {
    const QFont font = roleFont(TextRole::tileLabel);
    const double line = QFontMetricsF(font).height();
    const QStringList lines = labelLines();
    const double height = symbolSize + metrics::tight + static_cast<double>(lines.size()) * line;
    QRectF place((width() - symbolSize) / 2, (this->height() - height) / 2, symbolSize, symbolSize);
    paintSymbol(painter, place, fields_.icon, theme().color(fields_.color));
    painter.setFont(font);
    painter.setPen(theme().color(colors::primary));
    QRectF row(metrics::tight, place.bottom() + metrics::tight, labelWidth(), line);
    for (const QString& text : lines) {
        painter.drawText(row, Qt::AlignCenter, text);
        row.translate(0, line);
    }
}

} // namespace tarvo::ui
