#include "ui/tables/cell_delegate.h"

#include "ui/style/metrics.h"
#include "ui/style/symbol.h"
#include "ui/style/tabular_text.h"
#include "ui/style/theme.h"
#include "ui/style/typography.h"
#include "ui/tables/record_table_model.h"

#include <QAbstractItemView>
#include <QHelpEvent>
#include <QPainter>
#include <QToolTip>

#include <cmath>

namespace tarvo::ui {
namespace {

constexpr double iconSize = 18;
constexpr double fallbackSize = 10; // the gear of a process without an icon
constexpr double symbolSize = 13;

TabularText cellText(const QFont& base) {
    return TabularText(textFont(TextRole::rowLabel, base));
}

} // namespace

CellDelegate::CellDelegate(AppIconCache* icons, QObject* parent)
    : QStyledItemDelegate(parent), icons_(icons) {}

QRectF CellDelegate::textArea(const QRectF& cell, const QModelIndex& index) const {
    const bool hasIcon = icons_ && index.data(cellIconRole).isValid();
    const double left = hasIcon ? metrics::regular + iconSize : 0.0;
    return cell.adjusted(metrics::regular + left, 0, -metrics::regular, 0);
}

void CellDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                         const QModelIndex& index) const {
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    paintGround(*painter, option, index);
    const Theme theme(option.palette);
    const QRectF cell(option.rect);
    const QVariant symbol = index.data(cellSymbolRole);
    if (symbol.isValid()) {
        QRectF place(0, 0, symbolSize, symbolSize);
        place.moveCenter(cell.center());
        const bool isUnderPointer = option.state & QStyle::State_MouseOver;
        paintSymbol(*painter, place, symbol.toString().toStdString(),
                    theme.color(isUnderPointer ? colors::red : colors::secondary));
        painter->restore();
        return;
    }
    paintIcon(*painter, cell, index, theme.color(colors::secondary));
    const QVariant color = index.data(cellColorRole);
    painter->setPen(
        theme.color(color.isValid() ? Color{static_cast<ColorName>(color.toInt())} : colors::primary));
    const TabularText text = cellText(option.font);
    const QRectF area = textArea(cell, index);
    const auto alignment = Qt::Alignment(index.data(Qt::TextAlignmentRole).toInt());
    text.draw(*painter, area, alignment, text.elided(index.data().toString(), area.width()));
    painter->restore();
}

// The ground is one strip for the whole row, the focus a frame around it: what the keys act on is the row.
void CellDelegate::paintGround(QPainter& painter, const QStyleOptionViewItem& option,
                               const QModelIndex& index) const {
    const Theme theme(option.palette);
    if (option.state & QStyle::State_Selected) {
        const bool isActive = option.state & QStyle::State_Active;
        painter.fillRect(option.rect, theme.color(colors::blue.withOpacity(isActive ? 0.28 : 0.16)));
    } else if (index.row() % 2 == 1) {
        painter.fillRect(option.rect, theme.color(colors::primary.withOpacity(0.035)));
    }
}

void CellDelegate::paintIcon(QPainter& painter, const QRectF& cell, const QModelIndex& index,
                             const QColor& ink) const {
    const QVariant pid = index.data(cellIconRole);
    if (!icons_ || !pid.isValid()) return;
    QRectF place(cell.left() + metrics::regular, 0, iconSize, iconSize);
    place.moveTop(cell.center().y() - iconSize / 2);
    if (const auto icon = icons_->icon(pid.toInt())) {
        icon->paint(&painter, place.toAlignedRect());
        return;
    }
    QRectF gear(0, 0, fallbackSize, fallbackSize);
    gear.moveCenter(place.center());
    paintSymbol(painter, gear, "gearshape.fill", ink);
}

QSize CellDelegate::sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const {
    if (index.data(cellSymbolRole).isValid()) return {tableRowHeight + metrics::regular, tableRowHeight};
    const double width = cellText(option.font).width(index.data().toString());
    const double around = -textArea(QRectF(0, 0, 0, 0), index).width();
    return {static_cast<int>(std::ceil(width + around)), tableRowHeight};
}

bool CellDelegate::helpEvent(QHelpEvent* event, QAbstractItemView* view, const QStyleOptionViewItem& option,
                             const QModelIndex& index) {
    if (event->type() != QEvent::ToolTip || index.data(Qt::ToolTipRole).isValid()) {
        return QStyledItemDelegate::helpEvent(event, view, option, index);
    }
    const bool isCut = sizeHint(option, index).width() > option.rect.width();
    QToolTip::showText(event->globalPos(), isCut ? index.data().toString() : QString(), view);
    return true;
}

} // namespace tarvo::ui
