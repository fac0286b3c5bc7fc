#include "platform/desktop/bar/bar_item_view.h"

#include "platform/desktop/bar/line_drawing_painter.h"
#include "platform/desktop/system_palette.h"

#include <QCoreApplication>
#include <QMouseEvent>
#include <QPainter>
#include <QTextDocument>

#include <cmath>
#include <optional>

namespace tarvo::desktop {

namespace {

constexpr double symbolSide = 15;

std::optional<StatusClick> clickOf(Qt::MouseButton button) {
    if (button == Qt::LeftButton) return StatusClick::left;
    if (button == Qt::RightButton) return StatusClick::right;
    return std::nullopt;
}

} // namespace

BarItemView::BarItemView(StatusItemModel& model, BarFonts& fonts, SymbolImages& symbols, QWidget* parent)
    : QWidget(parent), model_(&model), fonts_(fonts), symbols_(symbols) {
    setAttribute(Qt::WA_OpaquePaintEvent);
    toolTipChanged();
}

void BarItemView::faceChanged() {
    if (needsLayout_) return;
    needsLayout_ = true;
    update();
    QCoreApplication::postEvent(this, new QEvent(QEvent::LayoutRequest));
}

void BarItemView::toolTipChanged() {
    const QString text = QString::fromStdString(model_->content().toolTip);
    setToolTip(Qt::mightBeRichText(text) ? text.toHtmlEscaped().replace(u'\n', QStringLiteral("<br>"))
                                         : text);
}

int BarItemView::wantedWidth() {
    if (needsLayout_) layOut();
    return geometry_.width;
}

bool BarItemView::event(QEvent* event) {
    if (event->type() == QEvent::LayoutRequest && model_ && wantedWidth() != width()) emit widthChanged();
    if (event->type() == QEvent::PaletteChange) update();
    return QWidget::event(event);
}

void BarItemView::fontsChanged() {
    reserved_ = {};
    title_ = {};
    needsLayout_ = false;
    faceChanged();
}

void BarItemView::layOut() {
    needsLayout_ = false;
    const StatusItemContent& content = model_->content();
    title_ = layoutTitle(content.title, content.font, fonts_);
    const double reserved = reserved_.fit(content.title, title_, content.font, fonts_);
    geometry_ = layoutBarItem(imageSize(), title_.size, reserved, content.title.centred);
}

QSizeF BarItemView::imageSize() const {
    if (std::holds_alternative<SymbolImage>(model_->content().image)) return {symbolSide, symbolSide};
    if (const auto* drawing = std::get_if<LineDrawing>(&model_->content().image)) {
        return {drawing->width, drawing->height};
    }
    return {};
}

QColor BarItemView::foreground() const {
    return systemColor(model_->content().tint.value_or(SystemColor::label), palette());
}

void BarItemView::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.fillRect(rect(), palette().window());
    if (!model_) return;
    if (needsLayout_) layOut();
    paintImage(painter);
    paintTitle(painter);
}

void BarItemView::paintImage(QPainter& painter) {
    const StatusImage& image = model_->content().image;
    if (const auto* symbol = std::get_if<SymbolImage>(&image)) {
        paintSymbol(painter, symbol->name, geometry_.image, foreground());
    } else if (const auto* drawing = std::get_if<LineDrawing>(&image)) {
        paintLineDrawing(painter, geometry_.image.topLeft(), *drawing, palette());
    }
}

void BarItemView::paintTitle(QPainter& painter) {
    for (const TitlePiece& piece : title_.pieces) {
        const QColor color = piece.color ? systemColor(*piece.color, palette()) : foreground();
        const QPointF origin = geometry_.title + piece.origin;
        if (!piece.symbol.empty()) {
            const double top = origin.y() - std::round((piece.width + piece.font->ascent()) / 2) + 1;
            paintSymbol(painter, piece.symbol, {origin.x(), top, piece.width, piece.width}, color);
            continue;
        }
        painter.setPen(color);
        piece.font->draw(painter, origin, piece.text);
    }
}

void BarItemView::paintSymbol(QPainter& painter, const std::string& name, const QRectF& place,
                              const QColor& color) {
    painter.drawImage(place.topLeft(), symbols_.image(name, place.width(), devicePixelRatioF(), color));
}

// Accepting the press is what brings the release.
void BarItemView::mousePressEvent(QMouseEvent* event) {
    event->accept();
}

void BarItemView::mouseReleaseEvent(QMouseEvent* event) {
    const auto click = clickOf(event->button());
    if (click && model_ && rect().contains(event->position().toPoint())) model_->clicked(*click);
}

} // namespace tarvo::desktop
