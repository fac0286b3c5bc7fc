#include "ui/tables/search_field.h"

#include "ui/style/metrics.h"
#include "ui/style/symbol.h"
#include "ui/style/theme.h"
#include "ui/style/typography.h"

#include <QKeyEvent>
#include <QPainter>

namespace tarvo::ui {
namespace {

constexpr double symbolSize = 12;
constexpr int fieldHeight = 30;
constexpr double cornerRadius = 8;
constexpr int clearSide = 22;

} // namespace

// The toolkit's own button would look for its picture in the icon theme and load every image format for it.
SearchField::SearchField(std::function<void(const QString&)> onQuery, QWidget* parent)
    : QLineEdit(parent), clear_(new IconButton("xmark.circle.fill", symbolSize, clearSide, this)) {
    setFrame(false);
    clear_->hide();
    clear_->setFocusPolicy(Qt::NoFocus);
    clear_->setCursor(Qt::ArrowCursor);
    connect(clear_, &QAbstractButton::clicked, this, &QLineEdit::clear);
    connect(this, &QLineEdit::textChanged, clear_,
            [this](const QString& text) { clear_->setVisible(!text.isEmpty()); });
    setFont(textFont(TextRole::rowLabel, font()));
    setTextMargins(metrics::regular + static_cast<int>(symbolSize) + metrics::small, 0,
                   clearSide + metrics::small, 0);
    setFixedHeight(fieldHeight);
    QPalette transparent; // of this only the ground counts
    transparent.setColor(QPalette::Base, Qt::transparent);
    setPalette(transparent);
    connect(this, &QLineEdit::textChanged, this, std::move(onQuery));
}

void SearchField::setPrompt(const std::string& prompt) {
    const QString text = QString::fromStdString(prompt);
    if (text == placeholderText()) return;
    setPlaceholderText(text);
    setAccessibleName(text);
}

QSize SearchField::sizeHint() const {
    return {240, fieldHeight};
}

void SearchField::paintEvent(QPaintEvent* event) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const Theme theme(palette());
    painter.setPen(hasFocus() ? QPen(theme.color(colors::blue), 1.5) : QPen(Qt::NoPen));
    painter.setBrush(theme.color(colors::primary.withOpacity(0.06)));
    painter.drawRoundedRect(QRectF(rect()).adjusted(1, 1, -1, -1), cornerRadius, cornerRadius);
    const QRectF place(metrics::regular, (height() - symbolSize) / 2, symbolSize, symbolSize);
    paintSymbol(painter, place, "magnifyingglass", theme.color(colors::secondary));
    painter.end();
    QLineEdit::paintEvent(event);
}

void SearchField::resizeEvent(QResizeEvent* event) {
    QLineEdit::resizeEvent(event);
    clear_->move(width() - clearSide - metrics::tight, (height() - clearSide) / 2);
}

void SearchField::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape && !text().isEmpty()) {
        clear();
        return;
    }
    QLineEdit::keyPressEvent(event);
}

} // namespace tarvo::ui
